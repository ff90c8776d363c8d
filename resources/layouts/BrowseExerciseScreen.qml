import QtQuick
import "qrc:/ui"

// The activity, the calories burned for the duration on the wheels, and the wheels: hours and
// minutes. Scrolls when the screen is too low for all of it.
KitScreen {
    id: layout
    property bool pad: false
    // Metrics are phone points times this.
    readonly property real unit: pad ? 1.5 : 1

    component Caption: Text {
        color: Theme.secondaryText
        font.family: Theme.fontFamily
        font.pixelSize: 14 * layout.unit
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Flickable {
        anchors.fill: parent
        contentHeight: column.y + column.height + 20 * layout.unit
        boundsBehavior: Flickable.StopAtBounds
        clip: true

        Column {
            id: column
            width: layout.pad ? 520 : layout.width - 40
            x: (layout.width - width) / 2
            y: layout.pad ? 96 : 22
            spacing: 6 * layout.unit

            Text {
                text: "ACTIVITY"
                color: Theme.tint
                font.family: Theme.fontFamily
                font.pixelSize: 12 * layout.unit
                font.weight: Font.DemiBold
                font.letterSpacing: 1
                Accessible.role: Accessible.StaticText; Accessible.name: "Activity"
            }
            KitLabel {
                width: column.width
                model: layout.screen.Foodname
                font.pixelSize: 23 * layout.unit
                font.weight: Font.DemiBold
            }
            Caption {
                visible: layout.screen.item1 !== ""
                text: layout.screen.item1 + " Cal per hour"
            }
            Item { width: 1; height: 10 * layout.unit }

            Rectangle {
                width: column.width
                height: 84 * layout.unit
                radius: 12 * layout.unit
                color: "#D9FFFFFF"
                border.color: "#E0DBD4"
                Column {
                    anchors.centerIn: parent
                    Caption {
                        anchors.horizontalCenter: parent.horizontalCenter
                        text: "Calories burned"
                    }
                    Row {
                        anchors.horizontalCenter: parent.horizontalCenter
                        spacing: 6 * layout.unit
                        KitLabel {
                            model: layout.screen.calorieAmt
                            color: Theme.tint
                            font.pixelSize: 40 * layout.unit
                            font.weight: Font.Light
                        }
                        Caption {
                            anchors.baseline: parent.children[0].baseline
                            text: "Cal"
                            font.pixelSize: 17 * layout.unit
                        }
                    }
                }
            }
            Item { width: 1; height: 6 * layout.unit }

            Caption {
                width: column.width
                wrapMode: Text.WordWrap
                text: "Turn the wheels to the time you spent."
            }
            Rectangle {
                width: column.width
                height: picker.height
                radius: 12 * layout.unit
                color: "white"
                border.width: 1
                border.color: Theme.barLine
                KitPickerView {
                    id: picker
                    width: parent.width
                    height: 216 * layout.unit
                    model: layout.screen.selectPicker
                    font.pixelSize: 21 * layout.unit
                }
            }
        }
    }
}
