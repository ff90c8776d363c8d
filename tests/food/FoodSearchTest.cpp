// The food search pass: what it finds, in what order, standing for which catalogue entry.
#include "food/FoodSearch.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"

namespace {

using Hits = std::vector<int32_t>;

Hits find(const std::vector<std::string>& names, std::string_view query) {
    Hits hits;
    EXPECT_TRUE(FoodSearch(names).run(query, hits)) << query;
    return hits;
}

const std::vector<std::string> kNames = {
    "Apple pie",      // 0
    "Grape",          // 1
    "CRAB APPLE",     // 2
    "Papaya",         // 3
    "Soap nuts",      // 4
    "Pie crust",      // 5
    "Apple pie",      // 6: a name seen before stands for its first entry
    "Äpfel, GRÜN",    // 7
    "Crème brûlée",   // 8
    "apple pie filling",  // 9
};

TEST(FoodSearch, LetterCaseIgnoredAnywhereInTheNameInCatalogueOrder) {
    for (const char* query : {"ap", "AP", "aP"})
        EXPECT_EQ(find(kNames, query), (Hits{0, 1, 2, 3, 4, 0, 9})) << query;
    // Letters beyond ASCII fold too, but accents stay: "apfel" is not "Äpfel".
    EXPECT_EQ(find(kNames, "äPFEL, grün"), Hits{7});
    EXPECT_EQ(find(kNames, "apfel"), Hits{});
    EXPECT_EQ(find(kNames, "BRÛLÉE"), Hits{8});
    EXPECT_EQ(find(kNames, "zzz"), Hits{});
    // A name holding the query twice is listed once.
    EXPECT_EQ(find({"papaya papaya"}, "pa"), Hits{0});
}

TEST(FoodSearch, TheQueryIsTakenAsItStandsSpacesIncluded) {
    EXPECT_EQ(find(kNames, " pie"), (Hits{0, 0, 9}));
    EXPECT_EQ(find(kNames, "pie "), (Hits{5, 9}));
    EXPECT_EQ(find(kNames, std::string_view("pie\0", 4)), Hits{});
}

TEST(FoodSearch, TheEmptyQueryIsIdleAndLeavesTheResultsAlone) {
    Hits hits{5, 6};
    EXPECT_FALSE(FoodSearch(kNames).run("", hits));
    EXPECT_EQ(hits, (Hits{5, 6}));
    EXPECT_TRUE(FoodSearch(kNames).run("zzz", hits));
    EXPECT_TRUE(hits.empty());
}

// With the developer log on, the pass walks name by name and says so; it finds the same.
TEST(FoodSearch, LoggedPassFindsTheSameAndTellsWhere) {
    const FoodSearch search(kNames);
    for (const char* query : {"ap", " pie", "brûlée", "zzz"}) {
        Hits quiet;
        search.run(query, quiet);
        LogCapture log;
        Hits logged;
        search.run(query, logged);
        EXPECT_EQ(logged, quiet) << query;
        EXPECT_EQ(log.count("Pie crust"), 1u);
    }
    LogCapture log;
    Hits hits;
    search.run("BRÛLÉE", hits);
    // Every name tested, and the hit's place in the name's UTF-16 characters, as the platform
    // counts them.
    std::vector<std::string> expected(kNames.begin(), kNames.begin() + 9);
    expected.insert(expected.end(), {"-----location--------6", "====================8", kNames[9]});
    EXPECT_EQ(log.lines(), expected);
}

TEST(FoodSearch, OneIndexServesEveryScreenUntilTheNamesChange) {
    std::vector<std::string> names = kNames;
    const auto first = FoodSearch::of(names);
    EXPECT_EQ(FoodSearch::of(std::vector<std::string>(kNames)), first);
    names[1] = "Grapefruit";
    const auto changed = FoodSearch::of(names);
    EXPECT_NE(changed, first);
    Hits hits;
    changed->run("fruit", hits);
    EXPECT_EQ(hits, Hits{1});
}

// Result lists read the catalogue through the hits: the name, calories and unit of the first
// entry of each name.
TEST(FoodSearch, ResultListsReadTheCatalogueAtTheFirstEntry) {
    const std::vector<std::string> calories = {"300", "60", "40", "55", "0", "500", "999"};
    Hits hits;
    FoodSearch(kNames).run("apple pie", hits);
    EXPECT_EQ(hits, (Hits{0, 0, 9}));
    const ResultList shown(calories, hits, "foodCalories");
    EXPECT_EQ(shown.size(), 3u);
    EXPECT_EQ(shown.at(1), "300");
    // A calories list shorter than the names ends the program, naming the list.
    EXPECT_DEATH(shown.at(2), "foodCalories has no position 9 \\(it holds 7\\)");
}

// The whole shipped catalogue as the store reads it, against SQLite's own case-insensitive LIKE
// (the catalogue is ASCII). Its first row is passed over by the read, so a name put there is never
// found.
TEST(FoodSearch, ShippedCatalogueAgreesWithSqlAndNeverFindsTheFirstRow) {
    TempDir dir;
    AppState state;
    state.databasePath = dir.file("food.db");
    std::filesystem::copy_file(FOOD_DB_PATH, state.databasePath);
    execSql(state.databasePath, "UPDATE food SET name = 'Zebra cake' WHERE id = 0");
    CalorieStore(state).readDataFromDatabaseFoodTable();
    const FoodSearch search(state.foodNames);
    for (const char* query : {"a", "Ap", "APPL", "chicken breast", "beverages, carbonated, cola", "zebra", "%"}) {
        Hits hits;
        search.run(query, hits);
        std::vector<std::string> found;
        for (int32_t hit : hits) found.push_back(state.foodNames[hit]);
        const std::string sql = std::string("SELECT name FROM food WHERE id > 0 AND instr(lower(name), lower('") +
                                query + "')) ORDER BY id";
        EXPECT_EQ(found, queryColumn(state.databasePath, sql.c_str())) << query;
    }
}

}  // namespace
