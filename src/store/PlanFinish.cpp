#include "store/PlanFinish.h"

#include <chrono>

#include "store/PlanCheck.h"
#include "store/PlanFile.h"

std::string finishPlan(const std::filesystem::path& database, Instant now) {
    SqliteFile db(database, SQLITE_OPEN_READWRITE, kPlanLockWait);
    const auto failed = [&] {
        PlanCheck fault = db.fault();
        fault.path = database;
        return fault.text();
    };
    if (!db.ok()) return failed();
    std::string stored;
    int64_t written = 0;
    {
        SqliteQuery profile(db, "SELECT startingDate FROM profileData WHERE id = 2");
        if (profile.next()) stored = profile.text(0);
        SqliteQuery days(db, "SELECT count(*) FROM dailyData WHERE id >= 0");
        if (days.next()) written = days.integer(0);
    }
    if (!db.ok()) return failed();
    const Instant start =
        DateFormatter("yyyy-MM-dd HH:mm:ss zzz", DateLocale::posix).parse(stored).value_or(now);
    // Labelled as the set-up labels them: a plan day is exactly 86,400 seconds.
    const DateFormatter label("EEEE MMMM d");
    if (!db.exec("BEGIN IMMEDIATE")) return failed();
    for (int64_t id = written; id < kPlanDays; ++id) {
        SqliteQuery insert(db, "INSERT INTO dailyData (date, id, calorieConsumed, calorieBurned) "
                               "VALUES (?1, ?2, 0, 0)");
        insert.bind(1, label.format(start + std::chrono::seconds(86400) * id));
        insert.bind(2, std::to_string(id));
        insert.next();
        if (!db.ok()) break;
    }
    if (db.ok() && db.exec("COMMIT")) return {};
    const std::string error = failed();
    db.exec("ROLLBACK");
    return error;
}
