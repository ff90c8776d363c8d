pragma Singleton
import QtQuick

// The program's few colours and metrics, in one place.
QtObject {
    readonly property color tint: "#FF3B30"  // redColor() in C++
    readonly property color barBackground: "#F9F8F7"
    readonly property color barLine: "#C8C4C0"
    readonly property color text: "#000000"
    readonly property color secondaryText: "#8A8A8E"
    readonly property color inactive: "#8E8E93"
    readonly property real navigationBarHeight: 44
    readonly property real tabBarHeight: 49
    readonly property string fontFamily: "DejaVu Sans"

    // The font families of this machine, asked once: a label may name one it lacks.
    readonly property var fontFamilies: Qt.fontFamilies()
    function hasFont(family) { return fontFamilies.indexOf(family) >= 0 }

    function imageUrl(name) { return name ? "qrc:/images/" + name + ".png" : "" }
}
