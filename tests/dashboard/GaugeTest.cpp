#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "dashboard/Gauge.h"
#include "support/Fixtures.h"

using namespace gauge;

namespace {

struct Marks {
    int32_t budget;
    const char *max, *mid, *top, *max1;
};

void expectMarks(const Marks& m) {
    SCOPED_TRACE(m.budget);
    for (const bool longFormats : {false, true}) {
        const ScaleMarks marks = scaleMarks(m.budget, 320, longFormats);
        EXPECT_EQ(marks.maxText, m.max);
        EXPECT_EQ(marks.midText, m.mid);
        EXPECT_EQ(marks.topText, m.top);
        EXPECT_EQ(marks.max1Text, m.max1);
    }
}

}  // namespace

TEST(Gauge, CalculateLengthIsAPowerOfTenCappedToInt32) {
    EXPECT_EQ(calculateLength(std::numeric_limits<int>::min()), 1);
    EXPECT_EQ(calculateLength(1), 1);
    EXPECT_EQ(calculateLength(4), 1000);
    EXPECT_EQ(calculateLength(10), 1000000000);
    EXPECT_EQ(calculateLength(11), 1000000000);
    EXPECT_EQ(calculateLength(std::numeric_limits<int>::max()), 1000000000);
}

TEST(Gauge, MarksRoundUpToTheLeadingDigit) {
    expectMarks({1850, "2000", "1000", "3000", "1500"});
    expectMarks({2400, "3000", "2000", "4000", "2000"});
    expectMarks({999, "1000", "500", "1500", "750"});
    expectMarks({0, "1", "1", "1", "0"});
    expectMarks({1000, "2000", "600", "3400", "1700"});
}

// The minus sign counts as a digit, so a negative budget gets a unit ten times too large.
TEST(Gauge, NegativeAndHugeBudgetsGiveDefinedMarks) {
    expectMarks({-138, "1000", "100", "1900", "950"});
    expectMarks({-1, "10", "1", "19", "9"});
    // Marks beyond int32 hold at its limit instead of wrapping.
    expectMarks({std::numeric_limits<int32_t>::max(), "2147483647", "2000000000", "2147483647",
                 "1073741823"});
    expectMarks({1000000000, "2000000000", "600000000", "2147483647", "1073741823"});
    expectMarks(
        {std::numeric_limits<int32_t>::min(), "-1000000000", "0", "-2000000000", "-1000000000"});
    expectMarks({-1000000000, "0", "1000000000", "-1000000000", "-500000000"});
}

TEST(Gauge, ScaleAndLogLinesFor1850) {
    LogCapture log;
    const ScaleMarks phone = scaleMarks(1850, todayGeometry(false).width);
    EXPECT_FLOAT_EQ(phone.caloriesPerPoint, 9.375f);
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"1000", "100", "============ 1850", "1000"}));

    EXPECT_FLOAT_EQ(scaleMarks(1850, todayGeometry(true).width).caloriesPerPoint, 3.90625f);
    EXPECT_NEAR(barLength(925, phone.caloriesPerPoint), 98.667f, 0.001f);

    const BudgetLine line = budgetLine(1850, phone.caloriesPerPoint, todayGeometry(false));
    EXPECT_NEAR(line.x, 197.333f, 0.001f);
    EXPECT_EQ(line.y1, 96);
    EXPECT_EQ(line.y2, 145);
    EXPECT_EQ(line.titleFrame, (Rect{line.x - 39, 134, 57, 17}));
    EXPECT_EQ(line.valueFrame, (Rect{line.x + 5, 134, 57, 17}));
    EXPECT_EQ(line.valueText, "1850");

    const BudgetLine onLog = budgetLine(1850, phone.caloriesPerPoint, logGeometry(false));
    EXPECT_EQ(onLog.titleFrame.y, 197);
    EXPECT_EQ(onLog.valueFrame.x, line.valueFrame.x);
}

TEST(Gauge, DegenerateScalesDrawNothing) {
    const ScaleMarks noWidth = scaleMarks(1850, 0);
    EXPECT_EQ(noWidth.caloriesPerPoint, 0);
    EXPECT_EQ(barLength(500, noWidth.caloriesPerPoint), 0);
    EXPECT_EQ(budgetLine(1850, noWidth.caloriesPerPoint, todayGeometry(false)).x, 0);

    // At the limit the budget line sits at the gauge's right end.
    const ScaleMarks huge = scaleMarks(std::numeric_limits<int32_t>::max(), 320);
    EXPECT_NEAR(
        budgetLine(std::numeric_limits<int32_t>::max(), huge.caloriesPerPoint, todayGeometry(false))
            .x,
        320, 0.01);
}

// The budget line must stick out of the bar above and below on every screen.
TEST(Gauge, GeometryOfBothScreensAndIdioms) {
    for (const bool isPad : {false, true}) {
        for (const GaugeGeometry& g : {todayGeometry(isPad), logGeometry(isPad)}) {
            SCOPED_TRACE(isPad);
            EXPECT_EQ(g.width, isPad ? 768 : 320);
            EXPECT_LT(g.budgetLineY1, g.barCentreY - g.barThickness / 2);
            EXPECT_GT(g.budgetLineY2, g.barCentreY + g.barThickness / 2);
            EXPECT_EQ(g.barColour, (Rgb{46, 139, 87}));
            EXPECT_EQ(g.budgetLineColour, (Rgb{218, 165, 32}));
        }
    }
}
