import QtQuick
import "qrc:/ui"
import CalorieKit

// A weight field with its unit beside it, in a white box the width of the step.
Rectangle {
    id: entry
    property real unit: 1
    required property TextField field
    required property Label unitLabel

    width: parent.width
    height: 64 * unit
    radius: 12 * unit
    color: "white"
    border.width: 1
    border.color: Theme.barLine

    KitTextField {
        anchors { left: parent.left; leftMargin: 10 * entry.unit; right: unitText.left; rightMargin: 12 * entry.unit }
        anchors.verticalCenter: parent.verticalCenter
        height: 46 * entry.unit
        model: entry.field
        font.pixelSize: 24 * entry.unit
        horizontalAlignment: TextInput.AlignRight
        inputMethodHints: Qt.ImhFormattedNumbersOnly
    }
    KitLabel {
        id: unitText
        anchors { right: parent.right; rightMargin: 16 * entry.unit; verticalCenter: parent.verticalCenter }
        model: entry.unitLabel
        color: Theme.secondaryText
        font.pixelSize: 20 * entry.unit
    }
}
