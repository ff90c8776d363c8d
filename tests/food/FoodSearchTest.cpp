// The shipped food catalogue, and the search pass over it: what it finds, in what order, standing
// for which catalogue entry.
#include "food/FoodSearch.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <optional>

#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"

namespace {

using Hits = std::vector<int32_t>;

const std::vector<std::string> kNames = {
    "Apple pie", "Grape", "CRAB APPLE", "Papaya", "Soap nuts", "Pie crust",
    "Apple pie",  // 6: a name seen before stands for its first entry
    "Äpfel, GRÜN", "Crème brûlée", "apple pie filling"};

Hits find(std::string_view query, const std::vector<std::string>& names = kNames) {
    Hits hits;
    EXPECT_TRUE(FoodSearch(names).run(query, hits)) << query;
    return hits;
}

// Letter case is ignored (beyond ASCII too), accents are not; the query is taken as it stands,
// spaces included; a name holding it twice is listed once. With the developer log on, the pass
// walks name by name instead, and must find the same.
TEST(FoodSearch, FindsTheQueryAnywhereIgnoringCaseOnly) {
    const std::pair<std::string_view, Hits> cases[] = {
        {"aP", {0, 1, 2, 3, 4, 0, 9}}, {"äPFEL, grün", {7}},  {"apfel", {}},
        {" pie", {0, 0, 9}},           {"pie ", {5, 9}},      {std::string_view("pie\0", 4), {}}};
    for (const bool logged : {false, true}) {
        std::optional<LogCapture> log;
        if (logged) log.emplace();
        for (const auto& [query, hits] : cases) EXPECT_EQ(find(query), hits) << query << logged;
        EXPECT_EQ(find("pa", {"papaya papaya"}), Hits{0}) << logged;
    }
    // The empty query is the idle state: the results stay as they were.
    Hits kept{5, 6};
    EXPECT_FALSE(FoodSearch(kNames).run("", kept));
    EXPECT_EQ(kept, (Hits{5, 6}));
}

// The shipped catalogue as the store reads it (its first row passed over) against SQLite's own
// case-insensitive match, short and long queries alike; result lists read the calories at hits.
TEST(FoodSearch, ShippedCatalogueAgreesWithSqlAndNeverFindsTheFirstRow) {
    TempDir dir;
    AppState state;
    state.databasePath = dir.file("food.db");
    std::filesystem::copy_file(FOOD_DB_PATH, state.databasePath);
    execSql(state.databasePath, "UPDATE food SET name = 'Zebra cake' WHERE id = 0");
    CalorieStore(state).readDataFromDatabaseFoodTable();
    const FoodSearch search(state.foodNames);
    Hits hits;
    for (const char* query :
         {"a", "Ap", "APPL", "chicken breast", "beverages, carbonated, cola", "zebra", "%"}) {
        search.run(query, hits);
        const std::string where =
            std::string(" FROM food WHERE id > 0 AND instr(lower(name), lower('") + query +
            "')) ORDER BY id";
        const auto sql = [&](const char* column) {
            return queryColumn(state.databasePath, ("SELECT " + (column + where)).c_str());
        };
        EXPECT_EQ(ResultList(state.foodNames, hits, "foodNames").texts(), sql("name")) << query;
        EXPECT_EQ(ResultList(state.foodCalories, hits, "foodCalories").texts(), sql("calories"));
    }
}

// The app takes each table's columns by position and passes over its first row; the tests that
// read plans in copies of this file check both.
TEST(FoodCatalogue, EveryFoodIsUsableUniqueAndAlphabetical) {
    // Whether there are about as many foods as the source has; then what is wrong: a food without
    // energy, unit or name, a name twice, a name out of order; last, the energy of the first
    // household measure, rounded to whole kcal.
    EXPECT_EQ(queryColumn(FOOD_DB_PATH,
                          "SELECT count(*) BETWEEN 8000 AND 9500 FROM food UNION ALL "
                          "SELECT count(*) FROM food WHERE id > 0 AND (typeof(calories) != "
                          "'integer' OR calories <= 0 OR unit = '' OR name = '') UNION ALL "
                          "SELECT count(*) - count(DISTINCT name) FROM food UNION ALL "
                          "SELECT count(*) FROM food a JOIN food b ON b.id = a.id + 1 "
                          "WHERE a.id > 0 AND lower(a.name) > lower(b.name) UNION ALL "
                          "SELECT calories || ' ' || unit FROM food WHERE name = 'Butter, salted'"),
              (std::vector<std::string>{"1", "0", "0", "0", "1628 1 cup (227 g)"}));
}

}  // namespace
