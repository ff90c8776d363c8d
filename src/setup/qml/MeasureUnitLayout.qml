import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Setup

KitScreen {
    id: layout
    required property MeasureUnitScreen screen

    WizardStep {
        number: 1
        question: "Which units do you use?"
        hint: "Your weights and height are asked in these units."

        WizardChoice {
            title: "Metric"
            detail: "Kilograms and centimetres"
            tag: 0
            check: layout.screen.check1
            onTouchUpInside: sender => layout.screen.selectunit(sender)
        }
        WizardChoice {
            title: "Imperial"
            detail: "Pounds, feet and inches"
            tag: 1
            check: layout.screen.check2
            onTouchUpInside: sender => layout.screen.selectunit(sender)
        }
    }
}
