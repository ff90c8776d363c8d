#include "store/PlanExport.h"

#include <unicode/gregocal.h>

#include <charconv>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <memory>
#include <optional>

#include "store/Dates.h"
#include "store/FileCommit.h"
#include "store/PlanFile.h"
#include "store/TextValue.h"

namespace {

constexpr const char* kHeader = "day,date,label,consumed,burned,budget,remaining\r\n";

void appendField(std::string& out, std::string_view field) {
    if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
        out += field;
        return;
    }
    out += '"';
    for (const char c : field) {
        if (c == '"') out += '"';
        out += c;
    }
    out += '"';
}

template <class Integer>
void appendNumber(std::string& out, Integer value) {
    char digits[24];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), value).ptr;
    out.append(digits, end);
}

// The calendar date a plan day begins on, in the default time zone. One calendar for all rows:
// a formatter per row would cost more than the rest of the export.
class DayDates {
public:
    explicit DayDates(std::optional<Instant> start) {
        UErrorCode status = U_ZERO_ERROR;
        calendar_ = std::make_unique<icu::GregorianCalendar>(status);
        if (U_FAILURE(status) || !start) {
            calendar_.reset();
            return;
        }
        startMs_ = std::chrono::duration<double, std::milli>(start->time_since_epoch()).count();
    }

    void append(std::string& out, int64_t id) {
        if (!calendar_) return;
        // In ICU's milliseconds: any id of a damaged file stays in range, or ICU says it is not.
        UErrorCode status = U_ZERO_ERROR;
        calendar_->setTime(startMs_ + 86400000.0 * static_cast<double>(id), status);
        const int32_t year = calendar_->get(UCAL_EXTENDED_YEAR, status);
        const int32_t month = calendar_->get(UCAL_MONTH, status) + 1;
        const int32_t day = calendar_->get(UCAL_DATE, status);
        if (U_FAILURE(status)) return;
        char text[32];
        const int length = std::snprintf(text, sizeof text, "%04d-%02d-%02d", year, month, day);
        out.append(text, static_cast<size_t>(length));
    }

private:
    std::unique_ptr<icu::GregorianCalendar> calendar_;  // empty: no dates
    double startMs_ = 0;
};

struct Profile {
    std::optional<Instant> start;
    std::optional<int32_t> budget;
};

// The live profile is the second row, as the app reads it; a file without one still exports.
Profile readProfile(SqliteFile& db) {
    Profile profile;
    PlanCheck missing;
    if (!hasPlanColumns(db, "profileData", missing)) return profile;
    SqliteQuery query(db, "select * from profileData");
    if (!query.next() || !query.next()) return profile;
    const DateFormatter startFormat("yyyy-MM-dd HH:mm:ss zzz", DateLocale::posix);
    profile.start = startFormat.parse(query.text(2));
    profile.budget = intValue(query.text(1));
    return profile;
}

}  // namespace

ExportResult exportPlan(const std::filesystem::path& database, const std::filesystem::path& csv) {
    PlanCheck fault;
    const auto db = openPlanFile(database, kPlanLockWait, fault);
    if (!db) return {.error = fault.text()};
    // The profile and the days from one snapshot, also while a booking is being written.
    db->exec("BEGIN");
    if (!hasPlanColumns(*db, "dailyData", fault)) return {.error = fault.text()};
    const Profile profile = readProfile(*db);
    if (!db->ok()) return {.error = db->fault().text()};

    ExportResult result;
    std::string out = kHeader;
    DayDates dates(profile.start);
    SqliteQuery days(*db,
                     "SELECT id, date, calorieConsumed, calorieBurned FROM dailyData "
                     "WHERE id >= 0 ORDER BY id");
    while (days.next()) {
        const int64_t id = days.integer(0);
        // The calories as the app reads them, so that remaining is what it shows.
        const int32_t consumed = intValue(days.text(2));
        appendNumber(out, static_cast<uint64_t>(id) + 1);
        out += ',';
        dates.append(out, id);
        out += ',';
        appendField(out, days.text(1));
        out += ',';
        appendNumber(out, consumed);
        out += ',';
        appendNumber(out, intValue(days.text(3)));
        out += ',';
        if (profile.budget) {
            appendNumber(out, *profile.budget);
            out += ',';
            appendNumber(out, int64_t{*profile.budget} - consumed);
        } else {
            out += ',';
        }
        out += "\r\n";
        ++result.days;
    }
    if (!db->ok()) return {.error = db->fault().text()};

    PendingFile file(csv);
    if (!file.write(out) || !file.commit()) return {.error = file.error()};
    return result;
}
