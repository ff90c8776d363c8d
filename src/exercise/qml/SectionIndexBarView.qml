pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Exercise

// Renders a SectionIndexBar: its layers, and touches going down on it or dragging over it (also
// above or below it, which the bar maps back onto its letters). The letters are what assistive
// technology sees, each a button whose press is a touch on it; from the keyboard the bar takes
// focus, the arrows move between letters and Space or Return presses the one shown.
Item {
    id: root
    property SectionIndexBar model
    readonly property real letterHeight: model ? model.letterHeight : 0
    readonly property int letterCount: model && letterHeight > 0 ? model.letters.length : 0
    property int current: 0  // the letter the keyboard is on

    visible: !!model && !model.hidden
    activeFocusOnTab: true
    onWidthChanged: report()
    onHeightChanged: report()
    Component.onCompleted: report()
    function report() { if (model) model.setLaidOutSize(Qt.size(width, height)) }
    function press(letter) { if (model) model.pressLetter(letter) }

    // A hidden bar draws nothing: while the list is searched it is laid out afresh on every
    // keystroke, and only the layers of its last layout are drawn once it shows again.
    KitLayers { layers: root.model && !root.model.hidden ? root.model.sublayers : null }

    MouseArea {
        anchors.fill: parent
        preventStealing: true  // a drag down the letters is not the list's scroll
        onPressed: mouse => root.model.touchesBegan(Qt.point(mouse.x, mouse.y))
        onPositionChanged: mouse => root.model.touchesMoved(Qt.point(mouse.x, mouse.y))
    }

    Repeater {
        model: root.letterCount
        Item {
            id: letter
            required property int index
            y: index * root.letterHeight
            width: root.width
            height: root.letterHeight
            Accessible.role: Accessible.Button
            Accessible.name: root.model.letters[index]
            Accessible.focused: root.activeFocus && root.current === index
            Accessible.onPressAction: root.press(letter.index)
        }
    }
    Rectangle {
        visible: root.activeFocus && root.letterHeight > 0
        y: root.current * root.letterHeight
        width: root.width
        height: root.letterHeight
        color: Theme.clear
        border.color: Theme.tint
        radius: 3
    }
    Keys.onUpPressed: current = Math.max(0, current - 1)
    Keys.onDownPressed: current = Math.min(letterCount - 1, current + 1)
    Keys.onSpacePressed: press(current)
    Keys.onReturnPressed: press(current)

    Accessible.role: Accessible.List
    Accessible.name: "Section index"

    FrameBinding { item: root; model: root.model }
}
