#pragma once
// The budget gauge of the Today and Log screens, minus the drawing: scale marks, the calories a
// point stands for, where the budget line goes and the fixed geometry of each screen.

#include <cstdint>
#include <string>

#include "store/Geometry.h"

namespace gauge {

using geometry::Rect;
using geometry::Rgb;

// 10^(n - 1), the rounding unit for a number of n characters; 1 when n <= 1.
int32_t calculateLength(int n);

// The label texts of the scale and the calories per point they imply. The numbers are read back
// from the texts, so a text is what decides the scale.
struct ScaleMarks {
    std::string maxText;   // "MaxValue": the budget rounded up to its leading digit
    std::string midText;   // "MidValue": the same for half the budget
    std::string topText;   // "ExtremeMaxValue": the right end of the gauge
    std::string max1Text;  // half the right end
    float caloriesPerPoint = 0;
};
// longFormats: the Log screen's "%li" for max and mid; the digits are the same either way.
ScaleMarks scaleMarks(int32_t budget, float gaugeWidth, bool longFormats = false);

struct GaugeGeometry {
    float width;
    float barCentreY;
    float barThickness;
    float budgetLineY1;
    float budgetLineY2;
    float budgetLineWidth;
    Rgb barColour;
    Rgb budgetLineColour;
};
GaugeGeometry todayGeometry(bool isPad);
GaugeGeometry logGeometry(bool isPad);

// Where a scale mark stands along a gauge of width: the calories its text reads at the scale the
// top mark's text sets; 0 on a degenerate scale.
double markPosition(const std::string& markText, const std::string& topText, double width);

// Length of the bar for the calories consumed; 0 on a degenerate scale.
float barLength(float consumed, float caloriesPerPoint);

// The vertical budget line and its two labels, "Budget" and the budget itself.
struct BudgetLine {
    float x;
    float y1, y2;
    Rect titleFrame;
    Rect valueFrame;
    std::string valueText;
};
BudgetLine budgetLine(int32_t budget, float caloriesPerPoint, const GaugeGeometry& geometry);

}  // namespace gauge
