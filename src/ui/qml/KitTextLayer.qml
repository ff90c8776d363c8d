import QtQuick
import CalorieCounter.Kit

// Renders a TextLayer: its string from the top of its frame, over its background colour. An
// animation added to the layer plays on a presentation copy of the animated property and then
// leaves the model's own value showing again. Colour properties are the ones animated so far. A
// renderer made by a list may outlive its model for a moment; it then draws nothing.
Rectangle {
    id: root
    property TextLayer model: TextLayer {}

    x: model?.frame.x ?? 0
    y: model?.frame.y ?? 0
    width: model?.frame.width ?? 0
    height: model?.frame.height ?? 0
    visible: !(model?.hidden ?? true)
    color: model?.backgroundColor ?? Theme.clear
    Accessible.ignored: true

    // Stands in for the background while an animation of it plays.
    Rectangle {
        id: presented
        anchors.fill: parent
        visible: flash.running
    }
    Text {
        anchors.fill: parent
        text: root.model?.string ?? ""
        color: root.model?.foregroundColor ?? Theme.clear
        font.family: Theme.familyFor(root.model?.fontName ?? "")
        font.pixelSize: root.model?.fontSize ?? 1
        verticalAlignment: Text.AlignTop
        horizontalAlignment: ({ right: Text.AlignRight, center: Text.AlignHCenter,
                                justified: Text.AlignJustify })[root.model?.alignmentMode ?? ""]
                             ?? Text.AlignLeft
    }

    SequentialAnimation {
        id: flash
        property string key
        ColorAnimation { id: there; target: presented; property: "color" }
        ColorAnimation { id: back; target: presented; property: "color" }
        onFinished: root.model.animationDidStop(key)
    }

    function play(key: string) {
        const a = model.colourFlash(key)
        if (!a.valid) return
        flash.stop()
        flash.key = key
        there.duration = a.duration
        back.duration = a.reverses ? a.duration : 0
        there.easing.type = a.curve.length > 0 ? Easing.Bezier : Easing.Linear
        back.easing.type = there.easing.type
        if (a.curve.length > 0) {
            there.easing.bezierCurve = a.curve
            back.easing.bezierCurve = a.backCurve
        }
        there.from = model.backgroundColor
        there.to = a.to
        back.from = a.to
        back.to = a.reverses ? model.backgroundColor : a.to
        flash.loops = a.loops
        flash.start()
    }
    Connections {
        target: root.model
        function onAnimationAdded(key) { root.play(key) }
    }
}
