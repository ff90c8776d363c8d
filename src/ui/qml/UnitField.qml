import QtQuick
import CalorieCounter.Kit

// A number field with its unit beside it, in a card the width of the column: weights in the
// set-up, calories typed by hand.
Card {
    id: entry
    required property TextField field
    required property Label unitLabel

    width: parent.width
    height: 64 * Theme.unit

    KitTextField {
        anchors { left: parent.left; leftMargin: 10 * Theme.unit; right: unitText.left; rightMargin: 12 * Theme.unit }
        anchors.verticalCenter: parent.verticalCenter
        height: 46 * Theme.unit
        model: entry.field
        font.pixelSize: 24 * Theme.unit
        horizontalAlignment: TextInput.AlignRight
    }
    KitLabel {
        id: unitText
        anchors { right: parent.right; rightMargin: 16 * Theme.unit; verticalCenter: parent.verticalCenter }
        model: entry.unitLabel
        color: Theme.secondaryText
        font.pixelSize: 20 * Theme.unit
    }
}
