// The status overlay's box: its size around the text, and how long a timed message stays.
#include <gtest/gtest.h>

#include <optional>

#include "overlay/OverlayLayout.h"

using namespace overlay;

// Below 76 points of text the box keeps its minimum width, the label spanning it to centre the
// text; text past the measuring box is held to it.
TEST(OverlayLayout, BoxSizeFollowsTheText) {
    struct Case { std::optional<Size> text; Size box; Rect label; Point centre; };
    for (const Case& c : {Case{std::nullopt, {100, 100}, {}, {50, 50}},
                          Case{Size{50, 20}, {100, 100}, {0, 66, 100, 20}, {50, 36}},
                          Case{Size{76, 20}, {100, 100}, {12, 66, 76, 20}, {50, 36}},
                          Case{Size{77, 20}, {101, 100}, {12, 66, 77, 20}, {50.5, 36}},
                          Case{Size{500, 900}, {224, 380}, {12, 66, 200, 300}, {112, 36}}}) {
        SCOPED_TRACE(c.text ? c.text->width : -1);
        const BoxLayout layout = boxLayout(c.text);
        EXPECT_EQ(std::tuple(layout.box, layout.label, layout.centre),
                  std::tuple(c.box, c.label, c.centre));
    }
}

TEST(OverlayLayout, HideDelayCountsUtf16Units) {
    EXPECT_DOUBLE_EQ(hideDelay(std::nullopt), 0.5);
    EXPECT_DOUBLE_EQ(hideDelay("Saved meal"), 0.9);
    EXPECT_DOUBLE_EQ(hideDelay("\u00e9"), 0.54);         // two bytes, one unit
    EXPECT_DOUBLE_EQ(hideDelay("ok \U0001F44D"), 0.70);  // a surrogate pair counts two
}
