// The food search pass: what it finds, in what order, standing for which catalogue entry.
#include "food/FoodSearch.h"

#include <gtest/gtest.h>

#include <filesystem>

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
// spaces included; a name holding it twice is listed once.
TEST(FoodSearch, FindsTheQueryAnywhereIgnoringCaseOnly) {
    for (const char* query : {"ap", "AP", "aP"})
        EXPECT_EQ(find(query), (Hits{0, 1, 2, 3, 4, 0, 9})) << query;
    EXPECT_EQ(find("äPFEL, grün"), Hits{7});
    EXPECT_EQ(find("apfel"), Hits{});
    EXPECT_EQ(find(" pie"), (Hits{0, 0, 9}));
    EXPECT_EQ(find("pie "), (Hits{5, 9}));
    EXPECT_EQ(find(std::string_view("pie\0", 4)), Hits{});
    EXPECT_EQ(find("pa", {"papaya papaya"}), Hits{0});

    // The empty query is the idle state: the results stay as they were.
    Hits kept{5, 6};
    EXPECT_FALSE(FoodSearch(kNames).run("", kept));
    EXPECT_EQ(kept, (Hits{5, 6}));
}

// With the developer log on, the pass walks name by name and says so, and finds the same.
TEST(FoodSearch, LoggedPassFindsTheSameAndTellsWhere) {
    for (const char* query : {"ap", " pie", "zzz"}) {
        const Hits quiet = find(query);
        LogCapture log;
        EXPECT_EQ(find(query), quiet) << query;
    }
    LogCapture log;
    EXPECT_EQ(find("BRÛLÉE"), Hits{8});
    // Every name tested, and the hit's place in UTF-16 characters, as the platform counts them.
    std::vector<std::string> expected(kNames.begin(), kNames.begin() + 9);
    expected.insert(expected.end(), {"-----location--------6", "====================8", kNames[9]});
    EXPECT_EQ(log.lines(), expected);
}

TEST(FoodSearch, OneIndexServesEveryScreenUntilTheNamesChange) {
    std::vector<std::string> names = kNames;
    const auto first = FoodSearch::of(names);
    EXPECT_EQ(FoodSearch::of(std::vector<std::string>(kNames)), first);
    names[1] = "Grapefruit";
    Hits hits;
    FoodSearch::of(names)->run("fruit", hits);
    EXPECT_EQ(hits, Hits{1});
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

}  // namespace
