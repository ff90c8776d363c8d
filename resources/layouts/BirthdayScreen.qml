import QtQuick
import QtQuick.Controls.Basic
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    WizardStep {
        id: step
        pad: layout.pad
        number: 6
        question: "When were you born?"
        hint: "Your age is the last thing your budget needs."

        Rectangle {
            width: parent.width
            height: picker.height
            radius: 12 * step.unit
            color: "white"
            border.width: 1
            border.color: Theme.barLine
            KitDatePicker {
                id: picker
                width: parent.width
                height: 216 * step.unit
                model: layout.screen.datePicker
                font.pixelSize: 20 * step.unit
            }
        }
        KitLabel {
            width: parent.width
            visible: text.length > 0
            model: layout.screen.dateLbl
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 17 * step.unit
        }
        Rectangle {
            width: parent.width
            height: 50 * step.unit
            radius: 12 * step.unit
            color: Theme.tint
            KitButton {
                anchors.fill: parent
                model.title: "Start my plan"
                model.titleColor: "white"
                font.pixelSize: 18 * step.unit
                font.weight: Font.DemiBold
                onTouchUpInside: sender => layout.screen.selectDate(sender)
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8 * step.unit
            visible: !layout.screen.animatedView.hidden
            BusyIndicator {
                width: 24 * step.unit
                height: width
                running: parent.visible
                Accessible.ignored: true  // the text beside it says what is going on
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: "Setting up your plan…"
                color: Theme.secondaryText
                font.family: Theme.fontFamily
                font.pixelSize: 14 * step.unit
                Accessible.role: Accessible.StaticText; Accessible.name: text
                Accessible.ignored: !visible || !enabled
            }
        }
    }

    // Hidden until the plan is being set up.
    Component.onCompleted: screen.animatedView.hidden = true
}
