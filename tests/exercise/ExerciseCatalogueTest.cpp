// The activity catalogue: its shape and its deliberate oddities, and search over it.
#include <gtest/gtest.h>

#include <set>

#include "exercise/ExerciseCatalogue.h"
#include "support/Fixtures.h"

using exercise::ExerciseCatalogue;
using exercise::SearchResults;
using Texts = std::vector<std::string>;

namespace {

// FNV-1a over every section as "letter:name|name...;text|text...", one line each.
uint64_t fingerprint(const ExerciseCatalogue& c) {
    std::string all;
    for (size_t s = 0; s < c.sections().size(); ++s) {
        const auto join = [](const Texts& texts) {
            std::string out;
            for (const std::string& t : texts) out += (out.empty() ? "" : "|") + t;
            return out;
        };
        all += c.sections()[s] + ":" + join(c.rows()[s]) + ";" + join(c.rows1()[s]) + "\n";
    }
    uint64_t hash = 0xcbf29ce484222325;
    for (const unsigned char byte : all) hash = (hash ^ byte) * 0x100000001b3;
    return hash;
}

SearchResults searched(const ExerciseCatalogue& catalogue, std::string_view text) {
    SearchResults results;
    catalogue.search(text, results);
    return results;
}

}  // namespace

TEST(ExerciseCatalogue, ShapeAndOdditiesLetterForLetter) {
    const ExerciseCatalogue c;
    // Any changed letter, value or order anywhere changes this: "Horesback riding" as it is,
    // "Running, 6 mph (10 min mile)" twice, "Badminton" after "Ballroom dancing, fast".
    EXPECT_EQ(fingerprint(c), 0xdc9f2ba14fcbf55cu);
    EXPECT_EQ(c.sections(), (Texts{"A", "B", "C", "D", "F", "G", "H", "I", "J", "K",
                                   "L", "M", "O", "P", "R", "S", "T", "U", "V", "W"}));

    // Each name has its text, but C has two texts more than names; the flat lists hold them all.
    for (size_t s = 0; s < c.sections().size(); ++s)
        EXPECT_EQ(c.rows1()[s].size(), c.rows()[s].size() + (c.sections()[s] == "C" ? 2 : 0));
    EXPECT_EQ(c.exerciseArray().size(), 125u);
    EXPECT_EQ(c.calorieArray().size(), 127u);
    EXPECT_EQ(c.calorieArray()[26], "817");  // C's surplus, ahead of section D
    EXPECT_EQ(std::set<std::string>(c.exerciseArray().begin(), c.exerciseArray().end()).size(),
              124u);
}

// A hit carries the per-hour text at its name's first position in the flat lists. Through A to C
// that is the text the list shows; from D on, C's surplus shifts it two places back.
TEST(ExerciseCatalogue, SearchHitsCarryTheTextAtTheirNamesFirstPosition) {
    const ExerciseCatalogue c;
    int differing = 0;
    for (size_t s = 0; s < c.sections().size(); ++s) {
        for (size_t r = 0; r < c.rows()[s].size(); ++r) {
            const std::string& name = c.rows()[s][r];
            const SearchResults hit = searched(c, name);
            const auto at = std::find(hit.searchresult.begin(), hit.searchresult.end(), name);
            ASSERT_NE(at, hit.searchresult.end()) << name;
            const std::string& perHour = hit.searchCalorie[at - hit.searchresult.begin()];
            if (s <= 2) {
                EXPECT_EQ(perHour, c.rows1()[s][r]) << name;
            }
            differing += perHour != c.rows1()[s][r];
        }
    }
    EXPECT_EQ(differing, 87);

    EXPECT_EQ(searched(c, "Darts").searchCalorie, Texts{"817"});
    EXPECT_EQ(c.rows1()[3][0], "176");  // the same darts, picked from the list
}

TEST(ExerciseCatalogue, SearchIgnoresCaseKeepsOrderAndMapsTwinsToTheFirst) {
    const ExerciseCatalogue c;
    const Texts running = {"Running, 6 mph (10 min mile)", "Running, general",
                           "Running, 6 mph (10 min mile)", "Running, stairs, up"};
    for (const char* text : {"running", "RUNNING", "rUnNiNg"}) {
        const SearchResults r = searched(c, text);
        EXPECT_EQ(r.searchresult, running) << text;
        EXPECT_EQ(r.searchresultID, running);
        EXPECT_EQ(r.searchCalorie, (Texts{"317", "563", "317", "563"}));
        EXPECT_EQ(r.indexOfTheObject, 85);  // "Running, stairs, up"
    }

    // Anywhere in the name: the misspelt row is found through the "horse" at its end.
    EXPECT_EQ(searched(c, "horse").searchresult,
              (Texts{"Horse Riding, general", "Horesback riding, saddling horse",
                     "Horseback riding, grooming horse", "Horseback riding, trotting",
                     "Horseback riding, walking", "Horse racing, galloping",
                     "Horse grooming, moderate", "Horseshoe pitching"}));
    // Full case folding: the long s folds to s, the Kelvin sign to k.
    EXPECT_EQ(searched(c, "\u017Fquash").searchresult, Texts{"Squash"});
    EXPECT_EQ(searched(c, "\u212Aayaking").searchresult, Texts{"Kayaking"});

    // Nothing found and nothing typed both give no rows; each pass starts afresh, and the last
    // hit's position stays until another hit.
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
