#include <gtest/gtest.h>

#include "store/AppState.h"
#include "store/DayIndex.h"
#include "support/Fixtures.h"

using namespace std::chrono_literals;

namespace {

class DayIndexTest : public testing::Test {
protected:
    void startAt(Instant start, std::string budget = "1850") {
        state.profileRows = {{budget, standardDescription(start)}};
    }
    AppState state;
    const Instant now = utc("2026-11-20 12:00:00");
};

TEST_F(DayIndexTest, CountsWholeDaysSinceTheStart) {
    startAt(now - 36h);
    LogCapture log;
    computeDayIndex(state, now);
    EXPECT_EQ(state.todayIndex, 1);
    EXPECT_EQ(state.dayIndex, 1);
    EXPECT_EQ(state.calorieBudgetValue, 1850);
    EXPECT_TRUE(log.contains("counterValue 1850"));
    EXPECT_TRUE(log.contains("2026-11-20 12:00:00 +0000 current   Start 2026-11-19 00:00:00 +0000"));
    EXPECT_TRUE(log.contains("1 1"));
}

TEST_F(DayIndexTest, LessThanADayAgoIsDayZero) {
    state.todayIndex = state.dayIndex = 7;
    startAt(now - 23h);
    LogCapture log;
    computeDayIndex(state, now);
    EXPECT_TRUE(log.contains("start is earlier than current"));
    EXPECT_TRUE(log.contains("0"));
    EXPECT_EQ(state.todayIndex, 0);
    EXPECT_EQ(state.dayIndex, 0);
}

TEST_F(DayIndexTest, FutureOrUnreadableStartsLeaveTheIndexes) {
    state.todayIndex = state.dayIndex = 3;
    for (const std::string& start : {standardDescription(now + 1h), std::string("soon"),
                                     std::string()}) {
        state.profileRows = {{"2400", start}};
        LogCapture log;
        computeDayIndex(state, now);
        EXPECT_EQ(state.todayIndex, 3) << start;
        EXPECT_EQ(state.dayIndex, 3) << start;
        EXPECT_FALSE(log.contains("start is earlier than current"));
        EXPECT_EQ(log.contains("dates are the same"), start != standardDescription(now + 1h));
    }
}

TEST_F(DayIndexTest, BudgetIsTheLeadingInteger) {
    startAt(now, "1850.5");
    computeDayIndex(state, now);
    EXPECT_EQ(state.calorieBudgetValue, 1850);
    startAt(now, "none");
    computeDayIndex(state, now);
    EXPECT_EQ(state.calorieBudgetValue, 0);
}

TEST(DayIndexDeathTest, AnEmptyProfileEndsTheProgramWithAMessage) {
    AppState state;
    EXPECT_DEATH(computeDayIndex(state, Clock::now()), "profileRows has no position 0");
}

}  // namespace
