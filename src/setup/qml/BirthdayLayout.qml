import QtQuick
import QtQuick.Controls.Basic as T
import CalorieCounter.Kit
import CalorieCounter.Setup

KitScreen {
    id: layout
    required property BirthdayScreen screen

    WizardStep {
        number: 6
        question: "When were you born?"
        hint: "Your age is the last thing your budget needs."

        Card {
            width: parent.width
            height: picker.height
            KitDatePicker {
                id: picker
                width: parent.width
                height: 216 * Theme.unit
                model: layout.screen.datePicker
                font.pixelSize: 20 * Theme.unit
            }
        }
        KitLabel {
            width: parent.width
            visible: text.length > 0
            model: layout.screen.dateLbl
            horizontalAlignment: Text.AlignHCenter
            font.pixelSize: 17 * Theme.unit
        }
        Rectangle {
            width: parent.width
            height: 50 * Theme.unit
            radius: 12 * Theme.unit
            color: Theme.tint
            KitButton {
                anchors.fill: parent
                model.title: "Start my plan"
                model.titleColor: Theme.onTint
                font.pixelSize: 18 * Theme.unit
                font.weight: Font.DemiBold
                onTouchUpInside: sender => layout.screen.selectDate(sender)
            }
        }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8 * Theme.unit
            visible: !layout.screen.animatedView.hidden
            T.BusyIndicator {
                width: 24 * Theme.unit
                height: width
                running: parent.visible
                Accessible.ignored: true  // the text beside it says what is going on
            }
            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: "Setting up your plan…"
                color: Theme.secondaryText
                font.family: Theme.fontFamily
                font.pixelSize: 14 * Theme.unit
                Accessible.role: Accessible.StaticText; Accessible.name: text
                Accessible.ignored: !visible || !enabled
            }
        }
    }
}
