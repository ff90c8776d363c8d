pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic as T
import CalorieCounter.Kit

// Draws one wheel of a picker: rows by title, the chosen one in a band across the middle.
// select() from code puts a row in the band and reports nothing.
WheelItem {
    id: wheel
    property alias font: tumbler.font
    readonly property alias moving: tumbler.moving

    implicitWidth: tumbler.implicitWidth
    implicitHeight: tumbler.implicitHeight
    currentIndex: tumbler.currentIndex

    T.Tumbler {
        id: tumbler
        anchors.fill: parent
        model: wheel.source ? wheel.source.count : 0
        wrap: false
        visibleItemCount: wheel.pageRows
        focusPolicy: Qt.NoFocus
        font.family: Theme.fontFamily
        font.pixelSize: 21
        // Qt exposes a Tumbler as a bare filler whatever role it is given: the item around it is
        // the spin button.
        Accessible.ignored: true

        background: Item {
            Rectangle {
                width: parent.width
                height: tumbler.availableHeight / tumbler.visibleItemCount
                anchors.verticalCenter: parent.verticalCenter
                color: Theme.wheelBand
                Rectangle { width: parent.width; height: 1; color: Theme.barLine }
                Rectangle { width: parent.width; height: 1; anchors.bottom: parent.bottom; color: Theme.barLine }
            }
        }
        delegate: Text {
            required property int index
            text: wheel.titleAt(index)
            color: Theme.text
            font: tumbler.font
            opacity: 1.0 - Math.abs(T.Tumbler.displacement) / (tumbler.visibleItemCount / 2 + 0.5)
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }

        // A drag or flick is one turn, however many rows it passes.
        onMovingChanged: if (!moving) wheel.settled(currentIndex)
    }

    // Over the wheel, for the mouse wheel only: presses go through to the tumbler beneath.
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: event => wheel.scrollBy(event.angleDelta.y)
    }

    KitFocusRing { anchors.margins: 2 }

    Accessible.role: Accessible.SpinBox
    Accessible.ignored: !visible || !enabled || showsNothing
    onSelectRequested: row => select(row)

    // Puts row in the band at once: given only a new currentIndex, the wheel crawls there.
    function select(row: int) {
        tumbler.currentIndex = row
        tumbler.positionViewAtIndex(row, T.Tumbler.Center)
        // Before the wheel's first layout, positioning settles the band one row on.
        tumbler.currentIndex = row
    }
}
