import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    WizardStep {
        id: step
        pad: layout.pad
        number: 4
        question: "Are you male or female?"
        hint: "The formula for your daily budget differs between the two."

        WizardChoice {
            unit: step.unit
            title: "Male"
            tag: 0
            check: layout.screen.check1
            label: layout.screen.maleLbl
            onTouchUpInside: sender => layout.screen.genderBtn(sender)
        }
        WizardChoice {
            unit: step.unit
            title: "Female"
            tag: 1
            check: layout.screen.check2
            label: layout.screen.femaleLbl
            onTouchUpInside: sender => layout.screen.genderBtn(sender)
        }
    }
}
