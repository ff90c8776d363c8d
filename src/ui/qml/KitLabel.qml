import QtQuick
import CalorieKit

// Renders a Label. A font named "...-Thin" that this machine lacks falls back to a thin sans face.
Text {
    id: root
    property Label model: Label {}

    visible: !model.hidden
    text: model.text
    color: model.textColor
    wrapMode: model.adjustsFontSizeToFitWidth ? Text.NoWrap : Text.WordWrap
    fontSizeMode: model.adjustsFontSizeToFitWidth ? Text.HorizontalFit : Text.FixedSize
    minimumPixelSize: 8
    verticalAlignment: Text.AlignVCenter  // a label centres its text in its frame
    horizontalAlignment: [Text.AlignLeft, Text.AlignHCenter, Text.AlignRight, Text.AlignJustify][model.textAlignment] ?? Text.AlignLeft
    font.family: model.fontName && Theme.hasFont(model.fontName) ? model.fontName : Theme.fontFamily
    font.weight: model.fontName.endsWith("-Thin") ? Font.Thin : Font.Normal
    font.pixelSize: model.fontSize > 0 ? model.fontSize : 17

    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !visible || !enabled || !text  // covered, or nothing to read

    FrameBinding { item: root; model: root.model }
}
