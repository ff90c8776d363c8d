// The budget gauge's arithmetic: scale marks, calories per point, the budget line, and each
// screen's fixed geometry.
#include <gtest/gtest.h>

#include <cstdint>

#include "dashboard/Gauge.h"

using namespace gauge;

// The marks max, mid, top and max1. Max and mid are rounded up to the leading digit's place
// (0 gives 1), where a minus sign counts as a digit and the place stops at 10^9; marks beyond
// int32 hold at its limit.
TEST(Gauge, MarksForOrdinaryNegativeAndHugeBudgets) {
    const std::pair<int32_t, std::vector<std::string>> cases[] = {
        {1850, {"2000", "1000", "3000", "1500"}},
        {999, {"1000", "500", "1500", "750"}},
        {0, {"1", "1", "1", "0"}},
        {-138, {"1000", "100", "1900", "950"}},
        {INT32_MAX, {"2147483647", "2000000000", "2147483647", "1073741823"}},
        {INT32_MIN, {"-1000000000", "0", "-2000000000", "-1000000000"}}};
    for (const auto& [budget, expected] : cases) {
        const ScaleMarks m = scaleMarks(budget, 320);
        EXPECT_EQ((std::vector{m.maxText, m.midText, m.topText, m.max1Text}), expected) << budget;
    }
}

TEST(Gauge, ScaleBudgetLineAndGeometryPerScreen) {
    const float phone = scaleMarks(1850, todayGeometry(false).width).caloriesPerPoint;
    EXPECT_FLOAT_EQ(phone, 9.375f);
    const BudgetLine line = budgetLine(1850, phone, todayGeometry(false));
    EXPECT_NEAR(line.x, 197.333f, 0.001f);
    EXPECT_EQ(std::tuple(line.y1, line.y2, line.valueText), std::tuple(96, 145, "1850"));
    EXPECT_EQ(std::pair(line.titleFrame, line.valueFrame),
              std::pair(Rect{line.x - 39, 134, 57, 17}, Rect{line.x + 5, 134, 57, 17}));
    EXPECT_EQ(budgetLine(1850, phone, logGeometry(false)).titleFrame.y, 197);
    // Each mark stands under the calories its text reads; a degenerate scale puts all at 0.
    EXPECT_DOUBLE_EQ(markPosition("1000", "3000", 320), 320.0 / 3);
    EXPECT_DOUBLE_EQ(markPosition("1", "0", 320), 0);
    // At the limit the budget line sits at the gauge's right end.
    const float huge = scaleMarks(INT32_MAX, 320).caloriesPerPoint;
    EXPECT_NEAR(budgetLine(INT32_MAX, huge, todayGeometry(false)).x, 320, 0.01);

    // Each screen's width per idiom, and the colours of bar and line.
    for (const bool isPad : {false, true})
        for (const GaugeGeometry& g : {todayGeometry(isPad), logGeometry(isPad)})
            EXPECT_EQ(std::tuple(g.width, g.barColour, g.budgetLineColour),
                      std::tuple(isPad ? 768 : 320, Rgb{46, 139, 87}, Rgb{218, 165, 32}));
}
