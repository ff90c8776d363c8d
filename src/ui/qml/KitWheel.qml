pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.Basic as T
import CalorieCounter.Kit

// One wheel of a picker: rows drawn by title, the chosen one in a band across the middle.
// A user's turn, however it is made, ends in one settled(row): a drag or flick when the wheel
// comes to rest; a notch of the mouse wheel, an arrow or page key, or assistive technology's
// increase, decrease or new value at once, as each of those places the row without gliding.
// select() from code reports nothing. Assistive technology sees a spin button whose value is the
// number on the wheel; a wheel of words counts its rows from 1 and gives the word as description.
Item {
    id: wheel
    // Null once its picker has made new wheels, until this one goes.
    required property Wheel source
    property alias font: tumbler.font
    readonly property alias count: tumbler.count
    readonly property alias currentIndex: tumbler.currentIndex
    readonly property alias moving: tumbler.moving
    readonly property string title: hasRow(currentIndex) ? titleAt(currentIndex) : ""
    signal settled(int row)

    // Read, and value also written, by assistive technology under these names.
    property real value: 0
    readonly property real minimumValue: count > 0 ? numberAt(0) : 0
    readonly property real maximumValue: count > 0 ? numberAt(count - 1) : 0
    readonly property real stepSize: 1

    implicitWidth: tumbler.implicitWidth
    implicitHeight: tumbler.implicitHeight
    activeFocusOnTab: true

    T.Tumbler {
        id: tumbler
        anchors.fill: parent
        model: wheel.source ? wheel.source.count : 0
        wrap: false
        visibleItemCount: 5
        focusPolicy: Qt.NoFocus
        font.family: Theme.fontFamily
        font.pixelSize: 21
        // Qt exposes a Tumbler as a bare filler whatever role it is given: the Item around it is
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
        onCurrentIndexChanged: wheel.showValue()
        onCountChanged: wheel.showValue()
    }

    // Over the wheel, for the mouse wheel only: presses go through to the tumbler beneath.
    MouseArea {
        property real notches: 0
        anchors.fill: parent
        acceptedButtons: Qt.NoButton
        onWheel: event => {
            notches += event.angleDelta.y / 120
            const rows = Math.trunc(notches)
            notches -= rows
            if (rows !== 0) wheel.turnTo(wheel.currentIndex - rows)
        }
    }

    KitFocusRing { anchors.margins: 2 }

    Keys.onPressed: event => {
        const page = tumbler.visibleItemCount
        const rows = new Map([[Qt.Key_Up, currentIndex - 1], [Qt.Key_Down, currentIndex + 1],
                              [Qt.Key_PageUp, currentIndex - page], [Qt.Key_PageDown, currentIndex + page],
                              [Qt.Key_Home, 0], [Qt.Key_End, count - 1]])
        if (!rows.has(event.key)) return
        event.accepted = true
        turnTo(rows.get(event.key))
    }

    Accessible.role: Accessible.SpinBox
    Accessible.description: String(value) === title ? "" : title
    Accessible.ignored: !visible || !enabled
    Accessible.onIncreaseAction: turnTo(currentIndex + 1)
    Accessible.onDecreaseAction: turnTo(currentIndex - 1)
    // Only assistive technology sets a value the current row does not show.
    onValueChanged: if (hasRow(currentIndex) && value !== numberAt(currentIndex)) turnTo(rowNearest(value))

    // Puts row in the band at once: given only a new currentIndex, the wheel crawls there.
    function select(row) {
        tumbler.currentIndex = row
        tumbler.positionViewAtIndex(row, T.Tumbler.Center)
        // Before the wheel's first layout, positioning settles the band one row on.
        tumbler.currentIndex = row
    }

    // A user's turn to row (clamped); nothing happens when the wheel cannot move or is covered.
    function turnTo(row) {
        row = Math.max(0, Math.min(count - 1, row))
        if (!visible || !enabled || !hasRow(row) || row === currentIndex) {
            showValue()
            return
        }
        select(row)
        settled(row)
    }

    function hasRow(row) { return row >= 0 && row < count }
    function titleAt(row: int): string { return source ? source.title(row) : "" }
    function numberAt(row) {
        const title = titleAt(row)
        const number = Number(title)
        return title.trim() !== "" && isFinite(number) ? number : row + 1
    }
    function rowNearest(number) {
        let best = currentIndex
        let distance = Math.abs(numberAt(best) - number)
        for (let row = 0; row < count; ++row) {
            const d = Math.abs(numberAt(row) - number)
            if (d < distance) {
                best = row
                distance = d
            }
        }
        return best
    }
    function showValue() { value = hasRow(currentIndex) ? numberAt(currentIndex) : 0 }
}
