#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <fstream>
#include <optional>

#include "FileFaults.h"
#include "store/PlanExport.h"
#include "support/Fixtures.h"

namespace {

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;

// RFC 4180 as a spreadsheet reads it: quoted fields may hold commas, doubled quotes and line
// breaks; records end with CRLF. A bare LF outside quotes fails the parse.
std::optional<Rows> parseCsv(const std::string& text) {
    Rows rows(1, Row(1));
    bool quoted = false;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i], next = i + 1 < text.size() ? text[i + 1] : '\0';
        std::string& field = rows.back().back();
        if (quoted && c == '"' && next == '"') {
            field += c;
            ++i;
        } else if (c == '"' && (quoted || field.empty())) {
            quoted = !quoted;
        } else if (quoted) {
            field += c;
        } else if (c == ',') {
            rows.back().emplace_back();
        } else if (c == '\r' && next == '\n') {
            rows.emplace_back(1);
            ++i;
        } else if (c == '\n' || c == '\r' || c == '"') {
            return std::nullopt;
        } else {
            field += c;
        }
    }
    if (quoted || rows.back() != Row(1)) return std::nullopt;  // no last CRLF
    rows.pop_back();
    return rows;
}

class PlanExportTest : public testing::Test {
protected:
    Rows exported() {
        const ExportResult result = exportPlan(database, csv);
        EXPECT_TRUE(result.ok()) << result.error;
        auto rows = parseCsv(bytesOf(csv));
        EXPECT_TRUE(rows);
        EXPECT_EQ(rows ? rows->size() : 0, static_cast<size_t>(result.days) + 1);
        return rows.value_or(Rows{});
    }

    TempDir dir;
    const std::string database = makePlan(dir.file("food.db"));
    const std::string csv = dir.file("plan.csv");
};

TEST_F(PlanExportTest, EveryDayComesOutWholeWhateverItsLabelHolds) {
    const ScopedTimeZone zone("Pacific/Honolulu");  // the plan's days begin a day earlier there
    execSql(database,
            "UPDATE dailyData SET date = 'Fri, 14 \"Nov\"', calorieConsumed = 2300, "
            "calorieBurned = 120 WHERE id = 0;"
            "UPDATE dailyData SET date = 'two' || char(13, 10) || 'lines' || char(10) || 'é',"
            " calorieConsumed = 900 WHERE id = 1;");
    const Rows rows = exported();
    ASSERT_EQ(rows.size(), 367u);
    EXPECT_EQ(rows[0], (Row{"day", "date", "label", "consumed", "burned", "budget", "remaining"}));
    EXPECT_EQ(rows[1], (Row{"1", "2025-11-13", "Fri, 14 \"Nov\"", "2300", "120", "1850", "-450"}));
    EXPECT_EQ(rows[2], (Row{"2", "2025-11-14", "two\r\nlines\né", "900", "0", "1850", "950"}));
    EXPECT_EQ(rows[366], (Row{"366", "2026-11-13",
                              queryJoined(database, "SELECT date FROM dailyData WHERE id = 365"),
                              "0", "0", "1850", "1850"}));
}

TEST_F(PlanExportTest, ExportsWhateverPlanTheFileHolds) {
    execSql(database,
            "UPDATE profileData SET startingDate = 'soon' WHERE id = 2;"
            "UPDATE dailyData SET calorieConsumed = 50 WHERE id = 3;");
    EXPECT_EQ(exported()[4], (Row{"4", "", "Monday November 17", "50", "0", "1850", "1800"}));

    damage(database, Damage::noProfile);
    EXPECT_EQ(exported()[4], (Row{"4", "", "Monday November 17", "50", "0", "", ""}));
    damage(database, Damage::noDays);
    EXPECT_EQ(exported().size(), 1u);
}

// Whole or absent: a failed export leaves no file of its own and an earlier one as it was.
TEST_F(PlanExportTest, AFailedExportSaysWhyAndLeavesNothingHalfWritten) {
    EXPECT_EQ(exportPlan(database, dir.file("gone/plan.csv")).error,
              "the folder " + dir.file("gone") + " does not exist");
    std::ofstream(csv) << "an earlier export";
    const auto before = snapshot(dir.path());
    // The file-size limit stands in for a full disk: writes past it fail with EFBIG.
    const int status = inChild([&] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit small{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &small);
        const std::string error = exportPlan(database, csv).error;
        return error == "the file has grown past the size this system allows" ? 0 : 1;
    });
    EXPECT_EQ(status, 0);
    EXPECT_EQ(snapshot(dir.path()), before);

    damage(database, Damage::randomBytes);
    EXPECT_EQ(exportPlan(database, csv).error, "the file is damaged: file is not a database");
    EXPECT_EQ(snapshot(dir.path()).at("plan.csv"), "an earlier export");
}

}  // namespace
