// The plan's file handled whole: the CSV export of a full 366-day plan against the same query
// written out with fprintf, and a backup (online backup API, user defaults, integrity check,
// flush, rename) against a plain copy of the file. Both floors flush what they wrote to the disk,
// as the export and the backup must: without that they measure the page cache, and a flush
// costs more than all the rest here. Their unflushed times are printed beside, for information.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstdio>
#include <ctime>
#include <filesystem>
#include <string>

#include "BareSqlite.h"
#include "RatioReporter.h"
#include "store/Dates.h"
#include "store/PlanBackup.h"
#include "store/PlanExport.h"

namespace {

constexpr int kDays = 366;

// A finished set-up's file, with a booking on every day.
const std::string& plan() {
    static const std::string path = [] {
        const std::string file = freshDatabase("bench-plan.db");
        const Instant start = Clock::now() - std::chrono::hours(24 * 40);
        const DateFormatter label("EEEE MMMM d");
        std::string sql = "BEGIN; UPDATE profileData SET calorieBudget = '1850', startingDate = '" +
                          standardDescription(start) + "' WHERE id = 2;";
        for (int day = 0; day < kDays; ++day) {
            sql += "INSERT INTO dailyData VALUES (" + std::to_string(day) + ", '" +
                   label.format(start + std::chrono::hours(24 * day)) + "', " +
                   std::to_string(1500 + day) + ", " + std::to_string(day % 300) + ");";
        }
        sqlite3* db = nullptr;
        sqlite3_open(file.c_str(), &db);
        sqlite3_exec(db, (sql + "COMMIT;").c_str(), nullptr, nullptr, nullptr);
        sqlite3_close(db);
        return file;
    }();
    return path;
}

// The least an export is: the two reads and one fprintf per row, the date from the C library.
void writeFloorCsv(const char* database, const char* csv, bool flush) {
    sqlite3* db = nullptr;
    sqlite3_open_v2(database, &db, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_stmt* stmt = nullptr;
    sqlite3_prepare_v2(db, "select * from profileData", -1, &stmt, nullptr);
    sqlite3_step(stmt);
    sqlite3_step(stmt);
    const long budget = sqlite3_column_int(stmt, 1);
    std::tm start{};
    strptime(reinterpret_cast<const char*>(sqlite3_column_text(stmt, 2)), "%Y-%m-%d %H:%M:%S",
             &start);
    const time_t startTime = timegm(&start);
    sqlite3_finalize(stmt);

    FILE* out = std::fopen(csv, "w");
    std::fputs("day,date,label,consumed,burned,budget,remaining\r\n", out);
    sqlite3_prepare_v2(db,
                       "SELECT id, date, calorieConsumed, calorieBurned FROM dailyData "
                       "WHERE id >= 0 ORDER BY id",
                       -1, &stmt, nullptr);
    while (sqlite3_step(stmt) == SQLITE_ROW) {
        const long id = sqlite3_column_int(stmt, 0);
        const long consumed = sqlite3_column_int(stmt, 2);
        const time_t dayStart = startTime + id * 86400;
        std::tm day{};
        localtime_r(&dayStart, &day);
        char date[16];
        std::strftime(date, sizeof date, "%Y-%m-%d", &day);
        std::fprintf(out, "%ld,%s,%s,%ld,%d,%ld,%ld\r\n", id + 1, date,
                     reinterpret_cast<const char*>(sqlite3_column_text(stmt, 1)), consumed,
                     sqlite3_column_int(stmt, 3), budget, budget - consumed);
    }
    sqlite3_finalize(stmt);
    sqlite3_close(db);
    if (flush) {
        std::fflush(out);
        fsync(fileno(out));
    }
    std::fclose(out);
}

void copyFloor(bool flush) {
    std::filesystem::copy_file(plan(), "bench-floor.db",
                               std::filesystem::copy_options::overwrite_existing);
    if (!flush) return;
    const int fd = open("bench-floor.db", O_RDONLY | O_CLOEXEC);
    fsync(fd);
    close(fd);
}

std::string contents(const char* path) {
    std::string bytes;
    if (FILE* in = std::fopen(path, "rb")) {
        char buffer[65536];
        for (size_t n; (n = std::fread(buffer, 1, sizeof buffer, in)) > 0;) bytes.append(buffer, n);
        std::fclose(in);
    }
    return bytes;
}

void BM_ExportFloor(benchmark::State& state) {
    for (auto _ : state) writeFloorCsv(plan().c_str(), "bench-floor.csv", true);
}

void BM_ExportFloorUnflushed(benchmark::State& state) {
    for (auto _ : state) writeFloorCsv(plan().c_str(), "bench-floor.csv", false);
}

void BM_Export(benchmark::State& state) {
    // Both must write the same bytes, or the ratio compares different work.
    writeFloorCsv(plan().c_str(), "bench-floor.csv", false);
    exportPlan(plan(), "bench-export.csv");
    if (contents("bench-floor.csv") != contents("bench-export.csv"))
        state.SkipWithError("the export and its floor wrote different files");
    for (auto _ : state) {
        const ExportResult result = exportPlan(plan(), "bench-export.csv");
        if (!result.ok()) state.SkipWithError(result.error.c_str());
    }
}

void BM_BackupFloor(benchmark::State& state) {
    for (auto _ : state) copyFloor(true);
}

void BM_BackupFloorUnflushed(benchmark::State& state) {
    for (auto _ : state) copyFloor(false);
}

void BM_Backup(benchmark::State& state) {
    for (auto _ : state) {
        const BackupResult result = backup(plan(), "bench-backup.db", "no");
        if (!result.ok()) state.SkipWithError(result.error.c_str());
    }
}

void configure(benchmark::internal::Benchmark* b) {
    b->Unit(benchmark::kMillisecond)->Iterations(20)->Repetitions(5)->ReportAggregatesOnly(true);
}

BENCHMARK(BM_ExportFloor)->Apply(configure);
BENCHMARK(BM_ExportFloorUnflushed)->Apply(configure);
BENCHMARK(BM_Export)->Apply(configure);
BENCHMARK(BM_BackupFloor)->Apply(configure);
BENCHMARK(BM_BackupFloorUnflushed)->Apply(configure);
BENCHMARK(BM_Backup)->Apply(configure);

const bool registered = (compare({"BM_Export", "BM_ExportFloor", 2.0}),
                         compare({"BM_Export", "BM_ExportFloorUnflushed", 0}),
                         compare({"BM_Backup", "BM_BackupFloor", 2.0}),
                         compare({"BM_Backup", "BM_BackupFloorUnflushed", 0}), true);

}  // namespace
