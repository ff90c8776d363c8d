import QtQuick
import QtQuick.Controls.Basic

// One wheel of a picker: rows drawn by title, the chosen one in a band across the middle.
// settled() reports the row the wheel comes to rest on after the user turned it; a change of
// currentIndex from code reports nothing. A screen reader reads the wheel as its chosen title.
Tumbler {
    id: wheel
    property var titleAt: row => ""
    signal settled(int row)

    wrap: false
    visibleItemCount: 5
    font.family: Theme.fontFamily
    font.pixelSize: 21

    background: Item {
        Rectangle {
            width: parent.width
            height: wheel.availableHeight / wheel.visibleItemCount
            anchors.verticalCenter: parent.verticalCenter
            color: "#0F000000"
            Rectangle { width: parent.width; height: 1; color: Theme.barLine }
            Rectangle { width: parent.width; height: 1; anchors.bottom: parent.bottom; color: Theme.barLine }
        }
    }
    delegate: Text {
        required property int index
        text: wheel.titleAt(index)
        color: Theme.text
        font: wheel.font
        opacity: 1.0 - Math.abs(Tumbler.displacement) / (wheel.visibleItemCount / 2 + 0.5)
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    onMovingChanged: if (!moving) settled(currentIndex)

    // Puts row in the band at once: given only a new currentIndex, the wheel crawls there.
    function select(row) {
        currentIndex = row
        positionViewAtIndex(row, Tumbler.Center)
    }

    Accessible.role: Accessible.SpinBox
    Accessible.name: count > 0 && currentIndex >= 0 ? titleAt(currentIndex) : ""
}
