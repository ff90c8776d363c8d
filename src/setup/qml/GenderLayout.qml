import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Setup

KitScreen {
    id: layout
    required property GenderScreen screen

    WizardStep {
        number: 4
        question: "Are you male or female?"
        hint: "The formula for your daily budget differs between the two."

        WizardChoice {
            tag: 0
            check: layout.screen.check1
            label: layout.screen.maleLbl
            onTouchUpInside: sender => layout.screen.genderBtn(sender)
        }
        WizardChoice {
            tag: 1
            check: layout.screen.check2
            label: layout.screen.femaleLbl
            onTouchUpInside: sender => layout.screen.genderBtn(sender)
        }
    }
}
