import QtQuick
import CalorieCounter.Kit

// What an empty list means, centred under where its rows would start.
Text {
    x: 24
    width: parent.width - 48
    color: Theme.secondaryText
    horizontalAlignment: Text.AlignHCenter
    wrapMode: Text.WordWrap
    font.family: Theme.fontFamily
    font.pixelSize: Theme.pad ? 20 : 15
    Accessible.role: Accessible.StaticText
    Accessible.name: text
    Accessible.ignored: !visible || !enabled
}
