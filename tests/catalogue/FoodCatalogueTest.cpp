// Integrity of the shipped food catalogue. The app reads every table with
// `select *` and takes columns by position, so layout and placeholder rows
// matter as much as the data itself.
#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using Rows = std::vector<std::vector<std::string>>;

class Db {
public:
    Db(const std::string& path, int flags) {
        if (sqlite3_open_v2(path.c_str(), &db_, flags, nullptr) != SQLITE_OK)
            ADD_FAILURE() << "cannot open " << path << ": " << sqlite3_errmsg(db_);
    }
    ~Db() { sqlite3_close(db_); }
    Db(const Db&) = delete;
    Db& operator=(const Db&) = delete;

    sqlite3* handle() const { return db_; }

    // Every value as text, NULL as "<null>", so rows compare with ==.
    Rows query(const std::string& sql) const {
        Rows rows;
        sqlite3_stmt* stmt = nullptr;
        if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &stmt, nullptr) != SQLITE_OK) {
            ADD_FAILURE() << sql << ": " << sqlite3_errmsg(db_);
            return rows;
        }
        while (sqlite3_step(stmt) == SQLITE_ROW) {
            auto& row = rows.emplace_back();
            for (int i = 0; i < sqlite3_column_count(stmt); ++i) {
                auto* text = sqlite3_column_text(stmt, i);
                row.emplace_back(text ? reinterpret_cast<const char*>(text) : "<null>");
            }
        }
        sqlite3_finalize(stmt);
        return rows;
    }
    std::string scalar(const std::string& sql) const {
        Rows rows = query(sql);
        return rows.empty() || rows[0].empty() ? "<none>" : rows[0][0];
    }
    void exec(const std::string& sql) const {
        char* error = nullptr;
        if (sqlite3_exec(db_, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK)
            ADD_FAILURE() << sql << ": " << (error ? error : "?");
        sqlite3_free(error);
    }

private:
    sqlite3* db_ = nullptr;
};

class FoodCatalogue : public ::testing::Test {
protected:
    Db db{FOOD_DB_PATH, SQLITE_OPEN_READONLY};
};

TEST_F(FoodCatalogue, HasExactlyTheThreeTablesWithColumnsInReadingOrder) {
    EXPECT_EQ(db.query("SELECT type, name FROM sqlite_master ORDER BY name"),
              (Rows{{"table", "dailyData"}, {"table", "food"}, {"table", "profileData"}}));
    const char* columns = "SELECT name, type, pk FROM pragma_table_info('";
    EXPECT_EQ(db.query(std::string(columns) + "profileData')"),
              (Rows{{"id", "INTEGER", "0"}, {"calorieBudget", "TEXT", "0"},
                    {"startingDate", "TEXT", "0"}}));
    EXPECT_EQ(db.query(std::string(columns) + "food')"),
              (Rows{{"id", "INTEGER", "1"}, {"calories", "INTEGER", "0"},
                    {"unit", "TEXT", "0"}, {"name", "TEXT", "0"}}));
    EXPECT_EQ(db.query(std::string(columns) + "dailyData')"),
              (Rows{{"id", "INTEGER", "0"}, {"date", "TEXT", "0"},
                    {"calorieConsumed", "INTEGER", "0"}, {"calorieBurned", "INTEGER", "0"}}));
}

TEST_F(FoodCatalogue, PlaceholderRowsComeFirst) {
    EXPECT_EQ(db.query("SELECT * FROM profileData"), (Rows{{"1", "0", ""}, {"2", "0", ""}}));
    EXPECT_EQ(db.scalar("SELECT typeof(calorieBudget) FROM profileData WHERE id = 2"), "text");
    EXPECT_EQ(db.query("SELECT * FROM food LIMIT 1"), (Rows{{"0", "0", "", ""}}));
    EXPECT_EQ(db.query("SELECT * FROM dailyData"), (Rows{{"-1", "", "0", "0"}}));
}

TEST_F(FoodCatalogue, EveryFoodIsUsableUniqueAndAlphabetical) {
    const int foods = std::stoi(db.scalar("SELECT count(*) FROM food WHERE id > 0"));
    EXPECT_GE(foods, 8000);
    EXPECT_LE(foods, 9500);
    EXPECT_EQ(db.scalar("SELECT max(id) FROM food"), std::to_string(foods)) << "ids have gaps";
    EXPECT_EQ(db.scalar("SELECT count(*) FROM food WHERE id > 0 AND (typeof(calories) != "
                        "'integer' OR calories <= 0 OR unit = '' OR name = '')"),
              "0");
    EXPECT_EQ(db.scalar("SELECT count(*) - count(DISTINCT name) FROM food"), "0");

    // Portion energy from the first household measure, rounded to whole kcal.
    EXPECT_EQ(db.query("SELECT calories, unit FROM food WHERE name = 'Butter, salted'"),
              (Rows{{"1628", "1 cup (227 g)"}}));

    Rows names = db.query("SELECT lower(name) FROM food WHERE id > 0 ORDER BY id");
    for (size_t i = 1; i < names.size(); ++i)
        ASSERT_LE(names[i - 1][0], names[i][0]) << "out of order at id " << i + 1;
}

// Removed even when an assertion ends the test early.
struct TempCopy {
    std::filesystem::path dir, file;
    TempCopy() {
        std::string name = (std::filesystem::temp_directory_path() / "food-db-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
        dir = name;
        file = dir / "food.db";
        std::filesystem::copy_file(FOOD_DB_PATH, file);
    }
    ~TempCopy() { std::filesystem::remove_all(dir); }
};

TEST(FoodCatalogueCopy, DailyDataIdsMatchStringKeysAndMayRepeat) {
    TempCopy copy;
    Db db{copy.file.string(), SQLITE_OPEN_READWRITE};
    // The app writes values in double quotes; they must stay string literals.
    sqlite3_db_config(db.handle(), SQLITE_DBCONFIG_DQS_DML, 1, nullptr);
    const std::string insert =
        R"(INSERT INTO  dailyData (date,id,calorieConsumed,calorieBurned) )"
        R"(VALUES ("Sunday November 15","5",0,0))";
    db.exec(insert);
    EXPECT_EQ(db.scalar("SELECT typeof(id) FROM dailyData WHERE rowid = last_insert_rowid()"),
              "integer");

    db.exec(R"(UPDATE dailyData SET "calorieConsumed"="250" WHERE id="5";)");
    EXPECT_EQ(sqlite3_changes(db.handle()), 1);
    EXPECT_EQ(db.query("SELECT calorieConsumed, typeof(calorieConsumed) FROM dailyData "
                       "WHERE id = 5"),
              (Rows{{"250", "integer"}}));

    db.exec(insert);
    EXPECT_EQ(db.scalar("SELECT count(*) FROM dailyData WHERE id = 5"), "2");
}

}  // namespace
