#pragma once
// The app-wide shared values. One record for the whole process, read and written directly by
// every screen on the main thread; the lists hold texts exactly as the database returned them.

#include <array>
#include <cstdint>
#include <string>
#include <vector>

class UserDefaults;
class TabBarController;

using ProfileRow = std::array<std::string, 2>;  // calorieBudget, startingDate
using DayRow = std::array<std::string, 4>;      // id, date, calorieConsumed, calorieBurned

struct AppState {
    // The process-wide record; created on first use and never freed.
    static AppState& shared();

    std::string databaseName;
    std::string databasePath;
    std::string lastSql;  // the statement most recently handed to SQLite; read by nothing
    UserDefaults* defaults = nullptr;
    bool isPad = false;

    std::vector<ProfileRow> profileRows;
    std::vector<std::string> foodNames;
    std::vector<std::string> foodCalories;
    std::vector<std::string> foodUnits;
    std::vector<DayRow> dailyRows;
    std::vector<std::string> spareList;

    int32_t calorieBudgetValue = 0;
    int64_t todayIndex = 0;
    int64_t dayIndex = 0;
    TabBarController* tabBarController = nullptr;

    // The day shown by the Today and Log views.
    int32_t consumedValue = 0;
    int32_t burnedValue = 0;
    std::string shownDate;
    bool customEntryIsExercise = false;

    // The set-up wizard's answers; only the budget derived from them is saved.
    std::string measureUnit;  // "Metric", "Imperial", or empty before a choice
    float goalWeightValue = 0.0f;
    int32_t genderValue = 0;  // 0 male, 1 female
    int32_t heightCm = 0;
    int32_t heightFeet = 0;
    int32_t heightInches = 0;
};
