#pragma once
// The built-in catalogue of 125 activities with their calories burned per hour, under 20 section
// letters, and its search by part of a name. Fixed data, built afresh for every exercise list and
// never stored. Per-hour values are decimal texts ("352"), turned into numbers only by the
// duration screen.
//
// Section C holds ten per-hour texts for its eight names. The list pairs each name with its own
// section's texts, so the two surplus ones are never shown; but they do stand in calorieArray,
// and search takes a hit's value from calorieArray at the name's position in exerciseArray. From
// section D on, a name found by search therefore carries the value two places earlier than the
// one the list shows beside it. Both values are the product's: keep them.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace exercise {

// What one search pass found, in catalogue order. For each hit, i is the first position in
// exerciseArray of a name equal to the one that matched.
struct SearchResults {
    std::vector<std::string> searchresult;    // the names that matched
    std::vector<std::string> searchresultID;  // exerciseArray[i]: what the list shows and counts
    std::vector<std::string> searchCalorie;   // calorieArray[i]: the per-hour text a pick passes on
    int64_t indexOfTheObject = 0;             // i of the last hit; a pass without hits leaves it
};

class ExerciseCatalogue {
public:
    // Builds every list, and folds the names' case once for the searches to come.
    ExerciseCatalogue();

    // The 20 section letters: A to W without E, N and Q.
    const std::vector<std::string>& sections() const { return sections_; }
    // rows()[s]: the activity names of section s, in the catalogue's order (not alphabetical).
    const std::vector<std::vector<std::string>>& rows() const { return rows_; }
    // rows1()[s][r]: the per-hour text of rows()[s][r]; section C has two more than it has names.
    const std::vector<std::vector<std::string>>& rows1() const { return rows1_; }
    // Every name, section by section (125; "Running, 6 mph (10 min mile)" twice).
    const std::vector<std::string>& exerciseArray() const { return exerciseArray_; }
    // Every per-hour text, section by section, section C's surplus included (127).
    const std::vector<std::string>& calorieArray() const { return calorieArray_; }

    // One search pass: empties the three lists of results and fills them with every name that
    // contains text, ignoring case (full Unicode case folding, no other folding, anywhere in the
    // name). An empty text matches nothing. With the developer log on, every name tested, the
    // place of each match and each hit's first position are logged.
    void search(std::string_view text, SearchResults& results) const;

private:
    std::vector<std::string> sections_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<std::vector<std::string>> rows1_;
    std::vector<std::string> exerciseArray_;
    std::vector<std::string> calorieArray_;
    // Per position of exerciseArray: the name case-folded, and the first position of its name.
    std::vector<std::string> folded_;
    std::vector<size_t> firstIndex_;
};

}  // namespace exercise
