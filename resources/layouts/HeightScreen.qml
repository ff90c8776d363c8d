import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    WizardStep {
        id: step
        pad: layout.pad
        number: 5
        question: "How tall are you?"
        hint: "Turn the wheels to your height."

        KitLabel {
            width: parent.width
            height: 34 * step.unit
            model: layout.screen.htLbl
            color: Theme.tint
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 26 * step.unit
            font.weight: Font.DemiBold
        }
        Rectangle {
            width: parent.width
            height: picker.height
            radius: 12 * step.unit
            color: "white"
            border.width: 1
            border.color: Theme.barLine
            KitPickerView {
                id: picker
                width: parent.width
                height: 216 * step.unit
                model: layout.screen.selectPicker
                font.pixelSize: 21 * step.unit
            }
        }
    }
}
