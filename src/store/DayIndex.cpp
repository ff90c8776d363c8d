#include "store/DayIndex.h"

#include <cstdint>

#include "store/Checked.h"
#include "store/DevLog.h"
#include "store/TextValue.h"

namespace {

std::string describe(const std::optional<Instant>& instant) {
    return instant ? standardDescription(*instant) : "(null)";
}

// "an" before a number said with a leading vowel: 8, 11, 18, 80-89, 800-899, 11000, ...
const char* articleFor(uint64_t n) {
    uint64_t lead = n;
    while (lead >= 1000) lead /= 1000;
    uint64_t first = lead;
    while (first >= 10) first /= 10;
    return first == 8 || lead == 11 || lead == 18 ? "an" : "a";
}

}  // namespace

void computeDayIndex(AppState& state, Instant now) {
    // The start date is written in POSIX form (Gregorian, Latin digits) and must be read back
    // the same way whatever the device's locale; the day count still uses the device's zone.
    const DateFormatter startFormat("yyyy-MM-dd HH:mm:ss zzz", DateLocale::posix);
    DEVLOG("profile Array %s", devlog::describe(state.profileRows).c_str());
    const ProfileRow& profile = checkedAt(state.profileRows, 0, [&] {
        return formatted("the plan in %s has no profile record", state.databasePath.c_str());
    });
    DEVLOG("%s", profile[0].c_str());
    DEVLOG("%s", profile[1].c_str());

    state.calorieBudgetValue = intValue(profile[0]);
    DEVLOG("counterValue %li", static_cast<long>(state.calorieBudgetValue));

    // A start that does not parse compares as equal to now and leaves the indexes alone.
    const std::optional<Instant> start = startFormat.parse(profile[1]);
    DEVLOG("%s current   Start %s", standardDescription(now).c_str(), describe(start).c_str());
    if (!start || *start == now) {
        DEVLOG("dates are the same");
    } else if (*start < now) {
        DEVLOG("start is earlier than current");
        const int64_t days = wholeDaysBetween(*start, now);
        DEVLOG("%ld", static_cast<long>(days));
        state.todayIndex = state.dayIndex = static_cast<int32_t>(days);
        DEVLOG("%li %li", static_cast<long>(state.todayIndex), static_cast<long>(state.dayIndex));
    }
}

const DayRow& dayRecord(const AppState& state, int64_t day) {
    return checkedAt(state.dailyRows, day, [&] {
        const size_t days = state.dailyRows.size();
        const std::string ordinal = formatted(
            "day %lld of %s %zu-day plan", static_cast<long long>(day) + 1, articleFor(days), days);
        return formatted(day == state.todayIndex ? "the plan in %s has no day record for today (%s)"
                                                 : "the plan in %s has no day record for %s",
                         state.databasePath.c_str(), ordinal.c_str());
    });
}
