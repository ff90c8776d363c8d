import QtQuick
import CalorieCounter.Kit

// A picker's wheels in a card the width of the column.
Card {
    id: card
    required property PickerView picker
    property real wheelHeight: 216 * Theme.unit

    width: parent.width
    height: wheels.height
    KitPickerView {
        id: wheels
        width: card.width
        height: card.wheelHeight
        model: card.picker
        font.pixelSize: 21 * Theme.unit
    }
}
