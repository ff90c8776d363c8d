pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit

// Renders a ShapeLayer. Its path is straight strokes, so each is drawn as a rectangle laid along
// its line: the stroke with flat ends, clipped and stacked like any other item on every scene
// graph backend (path nodes are neither on the software one). Lines enclose nothing: the fill
// never shows. A renderer made by a list may outlive its model for a moment; it then draws nothing.
Item {
    id: root
    property ShapeLayer model: ShapeLayer {}

    visible: !(model?.hidden ?? true)
    x: model?.frame.x ?? 0
    y: model?.frame.y ?? 0

    Repeater {
        model: root.model ? root.model.lines.length / 2 : 0
        Rectangle {
            required property int index
            readonly property point from: root.model?.lines[2 * index] ?? Qt.point(0, 0)
            readonly property point to: root.model?.lines[2 * index + 1] ?? Qt.point(0, 0)
            readonly property real dx: to.x - from.x
            readonly property real dy: to.y - from.y

            x: from.x
            y: from.y - height / 2
            width: Math.sqrt(dx * dx + dy * dy)
            height: root.model?.lineWidth ?? 0
            color: root.model?.strokeColor ?? Theme.clear
            transformOrigin: Item.Left
            rotation: Math.atan2(dy, dx) * 180 / Math.PI
            antialiasing: rotation % 90 !== 0
        }
    }
}
