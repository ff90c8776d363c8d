import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Food

// The food's name and portion, the calories of the amount chosen, and the wheels that choose it.
KitScreen {
    id: layout
    required property FoodScreen screen

    ScreenColumn {
        id: column
        available: layout.width
        y: Theme.pad ? 72 : 20
        spacing: 6 * Theme.unit

        KitLabel {
            width: column.width
            model: layout.screen.Foodname
            maximumLineCount: 4
            elide: Text.ElideRight
            font.pixelSize: 20 * Theme.unit
            font.weight: Font.DemiBold
        }
        KitLabel {
            width: column.width
            model: layout.screen.labelFoodUnit
            color: Theme.secondaryText
            font.pixelSize: 16 * Theme.unit
        }
        Item { width: 1; height: 10 * Theme.unit }
        Row {
            anchors.horizontalCenter: parent.horizontalCenter
            spacing: 8 * Theme.unit
            KitLabel {
                id: amount
                model: layout.screen.calorieAmt
                color: Theme.tint
                font.pixelSize: 44 * Theme.unit
                font.weight: Font.Light
            }
            Text {
                anchors.baseline: amount.baseline
                text: "Cal"
                color: Theme.secondaryText
                font.family: Theme.fontFamily
                font.pixelSize: 18 * Theme.unit
                Accessible.ignored: true
            }
        }
        Item { width: 1; height: 8 * Theme.unit }
        // Lower on the phone, so a four-line name still leaves the caption above the tabs.
        PickerCard { picker: layout.screen.selectPicker; wheelHeight: Theme.pad ? 324 : 190 }
        Text {
            width: column.width
            topPadding: 6 * Theme.unit
            text: "Whole portions and eighths"
            color: Theme.secondaryText
            horizontalAlignment: Text.AlignHCenter
            font.family: Theme.fontFamily
            font.pixelSize: 13 * Theme.unit
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
    }
}
