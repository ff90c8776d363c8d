import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Food

// The prompt and the amount, in the set-up steps' card; the keyboard is up from the start.
KitScreen {
    id: layout
    required property CustomEntryScreen screen

    ScreenColumn {
        id: column
        available: layout.width
        y: Theme.pad ? 96 : 26
        spacing: 14 * Theme.unit

        KitLabel {
            width: column.width
            model: layout.screen.detailLbl
            font.pixelSize: 23 * Theme.unit
            font.weight: Font.DemiBold
        }
        UnitField {
            field: layout.screen.calorieTxt
            unitLabel: Label { text: "Cal" }
        }
    }
}
