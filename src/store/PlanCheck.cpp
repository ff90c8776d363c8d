#include "store/PlanCheck.h"

#include "store/Formatted.h"
#include "store/PlanFile.h"
#include "store/TextValue.h"

namespace {

// One integrity check's first complaint, or empty when the file passes.
std::string firstComplaint(SqliteFile& db) {
    SqliteQuery query(db, "PRAGMA integrity_check(1)");
    if (!query.next()) return {};
    const std::string_view row = query.text(0);
    return row == "ok" ? std::string() : std::string(row);
}

// The profile is read as the app reads it: the second row of "select *".
void readFacts(SqliteFile& db, PlanFacts& facts) {
    {
        SqliteQuery profile(db, "select * from profileData");
        if (profile.next() && profile.next()) {
            const DateFormatter startFormat("yyyy-MM-dd HH:mm:ss zzz", DateLocale::posix);
            facts.hasProfile = true;
            facts.budget = intValue(profile.text(1));
            facts.start = startFormat.parse(profile.text(2));
        }
    }
    SqliteQuery days(db, "SELECT count(*) FROM dailyData WHERE id >= 0");
    if (days.next()) facts.days = days.integer(0);
}

}  // namespace

PlanCheck checkPlan(const std::filesystem::path& file, std::chrono::milliseconds lockWait) {
    PlanCheck check;
    const auto db = openPlanFile(file, lockWait, check);
    if (!db) return check;
    // One read transaction for all that follows: a booking written meanwhile shows whole or not.
    if (!db->exec("BEGIN")) return db->fault();
    const std::string complaint = firstComplaint(*db);
    if (!db->ok()) return db->fault();
    if (!complaint.empty()) {
        check.fault = PlanFault::damaged;
        check.detail = complaint;
        return check;
    }
    for (const char* table : {"profileData", "food", "dailyData"})
        if (!hasPlanColumns(*db, table, check)) return check;
    readFacts(*db, check.facts);
    if (!db->ok()) return db->fault();
    if (!check.facts.hasProfile) {
        check.fault = PlanFault::noProfile;
    } else if (check.facts.days == 0) {
        check.fault = PlanFault::setUpUnfinished;
    }
    return check;
}

std::string PlanCheck::text() const {
    switch (fault) {
        case PlanFault::none:
            return "the plan is in order";
        case PlanFault::missing:
            return formatted("there is no file at %s", path.c_str());
        case PlanFault::notAFile:
            return formatted("%s is not a file", path.c_str());
        case PlanFault::empty:
            return "the file is empty";
        case PlanFault::unreadable:
            return "the file cannot be read: " + detail;
        case PlanFault::damaged:
            return "the file is damaged: " + detail;
        case PlanFault::tableMissing:
            return formatted("the table %s is missing", table.c_str());
        case PlanFault::columnMissing:
            return formatted("the table %s has no column %s", table.c_str(), detail.c_str());
        case PlanFault::columnMisplaced:
            return formatted("the table %s has its column %s out of place", table.c_str(),
                             detail.c_str());
        case PlanFault::locked:
            return formatted("another program holds %s", path.c_str());
        case PlanFault::noProfile:
            return "the file has no profile record";
        case PlanFault::setUpUnfinished:
            return "the set-up was interrupted before the plan's days were stored";
    }
    return {};
}

std::optional<PlanEnd> planEnded(const PlanFacts& facts, Instant now) {
    if (!facts.start || facts.days <= 0) return std::nullopt;
    // Counted as the app counts it (DayIndex.cpp): a start in the future is the first day.
    const int64_t today = *facts.start < now ? wholeDaysBetween(*facts.start, now) : 0;
    if (today < facts.days) return std::nullopt;
    const Instant lastDay = *facts.start + std::chrono::seconds(86400) * (facts.days - 1);
    return PlanEnd{.lastDay = DateFormatter("yyyy-MM-dd", DateLocale::posix).format(lastDay),
                   .today = today + 1,
                   .days = facts.days};
}

std::string PlanEnd::text() const {
    return formatted("the plan ended on %s (today is day %lld of %lld)", lastDay.c_str(),
                     static_cast<long long>(today), static_cast<long long>(days));
}
