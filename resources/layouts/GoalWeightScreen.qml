import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    WizardStep {
        id: step
        pad: layout.pad
        number: 3
        question: "What would you like to weigh?"
        hint: "Your daily calorie budget is worked out for this weight."

        WeightEntry {
            unit: step.unit
            field: layout.screen.enterGWtTxt
            unitLabel: layout.screen.wtLbl
        }
    }
}
