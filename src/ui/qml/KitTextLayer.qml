import QtQuick
import CalorieKit

// Renders a TextLayer: its string from the top of its frame, over its background colour. An
// animation added to the layer plays on a presentation copy of the animated property and then
// leaves the model's own value showing again. Colour properties are the ones animated so far.
Rectangle {
    id: root
    property TextLayer model: TextLayer {}

    x: model.frame.x
    y: model.frame.y
    width: model.frame.width
    height: model.frame.height
    visible: !model.hidden
    color: model.backgroundColor
    Accessible.ignored: true

    // Stands in for the background while an animation of it plays.
    Rectangle {
        id: presented
        anchors.fill: parent
        visible: flash.running
    }
    Text {
        anchors.fill: parent
        text: root.model.string
        color: root.model.foregroundColor
        font.family: Qt.fontFamilies().indexOf(root.model.fontName) >= 0 ? root.model.fontName
                                                                          : Theme.fontFamily
        font.pixelSize: root.model.fontSize
        verticalAlignment: Text.AlignTop
        horizontalAlignment: ({ right: Text.AlignRight, center: Text.AlignHCenter,
                                justified: Text.AlignJustify })[root.model.alignmentMode]
                             ?? Text.AlignLeft
    }

    SequentialAnimation {
        id: flash
        property string key
        ColorAnimation { id: there; target: presented; property: "color" }
        ColorAnimation { id: back; target: presented; property: "color" }
        onFinished: root.model.animationDidStop(key)
    }

    // Cubic timing curves by name, and played backwards for the way back.
    readonly property var curves: ({ easeIn: [0.42, 0, 1, 1], easeOut: [0, 0, 0.58, 1],
                                     easeInEaseOut: [0.42, 0, 0.58, 1] })
    function curve(points, reversed) {
        const [x1, y1, x2, y2] = reversed ? [1 - points[2], 1 - points[3], 1 - points[0], 1 - points[1]]
                                          : points
        return [x1, y1, x2, y2, 1, 1]
    }
    function play(key) {
        const a = model.animationDescription(key)
        if (a.keyPath !== "backgroundColor") return
        flash.stop()
        flash.key = key
        const points = curves[a.timingFunction]
        for (const [step, reversed] of [[there, false], [back, true]]) {
            step.duration = a.duration * 1000
            step.easing.type = points ? Easing.Bezier : Easing.Linear
            if (points) step.easing.bezierCurve = curve(points, reversed)
        }
        there.from = model.backgroundColor
        there.to = a.toValue
        back.from = a.toValue
        back.to = a.autoreverses ? model.backgroundColor : a.toValue
        back.duration = a.autoreverses ? back.duration : 0
        flash.loops = Math.max(1, Math.ceil(a.repeatCount))
        flash.start()
    }
    Connections {
        target: root.model
        function onAnimationAdded(key) { root.play(key) }
    }
}
