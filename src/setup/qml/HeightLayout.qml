import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Setup

KitScreen {
    id: layout
    required property HeightScreen screen

    WizardStep {
        number: 5
        question: "How tall are you?"
        hint: "Turn the wheels to your height."

        KitLabel {
            width: parent.width
            height: 34 * Theme.unit
            model: layout.screen.htLbl
            color: Theme.tint
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 26 * Theme.unit
            font.weight: Font.DemiBold
        }
        PickerCard { picker: layout.screen.selectPicker }
    }
}
