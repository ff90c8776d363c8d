import QtQuick
import "qrc:/ui"

// The food's name and portion, the calories of the amount chosen, and the wheels that choose it.
KitScreen {
    id: layout
    property bool pad: false
    readonly property real unit: pad ? 1.5 : 1

    Column {
        id: column
        width: layout.pad ? 520 : layout.width - 40
        x: (layout.width - width) / 2
        y: layout.pad ? 72 : 20
        spacing: 6 * layout.unit

        KitLabel {
            width: column.width
            model: layout.screen.Foodname
            maximumLineCount: 4
            elide: Text.ElideRight
            font.pixelSize: 20 * layout.unit
            font.weight: Font.DemiBold
        }
        KitLabel {
            width: column.width
            model: layout.screen.labelFoodUnit
            color: Theme.secondaryText
            font.pixelSize: 16 * layout.unit
        }
        Item { width: 1; height: 10 * layout.unit }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8 * layout.unit
            KitLabel {
                id: amount
                model: layout.screen.calorieAmt
                color: Theme.tint
                font.pixelSize: 44 * layout.unit
                font.weight: Font.Light
            }
            Text {
                anchors.baseline: amount.baseline
                text: "Cal"
                color: Theme.secondaryText
                font.family: Theme.fontFamily
                font.pixelSize: 18 * layout.unit
                Accessible.ignored: true
            }
        }
        Item { width: 1; height: 8 * layout.unit }
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
                // Lower on the phone, so a four-line name still leaves the caption above the tabs.
                height: layout.pad ? 324 : 190
                model: layout.screen.selectPicker
                font.pixelSize: 21 * layout.unit
            }
        }
        Text {
            width: column.width
            topPadding: 6 * layout.unit
            text: "Whole portions and eighths"
            color: Theme.secondaryText
            horizontalAlignment: Text.AlignHCenter
            font.family: Theme.fontFamily
            font.pixelSize: 13 * layout.unit
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
    }
}
