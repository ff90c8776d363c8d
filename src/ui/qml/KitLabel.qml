import QtQuick
import CalorieCounter.Kit

// Renders a Label over its background colour, in the face its model names when this machine has
// it (a missing "...-Thin" or "...-Bold" face keeps its weight). A renderer made by a list may
// outlive its model for a moment; it then shows nothing.
Text {
    id: root
    property Label model: Label {}
    // Where a container cuts the label off: left-aligned, it is drawn only that wide, which looks
    // the same and gives assistive technology its extent on screen.
    property real visibleRight: Infinity

    visible: !(model?.hidden ?? true)
    text: model?.text ?? ""
    color: model?.textColor ?? Theme.text
    wrapMode: model?.adjustsFontSizeToFitWidth ? Text.NoWrap : Text.WordWrap
    fontSizeMode: model?.adjustsFontSizeToFitWidth ? Text.HorizontalFit : Text.FixedSize
    minimumPixelSize: 8
    verticalAlignment: Text.AlignVCenter  // a label centres its text in its frame
    horizontalAlignment: [Text.AlignLeft, Text.AlignHCenter, Text.AlignRight, Text.AlignJustify][model?.textAlignment ?? 0] ?? Text.AlignLeft
    font.family: Theme.familyFor(model?.fontName ?? "")
    font.weight: Theme.weightFor(model?.fontName ?? "")
    font.pixelSize: (model?.fontSize ?? 0) > 0 ? model.fontSize : 17

    Rectangle {
        anchors.fill: parent
        z: -1  // beneath the text
        color: root.model?.backgroundColor ?? Theme.clear
        visible: color.a > 0
    }

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !visible || !enabled || !text  // covered, or nothing to read

    FrameBinding {
        item: root
        model: root.model
        maxRight: root.horizontalAlignment === Text.AlignLeft ? root.visibleRight : Infinity
    }
}
