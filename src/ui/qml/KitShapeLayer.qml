import QtQuick
import CalorieKit

// Renders a ShapeLayer. Its path is one straight line, so it is drawn as a rectangle laid along
// the line: the stroke with flat ends, clipped and stacked like any other item on every scene
// graph backend (path nodes are neither on the software one). A line encloses nothing: the fill
// never shows.
Rectangle {
    id: root
    property ShapeLayer model: ShapeLayer {}
    readonly property real dx: model.to.x - model.from.x
    readonly property real dy: model.to.y - model.from.y

    visible: !model.hidden
    x: model.from.x
    y: model.from.y - height / 2
    width: Math.sqrt(dx * dx + dy * dy)
    height: model.lineWidth
    color: model.strokeColor
    transformOrigin: Item.Left
    rotation: Math.atan2(dy, dx) * 180 / Math.PI
    antialiasing: rotation % 90 !== 0
}
