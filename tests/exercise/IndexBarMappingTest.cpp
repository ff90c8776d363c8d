// The index bar's arithmetic: cells and font, the letter under a touch, the section it gives.
#include <gtest/gtest.h>

#include "exercise/IndexBarMapping.h"

using namespace indexbar;

TEST(IndexBar, CellsAndFontSizeChangeAtFourteen) {
    EXPECT_DOUBLE_EQ(letterHeight(270), 10);
    EXPECT_DOUBLE_EQ(letterHeight(378), 14);
    EXPECT_EQ(std::vector({fontSize(10), fontSize(13.99), fontSize(14)}),
              std::vector({11, 11, 12}));
}

TEST(IndexBar, LetterUnderATouch) {
    const struct {
        double y, letterHeight;
        int letter;
    } cases[] = {
        {9.99, 10, 0},          {10, 10, 1},
        {-55, 10, 5},           // above the bar mirrors into it
        {29.999999999, 10, 3},  // the quotient rounds to 3.0f first
        {29.99, 10, 2},         // a float can tell this one apart
        {270, 10, 26},          {5000, 10, 26},  // everything below the bar is its last cell
        {0, 0, 26},                              // no height yet: 0 / 0,
        {12, -10, 0},                            // nor a negative one
    };
    for (const auto& c : cases)
        EXPECT_EQ(letterAt(c.y, c.letterHeight), c.letter) << c.y << " / " << c.letterHeight;
}

// The catalogue's letters are the bar's own test; here the walk's corners.
TEST(IndexBar, LetterToSectionWalksBackToTheFirstEqualTitle) {
    EXPECT_EQ(sectionForLetter(3, {"A", "C", "C"}), 1);  // "C": the first of two
    EXPECT_EQ(sectionForLetter(2, {"A", "C"}), 0);       // "B" falls back to "A"
    EXPECT_EQ(sectionForLetter(1, {"#", "B"}), 0);       // "A" falls back to "#"
    EXPECT_EQ(sectionForLetter(0, {"A", "#"}), 1);       // "#" is its own letter, not "A"'s
    EXPECT_EQ(sectionForLetter(26, {"Z"}), 0);
    EXPECT_EQ(sectionForLetter(1, {"B", "C"}), kNotFound);
    EXPECT_EQ(sectionForLetter(26, {}), kNotFound);
}
