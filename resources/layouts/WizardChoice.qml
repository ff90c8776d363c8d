import QtQuick
import "qrc:/ui"
import CalorieKit

// One answer of a choice step: a large row with a title, a line of detail and its check image.
// The whole row is the button, tagged by the layout: a radio button, checked (and the row
// outlined) while the screen's check image for it is "check".
Rectangle {
    id: row
    property real unit: 1
    property string title
    property string detail
    property int tag
    required property ImageView check
    // The title's label; code may colour it.
    property Label label: Label {}
    signal touchUpInside(Button sender)

    readonly property bool checked: check.imageName === "check"

    width: parent.width
    height: 66 * unit
    radius: 12 * unit
    color: "white"
    border.width: checked ? 2 : 1
    border.color: checked ? Theme.tint : Theme.barLine

    Column {
        anchors { left: parent.left; leftMargin: 18 * row.unit; right: mark.left; rightMargin: 12 * row.unit }
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2 * row.unit
        KitLabel {
            width: parent.width
            model: row.label
            font.pixelSize: 18 * row.unit
            font.weight: Font.DemiBold
            Accessible.ignored: true  // the row's button carries the name
        }
        Text {
            width: parent.width
            text: row.detail
            visible: text.length > 0
            color: Theme.secondaryText
            elide: Text.ElideRight
            font.family: Theme.fontFamily
            font.pixelSize: 13 * row.unit
            Accessible.ignored: true
        }
    }
    KitImageView {
        id: mark
        anchors { right: parent.right; rightMargin: 18 * row.unit; verticalCenter: parent.verticalCenter }
        width: 28 * row.unit
        height: width
        model: row.check
    }
    KitButton {
        id: button
        anchors.fill: parent
        model.accessibleName: row.title
        model.tag: row.tag
        radius: row.radius
        checkable: true
        checked: row.checked
        onTouchUpInside: sender => row.touchUpInside(sender)
        Accessible.description: row.detail
    }

    // How the step starts out: the title in the label, neither answer checked.
    Component.onCompleted: {
        label.text = title
        if (!check.imageName) check.imageName = "uncheck"
    }
}
