// The status overlay's box: its size around the text, where it stands, and how long a timed
// message stays.
#include <gtest/gtest.h>

#include <numbers>
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

// Centred above the keyboard on the side the user sees as up; the keyboard's frame comes in
// portrait coordinates, so only the portrait orientations read its height.
TEST(OverlayLayout, RotationPlacementAndKeyboardPerOrientation) {
    constexpr float pi = std::numbers::pi_v<float>;
    const Size keyboard{162, 216};
    struct Case { Orientation orientation; float angle, keyboardHeight; Point centre; };
    for (const Case& c : {Case{Orientation::Portrait, 0, 216, {160, 132}},
                          Case{Orientation::UpsideDown, pi, 216, {160, 348}},
                          Case{Orientation::LandscapeRight, pi / 2, 162, {241, 240}},
                          Case{Orientation::LandscapeLeft, -pi / 2, 162, {79, 240}},
                          Case{static_cast<Orientation>(5), 0, 162, {160, 159}}}) {
        SCOPED_TRACE(static_cast<int>(c.orientation));
        EXPECT_FLOAT_EQ(rotationAngle(c.orientation), c.angle);
        EXPECT_EQ(boxCentre(c.orientation, Size{320, 480}, c.keyboardHeight), c.centre);
        for (const KeyboardEvent shown : {KeyboardEvent::WillShow, KeyboardEvent::DidShow})
            EXPECT_EQ(keyboardHeight(shown, keyboard, c.orientation), c.keyboardHeight);
        for (const KeyboardEvent hidden : {KeyboardEvent::WillHide, KeyboardEvent::DidHide})
            EXPECT_EQ(keyboardHeight(hidden, keyboard, c.orientation), 0);
    }
}

TEST(OverlayLayout, HideDelayCountsUtf16Units) {
    EXPECT_DOUBLE_EQ(hideDelay(std::nullopt), 0.5);
    EXPECT_DOUBLE_EQ(hideDelay("Saved meal"), 0.9);
    EXPECT_DOUBLE_EQ(hideDelay("\u00e9"), 0.54);         // two bytes, one unit
    EXPECT_DOUBLE_EQ(hideDelay("ok \U0001F44D"), 0.70);  // a surrogate pair counts two
}
