pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Exercise

// The activity, the calories burned for the duration on the wheels, and the wheels: hours and
// minutes. Scrolls when the screen is too low for all of it.
KitScreen {
    id: layout
    required property BrowseExerciseScreen screen

    component Caption: Text {
        color: Theme.secondaryText
        font.family: Theme.fontFamily
        font.pixelSize: 14 * Theme.unit
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Flickable {
        anchors.fill: parent
        contentHeight: column.y + column.height + 20 * Theme.unit
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        ScreenColumn {
            id: column
            available: layout.width
            y: Theme.pad ? 96 : 22
            spacing: 6 * Theme.unit

            Text {
                text: "ACTIVITY"
                color: Theme.tint
                font.family: Theme.fontFamily
                font.pixelSize: 12 * Theme.unit
                font.weight: Font.DemiBold
                font.letterSpacing: 1
                Accessible.role: Accessible.StaticText; Accessible.name: "Activity"
            }
            KitLabel {
                width: column.width
                model: layout.screen.Foodname
                font.pixelSize: 23 * Theme.unit
                font.weight: Font.DemiBold
            }
            Caption {
                visible: text.length > 0
                text: layout.screen.perHourText
            }
            Item { width: 1; height: 10 * Theme.unit }

            Rectangle {
                width: column.width
                height: 84 * Theme.unit
                radius: 12 * Theme.unit
                color: Theme.card
                border.color: Theme.cardLine
                Column {
                    anchors.centerIn: parent
                    Caption {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: "Calories burned"
                    }
                    Row {
                        anchors.horizontalCenter: parent.horizontalCenter
                        spacing: 6 * Theme.unit
                        KitLabel {
                            id: burned
                            model: layout.screen.calorieAmt
                            color: Theme.tint
                            font.pixelSize: 40 * Theme.unit
                            font.weight: Font.Light
                        }
                        Caption {
                            anchors.baseline: burned.baseline
                            text: "Cal"
                            font.pixelSize: 17 * Theme.unit
                        }
                    }
                }
            }
            Item { width: 1; height: 6 * Theme.unit }

            Caption {
                width: column.width
                wrapMode: Text.WordWrap
                text: "Turn the wheels to the time you spent."
            }
            PickerCard { picker: layout.screen.selectPicker }
        }
    }
}
