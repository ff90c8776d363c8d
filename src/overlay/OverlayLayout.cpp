#include "overlay/OverlayLayout.h"

#include <algorithm>
#include <numbers>
#include <utility>

namespace overlay {

namespace {

constexpr float kMinimumSide = 100;
constexpr float kTextMargin = 12;  // left and right of the label
constexpr float kLabelTop = 66;    // below the spinner
constexpr float kBeyondText = 80;  // box height around the label: spinner above, margin below
constexpr float kCentreY = 36;

// Length of UTF-8 text in UTF-16 code units: one per code point, two above U+FFFF (a four-byte
// sequence). Stray continuation bytes count nothing.
size_t utf16Length(std::string_view text) {
    size_t units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte & 0xC0) != 0x80) units += byte >= 0xF0 ? 2 : 1;
    }
    return units;
}

}  // namespace

BoxLayout boxLayout(std::optional<Size> measuredText) {
    if (!measuredText)
        return {{kMinimumSide, kMinimumSide}, {}, {kMinimumSide / 2, kMinimumSide / 2}};
    // Measuring stays within the bounds; holding to them keeps the box at most 224 x 380 anyway.
    const float w = std::clamp(measuredText->width, 0.0f, kTextBounds.width);
    const float h = std::clamp(measuredText->height, 0.0f, kTextBounds.height);
    BoxLayout layout;
    if (w + 2 * kTextMargin < kMinimumSide) {
        layout.box.width = kMinimumSide;
        layout.label = {0, kLabelTop, kMinimumSide, h};  // centred text needs the full width
    } else {
        layout.box.width = w + 2 * kTextMargin;
        layout.label = {kTextMargin, kLabelTop, w, h};
    }
    layout.box.height = h + kBeyondText;
    layout.centre = {layout.box.width / 2, kCentreY};
    return layout;
}

float rotationAngle(Orientation orientation) {
    switch (orientation) {
        case Orientation::LandscapeRight:
            return std::numbers::pi_v<float> / 2;
        case Orientation::LandscapeLeft:
            return -std::numbers::pi_v<float> / 2;
        case Orientation::UpsideDown:
            return std::numbers::pi_v<float>;
        default:
            return 0;
    }
}

Point boxCentre(Orientation orientation, Size screen, float keyboardHeight) {
    const bool landscape =
        orientation == Orientation::LandscapeRight || orientation == Orientation::LandscapeLeft;
    float w = screen.width, h = screen.height;
    if (landscape) std::swap(w, h);
    // a: middle of the space above the keyboard from the near edge; b: the same from the far one.
    const float a = (h - keyboardHeight) / 2;
    const float b = h - a;
    switch (orientation) {
        case Orientation::UpsideDown:
            return {w / 2, b};
        case Orientation::LandscapeRight:
            return {b, w / 2};
        case Orientation::LandscapeLeft:
            return {a, w / 2};
        default:
            return {w / 2, a};
    }
}

float keyboardHeight(KeyboardEvent event, Size keyboardFrame, Orientation orientation) {
    if (event == KeyboardEvent::WillHide || event == KeyboardEvent::DidHide) return 0;
    // Only the two portrait orientations read the height; any other value reads the width.
    const bool portrait =
        orientation == Orientation::Portrait || orientation == Orientation::UpsideDown;
    return portrait ? keyboardFrame.height : keyboardFrame.width;
}

double hideDelay(std::optional<std::string_view> text) {
    const size_t units = text ? utf16Length(*text) : 0;
    return 0.04 * static_cast<double>(units) + 0.5;
}

}  // namespace overlay
