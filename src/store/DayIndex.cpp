#include "store/DayIndex.h"

#include <cstdint>

#include "store/AppState.h"
#include "store/Checked.h"
#include "store/DevLog.h"
#include "store/TextValue.h"

namespace {
std::string describe(const std::optional<Instant>& instant) {
    return instant ? standardDescription(*instant) : "(null)";
}
}  // namespace

void computeDayIndex(AppState& state, Instant now) {
    const DateFormatter startFormat("yyyy-MM-dd HH:mm:ss zzz");
    DEVLOG("profile Array %s", devlog::describe(state.profileRows).c_str());
    const ProfileRow& profile = checkedAt(state.profileRows, 0, "profileRows");
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
