#pragma once
// Points, sizes, rectangles and colours for the core's layout arithmetic, in points; the screens
// turn them into Qt's types.

namespace geometry {

struct Point {
    float x = 0, y = 0;
    bool operator==(const Point&) const = default;
};
struct Size {
    float width = 0, height = 0;
    bool operator==(const Size&) const = default;
};
struct Rect {
    float x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Rect&) const = default;
};
struct Rgb {
    int red = 0, green = 0, blue = 0;
    bool operator==(const Rgb&) const = default;
};

}  // namespace geometry
