import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    WizardStep {
        id: step
        pad: layout.pad
        number: 2
        question: "What do you weigh today?"
        hint: "Where your plan starts from."

        WeightEntry {
            unit: step.unit
            field: layout.screen.enterWtTxt
            unitLabel: layout.screen.wtLbl
        }
    }
}
