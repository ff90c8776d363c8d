#include <gtest/gtest.h>

#include <numbers>
#include <optional>

#include "overlay/OverlayLayout.h"

using namespace overlay;

TEST(OverlayLayout, BoxSizeFollowsTheText) {
    const BoxLayout none = boxLayout(std::nullopt);
    EXPECT_EQ(none.box, (Size{100, 100}));
    EXPECT_EQ(none.label, Rect{});
    EXPECT_EQ(none.centre, (Point{50, 50}));

    // Short texts get the minimum width, the label spanning it to centre the text.
    const BoxLayout shortText = boxLayout(Size{50, 20});
    EXPECT_EQ(shortText.box, (Size{100, 100}));
    EXPECT_EQ(shortText.label, (Rect{0, 66, 100, 20}));
    EXPECT_EQ(shortText.centre, (Point{50, 36}));

    const BoxLayout atEdge = boxLayout(Size{76, 20});
    EXPECT_EQ(atEdge.box.width, 100);
    EXPECT_EQ(atEdge.label, (Rect{12, 66, 76, 20}));
    EXPECT_EQ(boxLayout(Size{77, 20}).box.width, 101);

    const BoxLayout longText = boxLayout(Size{200, 300});
    EXPECT_EQ(longText.box, (Size{224, 380}));
    EXPECT_EQ(longText.label, (Rect{12, 66, 200, 300}));
    EXPECT_EQ(longText.centre, (Point{112, 36}));
    EXPECT_EQ(boxLayout(Size{500, 900}).box, (Size{224, 380}));

    // An empty text is still text: its line height makes the box, not the square.
    const BoxLayout empty = boxLayout(Size{0, 19});
    EXPECT_EQ(empty.box, (Size{100, 99}));
    EXPECT_EQ(empty.centre, (Point{50, 36}));
}

TEST(OverlayLayout, RotationAndPlacementPerOrientation) {
    constexpr float pi = std::numbers::pi_v<float>;
    const Size screen{320, 480};
    struct Case {
        Orientation orientation;
        float angle;
        float keyboard;
        Point centre;
    };
    const Case cases[] = {
        {Orientation::Portrait, 0, 0, {160, 240}},
        {Orientation::Portrait, 0, 216, {160, 132}},
        {Orientation::UpsideDown, pi, 0, {160, 240}},
        {Orientation::UpsideDown, pi, 216, {160, 348}},
        {Orientation::LandscapeRight, pi / 2, 0, {160, 240}},
        {Orientation::LandscapeRight, pi / 2, 162, {241, 240}},
        {Orientation::LandscapeLeft, -pi / 2, 0, {160, 240}},
        {Orientation::LandscapeLeft, -pi / 2, 162, {79, 240}},
        {static_cast<Orientation>(5), 0, 216, {160, 132}},
        {static_cast<Orientation>(0), 0, 0, {160, 240}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(c.orientation) << " k=" << c.keyboard);
        EXPECT_FLOAT_EQ(rotationAngle(c.orientation), c.angle);
        EXPECT_EQ(boxCentre(c.orientation, screen, c.keyboard), c.centre);
    }
}

// The frame is in portrait coordinates: only the portrait orientations read its height.
TEST(OverlayLayout, KeyboardHeightFromNotification) {
    const Size frame{162, 216};
    EXPECT_EQ(keyboardHeight(KeyboardEvent::WillShow, frame, Orientation::Portrait), 216);
    EXPECT_EQ(keyboardHeight(KeyboardEvent::DidShow, frame, Orientation::UpsideDown), 216);
    EXPECT_EQ(keyboardHeight(KeyboardEvent::WillShow, frame, Orientation::LandscapeLeft), 162);
    EXPECT_EQ(keyboardHeight(KeyboardEvent::DidShow, frame, Orientation::LandscapeRight), 162);
    EXPECT_EQ(keyboardHeight(KeyboardEvent::DidShow, frame, static_cast<Orientation>(5)), 162);
    EXPECT_EQ(keyboardHeight(KeyboardEvent::WillHide, frame, Orientation::Portrait), 0);
    EXPECT_EQ(keyboardHeight(KeyboardEvent::DidHide, frame, Orientation::LandscapeLeft), 0);
}

TEST(OverlayLayout, HideDelayCountsUtf16Units) {
    EXPECT_DOUBLE_EQ(hideDelay(std::nullopt), 0.5);
    EXPECT_DOUBLE_EQ(hideDelay(""), 0.5);
    EXPECT_DOUBLE_EQ(hideDelay("Saved meal"), 0.9);
    EXPECT_DOUBLE_EQ(hideDelay("\u00e9"), 0.54);      // two bytes, one unit
    EXPECT_DOUBLE_EQ(hideDelay("\U0001F600"), 0.58);  // a surrogate pair
    EXPECT_DOUBLE_EQ(hideDelay("ok \U0001F44D"), 0.70);
}
