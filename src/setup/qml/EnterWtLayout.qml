import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Setup

KitScreen {
    id: layout
    required property EnterWtScreen screen

    WeightStep {
        number: 2
        question: "What do you weigh today?"
        hint: "Where your plan starts from."
        field: layout.screen.enterWtTxt
        unitLabel: layout.screen.wtLbl
    }
}
