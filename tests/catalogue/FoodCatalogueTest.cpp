// The shipped food.db. The app reads every table with `select *` and takes columns by position,
// so the layout and the placeholder rows matter as much as the foods.
#include <gtest/gtest.h>

#include <string>

#include "support/Fixtures.h"

namespace {

using Column = std::vector<std::string>;
Column query(const std::string& sql) { return queryColumn(FOOD_DB_PATH, sql.c_str()); }

TEST(FoodCatalogue, TablesColumnsAndPlaceholderRows) {
    EXPECT_EQ(query("SELECT name FROM sqlite_master ORDER BY name"),
              (Column{"dailyData", "food", "profileData"}));
    const auto columns = [](const char* table) {
        return query("SELECT name || ' ' || type || ' ' || pk FROM pragma_table_info('" +
                     std::string(table) + "')");
    };
    EXPECT_EQ(columns("profileData"),
              (Column{"id INTEGER 0", "calorieBudget TEXT 0", "startingDate TEXT 0"}));
    EXPECT_EQ(columns("food"),
              (Column{"id INTEGER 1", "calories INTEGER 0", "unit TEXT 0", "name TEXT 0"}));
    EXPECT_EQ(columns("dailyData"),
              (Column{"id INTEGER 0", "date TEXT 0", "calorieConsumed INTEGER 0",
                      "calorieBurned INTEGER 0"}));
    // The first row of each table is passed over when read; the live profile row is id 2.
    EXPECT_EQ(query("SELECT id || '|' || calorieBudget || '|' || startingDate FROM profileData"),
              (Column{"1|0|", "2|0|"}));
    EXPECT_EQ(query("SELECT id || '|' || calories || '|' || unit || '|' || name FROM food LIMIT 1"),
              Column{"0|0||"});
    EXPECT_EQ(query("SELECT id || '|' || date FROM dailyData"), Column{"-1|"});
}

TEST(FoodCatalogue, EveryFoodIsUsableUniqueAndAlphabetical) {
    const int foods = std::stoi(query("SELECT count(*) FROM food WHERE id > 0")[0]);
    EXPECT_TRUE(foods >= 8000 && foods <= 9500) << foods;
    // Each of these counts what is wrong: a food without energy, unit or name, a name twice, a
    // name out of order.
    EXPECT_EQ(query("SELECT count(*) FROM food WHERE id > 0 AND (typeof(calories) != 'integer' "
                    "OR calories <= 0 OR unit = '' OR name = '') UNION ALL "
                    "SELECT count(*) - count(DISTINCT name) FROM food UNION ALL "
                    "SELECT count(*) FROM food a JOIN food b ON b.id = a.id + 1 "
                    "WHERE a.id > 0 AND lower(a.name) > lower(b.name)"),
              (Column{"0", "0", "0"}));
    // The first household measure's energy, rounded to whole kcal.
    EXPECT_EQ(query("SELECT calories || ' ' || unit FROM food WHERE name = 'Butter, salted'"),
              Column{"1628 1 cup (227 g)"});
}

}  // namespace
