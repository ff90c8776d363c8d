#include "support/Fixtures.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <unicode/timezone.h>

#include <cstdlib>
#include <fstream>
#include <memory>
#include <ctime>

#include "store/DevLog.h"

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "calorie-test-XXXXXX").string();
    if (!mkdtemp(pattern.data())) std::abort();
    path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

LogCapture::LogCapture() {
    devlog::setEnabled(true);
    devlog::setSink([this](std::string_view line) { lines_.emplace_back(line); });
}

LogCapture::~LogCapture() {
    devlog::setSink(nullptr);
    devlog::setEnabled(false);
}

ScopedTimeZone::ScopedTimeZone(const char* id) {
    icu::UnicodeString current;
    std::unique_ptr<icu::TimeZone>(icu::TimeZone::createDefault())->getID(current);
    current.toUTF8String(previous_);
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(id));
}

ScopedTimeZone::~ScopedTimeZone() {
    icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(previous_.c_str()));
}

FixedClock::FixedClock(Instant now) : now_(now) {
    Clock::set([this] { return now_; });
}

FixedClock::~FixedClock() { Clock::set(nullptr); }

Instant utc(const char* text) {
    std::tm tm{};
    if (!strptime(text, "%Y-%m-%d %H:%M:%S", &tm)) std::abort();
    return std::chrono::system_clock::from_time_t(timegm(&tm));
}

void execSql(const std::string& path, const char* sql) {
    sqlite3* db = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &db), SQLITE_OK);
    char* error = nullptr;
    EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, &error), SQLITE_OK) << (error ? error : "");
    sqlite3_free(error);
    sqlite3_close(db);
}

std::vector<std::string> queryColumn(const std::string& path, const char* sql) {
    std::vector<std::string> out;
    sqlite3* db = nullptr;
    sqlite3_open(path.c_str(), &db);
    sqlite3_stmt* stmt = nullptr;
    if (sqlite3_prepare_v2(db, sql, -1, &stmt, nullptr) == SQLITE_OK) {
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            const auto* text = sqlite3_column_text(stmt, 0);
            out.emplace_back(text ? reinterpret_cast<const char*>(text) : "");
        }
    } else {
        ADD_FAILURE() << sqlite3_errmsg(db);
    }
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    return out;
}

void writePlan(const std::string& path, Instant start, const char* budget, int days) {
    std::string sql = "UPDATE profileData SET calorieBudget = '" + std::string(budget) +
                      "', startingDate = '" + standardDescription(start) + "' WHERE id = 2;";
    const DateFormatter label("EEEE MMMM d");
    for (int day = 0; day < days; ++day) {
        sql += "INSERT INTO dailyData (date, id, calorieConsumed, calorieBurned) VALUES ('" +
               label.format(start + std::chrono::hours(24 * day)) + "', " + std::to_string(day) +
               ", 0, 0);";
    }
    execSql(path, sql.c_str());
}

std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::string dayInFile(const std::string& path, int64_t id) {
    const std::string sql =
        "SELECT calorieConsumed || ' ' || calorieBurned FROM dailyData WHERE id = " + std::to_string(id);
    const std::vector<std::string> rows = queryColumn(path, sql.c_str());
    return rows.empty() ? std::string() : rows[0];
}
