import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    WizardStep {
        id: step
        pad: layout.pad
        number: 1
        question: "Which units do you use?"
        hint: "Your weights and height are asked in these units."

        WizardChoice {
            unit: step.unit
            title: "Metric"
            detail: "Kilograms and centimetres"
            tag: 0
            check: layout.screen.check1
            onTouchUpInside: sender => layout.screen.selectunit(sender)
        }
        WizardChoice {
            unit: step.unit
            title: "Imperial"
            detail: "Pounds, feet and inches"
            tag: 1
            check: layout.screen.check2
            onTouchUpInside: sender => layout.screen.selectunit(sender)
        }
    }
}
