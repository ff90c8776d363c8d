#pragma once
// The letter index bar's arithmetic: the column of 27 letters ("#", then A to Z) in cells of
// equal height, the font size for a cell, and the way a touch becomes a section of the list.

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace indexbar {

inline constexpr std::array<std::string_view, 27> kLetters = {
    "#", "A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M",
    "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z"};

// The platform's "not found": what a touch yields when no letter up to it has a section.
inline constexpr int64_t kNotFound = std::numeric_limits<int64_t>::max();

// Height of one letter's cell in a bar of this height.
double letterHeight(double barHeight);
// 11 for cells lower than 14 points, else 12.
int fontSize(double letterHeight);

// The letter under a touch at y: |y| / letterHeight in double precision, rounded to single
// precision, then floored; a quotient that is not below 27 (a touch under the bar, or a bar
// without height) gives the last letter. The absolute value is deliberate: a drag above the bar
// mirrors into it. Always 0 to 26.
int letterAt(double y, double letterHeight);

// The section a letter stands for: the position in indexes of the letter itself, or else of the
// nearest letter above it that indexes holds; kNotFound when none from "#" down to it does.
int64_t sectionForLetter(int letter, const std::vector<std::string>& indexes);

}  // namespace indexbar
