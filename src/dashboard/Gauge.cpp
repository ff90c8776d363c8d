#include "dashboard/Gauge.h"

#include <algorithm>
#include <limits>

#include "store/DevLog.h"
#include "store/Formatted.h"
#include "store/TextValue.h"

namespace gauge {

namespace {

// The marks are worked out in 64 bits and every value that becomes a label is held to int32's
// range: near INT32_MAX the rounded-up mark would not fit, and the gauge's end at the limit reads
// better than a wrapped negative number.
int32_t saturated(int64_t value) {
    return static_cast<int32_t>(std::clamp<int64_t>(value, std::numeric_limits<int32_t>::min(),
                                                    std::numeric_limits<int32_t>::max()));
}

// The number rounded up to the next step of its leading digit, e.g. 1850 -> 2000, 999 -> 1000.
// The sign counts as a character, so a negative number gets a unit ten times larger than its
// digits suggest; division truncates toward zero.
int64_t roundedUp(int32_t value) {
    const int32_t unit = calculateLength(static_cast<int>(formatted("%d", value).size()));
    return int64_t{unit} + int64_t{value / unit} * unit;
}

}  // namespace

int32_t calculateLength(int n) {
    // At most 10^9, the largest power of ten an int32 holds: "-2147483648" has 11 characters and
    // 10^10 would overflow. Capping keeps the unit a power of ten, so the marks stay round.
    int32_t length = 1;
    for (int i = 1; i < std::min(n, 10); ++i) length *= 10;
    DEVLOG("%i", length);
    return length;
}

ScaleMarks scaleMarks(int32_t budget, float gaugeWidth, bool longFormats) {
    const int32_t max = saturated(roundedUp(budget));
    const int32_t mid = saturated(roundedUp(budget / 2));

    ScaleMarks marks;
    marks.maxText = longFormats ? formatted("%li", long{max}) : formatted("%i", max);
    marks.midText = longFormats ? formatted("%li", long{mid}) : formatted("%i", mid);
    DEVLOG("============ %i", budget);
    DEVLOG("%i", saturated(int64_t{intValue(marks.maxText)} - intValue(marks.midText)));

    const int64_t top = 2 * int64_t{intValue(marks.maxText)} - intValue(marks.midText);
    marks.topText = formatted("%d", saturated(top));
    marks.max1Text = formatted("%ld", static_cast<long>(integerValue(marks.topText) / 2));

    // The top mark is never 0 for any int32 budget, so this is 0 only for a width of 0 or less.
    marks.caloriesPerPoint = gaugeWidth > 0 ? floatValue(marks.topText) / gaugeWidth : 0.0f;
    return marks;
}

double markPosition(const std::string& markText, const std::string& topText, double width) {
    const double top = floatValue(topText);
    return top > 0 ? floatValue(markText) / top * width : 0.0;
}

namespace {

constexpr Rgb kBarColour{46, 139, 87};
constexpr Rgb kBudgetLineColour{218, 165, 32};

}  // namespace

GaugeGeometry todayGeometry(bool isPad) {
    if (isPad) return {768, 200, 70, 162, 260, 2, kBarColour, kBudgetLineColour};
    return {320, 117, 38, 96, 145, 2, kBarColour, kBudgetLineColour};
}

GaugeGeometry logGeometry(bool isPad) {
    if (isPad) return {768, 263, 70, 225, 321, 2, kBarColour, kBudgetLineColour};
    return {320, 179, 38, 159, 208, 2, kBarColour, kBudgetLineColour};
}

// A scale of 0 calories per point has nothing to measure with: draw nothing rather than inf.
float barLength(float consumed, float caloriesPerPoint) {
    return caloriesPerPoint != 0 ? consumed / caloriesPerPoint : 0.0f;
}

BudgetLine budgetLine(int32_t budget, float caloriesPerPoint, const GaugeGeometry& geometry) {
    BudgetLine line;
    line.x = barLength(static_cast<float>(budget), caloriesPerPoint);
    line.y1 = geometry.budgetLineY1;
    line.y2 = geometry.budgetLineY2;
    line.titleFrame = {line.x - 39, line.y2 - 11, 57, 17};
    line.valueFrame = {line.x + 5, line.y2 - 11, 57, 17};
    line.valueText = formatted("%i", budget);
    return line;
}

}  // namespace gauge
