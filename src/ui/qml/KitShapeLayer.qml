import QtQuick
import CalorieKit

// Renders a ShapeLayer. Its path is straight strokes, so each is drawn as a rectangle laid along
// its line: the stroke with flat ends, clipped and stacked like any other item on every scene
// graph backend (path nodes are neither on the software one). Lines enclose nothing: the fill
// never shows.
Item {
    id: root
    property ShapeLayer model: ShapeLayer {}

    visible: !model.hidden
    x: model.frame.x
    y: model.frame.y

    Repeater {
        model: root.model.lines.length / 2
        Rectangle {
            required property int index
            readonly property point from: root.model.lines[2 * index]
            readonly property point to: root.model.lines[2 * index + 1]
            readonly property real dx: to.x - from.x
            readonly property real dy: to.y - from.y

            x: from.x
            y: from.y - height / 2
            width: Math.sqrt(dx * dx + dy * dy)
            height: root.model.lineWidth
            color: root.model.strokeColor
            transformOrigin: Item.Left
            rotation: Math.atan2(dy, dx) * 180 / Math.PI
            antialiasing: rotation % 90 !== 0
        }
    }
}
