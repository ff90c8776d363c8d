// The activity catalogue and search over it, the index bar's letter under a touch, and the
// calories of a duration.
#include <gtest/gtest.h>

#include "exercise/Duration.h"
#include "exercise/ExerciseCatalogue.h"
#include "exercise/IndexBarMapping.h"

using namespace exercise;
using Texts = std::vector<std::string>;

// The sections, and C's two per-hour texts without a name, which its list never shows but the
// flat list of texts keeps.
TEST(ExerciseCatalogue, SectionsAndTheTextsWithoutAName) {
    const ExerciseCatalogue c;
    std::string letters;
    for (const std::string& section : c.sections()) letters += section;
    EXPECT_EQ(letters, "ABCDFGHIJKLMOPRSTUVW");
    EXPECT_EQ(std::tuple(c.rows()[2].size(), c.rows1()[2].size(), c.exerciseArray().size(),
                         c.calorieArray().size()),
              std::tuple(8u, 10u, 125u, 127u));
}

// A hit carries the per-hour text at its name's first position in the flat lists: through A to C
// the text the list shows; from D on, C's surplus shifts it two places back.
TEST(ExerciseCatalogue, SearchIgnoresCaseMapsTwinsToTheFirstAndTakesTheFlatListsText) {
    const ExerciseCatalogue c;
    const auto searched = [&c](std::string_view text) {
        SearchResults results;
        c.search(text, results);
        return results;
    };
    EXPECT_EQ(searched("Cycling, 16-19").searchCalorie, Texts{"745"});  // C's last, as listed
    EXPECT_EQ(searched("Darts").searchCalorie, Texts{"817"});           // listed with 176
    const Texts running = {"Running, 6 mph (10 min mile)", "Running, general",
                           "Running, 6 mph (10 min mile)", "Running, stairs, up"};
    const SearchResults r = searched("rUnNiNg");
    EXPECT_EQ(std::tuple(r.searchresult, r.searchresultID, r.indexOfTheObject),
              std::tuple(running, running, 85));                      // 85: "Running, stairs, up"
    EXPECT_EQ(r.searchCalorie, (Texts{"317", "563", "317", "563"}));  // the twin's is the first's
    // Full case folding: the Kelvin sign folds to k.
    EXPECT_EQ(searched("\u212Aayaking").searchresult, Texts{"Kayaking"});

    // Anywhere in the name. Nothing found or typed: no rows, as each pass starts afresh; the last
    // hit's position stays.
    SearchResults results = searched("olo");
    EXPECT_EQ(results.searchresult, (Texts{"Polo", "Water polo"}));
    for (const char* nothing : {"zumba", ""}) {
        c.search(nothing, results);
        EXPECT_EQ(std::tuple(results.searchresult.size(), results.searchresultID.size(),
                             results.searchCalorie.size(), results.indexOfTheObject),
                  std::tuple(0u, 0u, 0u, 121))  // 121: "Water polo"
            << nothing;
    }
}

// The bar's arithmetic where a touch cannot show it: the quotient rounds to float first, the font
// changes at a cell of 14, a bar not laid out yet has every touch past its end and a negative
// height none. Touches, presses and the sections they name: the SectionIndexBar tests.
TEST(IndexBar, LetterUnderATouchRoundsToFloatAndNeedsAHeight) {
    using namespace indexbar;
    EXPECT_EQ(std::pair(fontSize(13.99), fontSize(14)), std::pair(11, 12));
    EXPECT_EQ(letterAt(29.999999999, 10), 3);
    EXPECT_EQ(letterAt(29.99, 10), 2);
    EXPECT_EQ(letterAt(270, 10), 26);
    EXPECT_EQ(letterAt(0, 0), 26);
    EXPECT_EQ(letterAt(12, -10), 0);
    // Above "#" nothing is there to fall back on; past "Z" the last letter holds.
    EXPECT_EQ(sectionForLetter(-1, {"A"}), kNotFound);
    EXPECT_EQ(sectionForLetter(40, {"B", "Z"}), 1);
}

// Minutes count the per-hour value's sixtieth without its remainder; where the arithmetic runs
// out of room it wraps as the machine does, never trapping.
TEST(Duration, DropsTheSixtiethsRemainderAndWrapsInsteadOfOverflowing) {
    EXPECT_EQ(duration::hoursCalories(23, INT64_MAX), INT64_MAX - 22);
    EXPECT_EQ(duration::total(INT64_MAX, 1), INT64_MIN);
    EXPECT_EQ(duration::minutesCalories(59, -120), -118);  // a negative text divides toward zero
    EXPECT_EQ(duration::minutesCalories(45, 59), 0);       // under 60 an hour they count 0
    int32_t burned = INT32_MAX, consumed = INT32_MIN;
    duration::book(1, burned, consumed);
    EXPECT_EQ(std::pair(burned, consumed), std::pair(INT32_MIN, INT32_MAX));
}
