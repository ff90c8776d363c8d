// The activity catalogue: its shape and its deliberate oddities, and search over it.
#include <gtest/gtest.h>

#include "exercise/ExerciseCatalogue.h"
#include "support/Fixtures.h"

using exercise::ExerciseCatalogue;
using exercise::SearchResults;
using Texts = std::vector<std::string>;

namespace {

SearchResults searched(const ExerciseCatalogue& catalogue, std::string_view text) {
    SearchResults results;
    catalogue.search(text, results);
    return results;
}

}  // namespace

TEST(ExerciseCatalogue, ShapeAndOdditiesLetterForLetter) {
    const ExerciseCatalogue c;
    // FNV-1a over "letter:name|name...;text|text..." a section a line: any changed letter, value
    // or order changes it ("Horesback riding", "Running, 6 mph (10 min mile)" twice, all kept).
    const auto join = [](const Texts& texts) {
        std::string out;
        for (const std::string& t : texts) out += (out.empty() ? "" : "|") + t;
        return out;
    };
    uint64_t hash = 0xcbf29ce484222325;
    for (size_t s = 0; s < c.sections().size(); ++s)
        for (const unsigned char byte :
             c.sections()[s] + ":" + join(c.rows()[s]) + ";" + join(c.rows1()[s]) + "\n")
            hash = (hash ^ byte) * 0x100000001b3;
    EXPECT_EQ(hash, 0xdc9f2ba14fcbf55cu);
    EXPECT_EQ(c.sections(), (Texts{"A", "B", "C", "D", "F", "G", "H", "I", "J", "K",
                                   "L", "M", "O", "P", "R", "S", "T", "U", "V", "W"}));

    // The flat lists hold every name, and every text: C's two surplus ones ahead of section D.
    EXPECT_EQ(c.exerciseArray().size(), 125u);
    EXPECT_EQ(c.calorieArray().size(), 127u);
    EXPECT_EQ(c.calorieArray()[26], "817");
}

// A hit carries the per-hour text at its name's first position in the flat lists: through A to C
// the text the list shows; from D on, C's surplus shifts it two places back.
TEST(ExerciseCatalogue, SearchIgnoresCaseMapsTwinsToTheFirstAndTakesTheFlatListsText) {
    const ExerciseCatalogue c;
    EXPECT_EQ(searched(c, "Cycling, 16-19").searchCalorie, Texts{"745"});  // C's last, as listed
    EXPECT_EQ(searched(c, "Darts").searchCalorie, Texts{"817"});           // listed with 176
    EXPECT_EQ(searched(c, "Watering").searchCalorie, Texts{"211"});        // listed with 106
    const Texts running = {"Running, 6 mph (10 min mile)", "Running, general",
                           "Running, 6 mph (10 min mile)", "Running, stairs, up"};
    const SearchResults r = searched(c, "rUnNiNg");
    EXPECT_EQ(r.searchresult, running);
    EXPECT_EQ(r.searchresultID, running);
    EXPECT_EQ(r.searchCalorie, (Texts{"317", "563", "317", "563"}));  // the twin's is the first's
    EXPECT_EQ(r.indexOfTheObject, 85);  // "Running, stairs, up"

    // Anywhere in the name: the misspelt row is found through the "horse" at its end.
    const Texts horses = searched(c, "horse").searchresult;
    EXPECT_EQ(horses.size(), 8u);
    EXPECT_EQ(horses.at(1), "Horesback riding, saddling horse");
    // Full case folding: the long s folds to s, the Kelvin sign to k.
    EXPECT_EQ(searched(c, "\u017Fquash").searchresult, Texts{"Squash"});
    EXPECT_EQ(searched(c, "\u212Aayaking").searchresult, Texts{"Kayaking"});

    // Nothing found or typed: no rows, as each pass starts afresh; the last hit's position stays.
    SearchResults results = searched(c, "polo");
    EXPECT_EQ(results.searchresult, (Texts{"Polo", "Water polo"}));
    for (const char* nothing : {"zumba", "é", ""}) {
        c.search(nothing, results);
        EXPECT_TRUE(results.searchresult.empty() && results.searchresultID.empty() &&
                    results.searchCalorie.empty())
            << nothing;
        EXPECT_EQ(results.indexOfTheObject, 121);  // "Water polo"
    }
}

TEST(ExerciseCatalogue, SearchLogsEveryNameAndEachHitWhenTheLogIsOn) {
    const ExerciseCatalogue c;
    SearchResults results;
    LogCapture log;
    c.search("olo", results);
    ASSERT_EQ(log.lines().size(), 125u + 2 * 2);
    EXPECT_EQ(log.lines().front(), "Aerobics, low impact");
    EXPECT_EQ(std::vector(log.lines().begin() + 81, log.lines().begin() + 85),
              (Texts{"Polo", "-----location--------1", "====================81",
                     "Running, 6 mph (10 min mile)"}));
    EXPECT_EQ(log.count("-----location--------7"), 1u);  // "Water polo"
}
