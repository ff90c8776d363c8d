import QtQuick
import CalorieCounter.Kit

// The ring around the control that has the keyboard, just outside its edge and following the
// rounding of the control it rings (radius).
Rectangle {
    property real controlRadius: 3
    anchors.fill: parent
    anchors.margins: -3
    radius: Math.max(0, controlRadius - anchors.margins)
    z: 1
    color: Theme.clear
    border.width: 2
    border.color: Theme.focusRing
    visible: parent.activeFocus
}
