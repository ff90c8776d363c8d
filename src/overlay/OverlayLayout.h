#pragma once
// The status overlay's box: its size around a measured text, where it sits on screen for the
// device orientation and keyboard, how long a timed message stays, and its fixed looks.
// Text is measured by the caller; only the measured size comes in here.

#include <optional>
#include <string_view>

#include "store/Geometry.h"

namespace overlay {

using geometry::Point;
using geometry::Rect;
using geometry::Rgb;
using geometry::Size;

// Text is measured inside this box, its last visible line truncated.
inline constexpr Size kTextBounds{200, 300};

struct BoxLayout {
    Size box;
    Rect label;    // empty without text
    Point centre;  // of the spinner or the picture
};
// measuredText: the text's size within kTextBounds; nullopt when there is no text at all
// (an empty text still counts as text).
BoxLayout boxLayout(std::optional<Size> measuredText);

// Device orientations by their platform numbers; any other value is placed as portrait.
enum class Orientation : int {
    Portrait = 1,
    UpsideDown = 2,
    LandscapeRight = 3,
    LandscapeLeft = 4
};

// The box's rotation in radians, so that it reads upright for the user.
float rotationAngle(Orientation orientation);

// Centre of the box in portrait screen coordinates: middle of the space above the keyboard,
// as the user sees it. screen is the portrait size; keyboardHeight 0 when none is shown.
Point boxCentre(Orientation orientation, Size screen, float keyboardHeight);

enum class KeyboardEvent { WillShow, DidShow, WillHide, DidHide };
// The keyboard's height from a notification; its frame comes in portrait screen coordinates,
// so in landscape the visible height is the frame's width.
float keyboardHeight(KeyboardEvent event, Size keyboardFrame, Orientation orientation);

// Seconds a timed message stays: 0.5 s plus 0.04 s per UTF-16 code unit of its text.
double hideDelay(std::optional<std::string_view> text);

// The look and animation of the box.
inline constexpr double kAnimationSeconds = 0.15;
inline constexpr float kShowStartScale = 1.4f;
inline constexpr float kShowScaleStep = 1 / 1.4f;  // from the start scale back to 1
inline constexpr float kHideScale = 0.7f;
inline constexpr Rgb kSpinnerColour{126, 189, 38};
inline constexpr Size kPictureSize{28, 28};
inline constexpr float kCornerRadius = 10;
inline constexpr float kBackgroundAlpha = 0.1f;  // over black
inline constexpr float kLabelFontSize = 16;      // bold

}  // namespace overlay
