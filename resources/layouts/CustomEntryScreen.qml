import QtQuick
import "qrc:/ui"
import CalorieKit

// The prompt and the amount, in the set-up steps' card; the keyboard is up from the start.
KitScreen {
    id: layout
    property bool pad: false
    readonly property real unit: pad ? 1.5 : 1

    Column {
        id: column
        width: layout.pad ? 520 : layout.width - 40
        x: (layout.width - width) / 2
        y: layout.pad ? 96 : 26
        spacing: 14 * layout.unit

        KitLabel {
            width: column.width
            model: layout.screen.detailLbl
            font.pixelSize: 23 * layout.unit
            font.weight: Font.DemiBold
        }
        WeightEntry {
            unit: layout.unit
            field: layout.screen.calorieTxt
            unitLabel: Label { text: "Cal" }
        }
    }
}
