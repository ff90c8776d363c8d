import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Setup

KitScreen {
    id: layout
    required property GoalWeightScreen screen

    WeightStep {
        number: 3
        question: "What would you like to weigh?"
        hint: "Your daily calorie budget is worked out for this weight."
        field: layout.screen.enterGWtTxt
        unitLabel: layout.screen.wtLbl
    }
}
