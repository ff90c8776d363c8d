import QtQuick

// The ring around the control that has the keyboard, just outside its edge and following the
// rounding of a control that has a radius, in the platform's focus blue so that it never reads
// as the red of a chosen answer.
Rectangle {
    anchors.fill: parent
    anchors.margins: -3
    radius: Math.max(0, (parent.radius ?? 3) - anchors.margins)
    z: 1
    color: "transparent"
    border.width: 2
    border.color: "#0A84FF"
    visible: parent.activeFocus
}
