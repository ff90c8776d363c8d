import QtQuick
import CalorieCounter.Kit

// One answer of a choice step: a large row with a title, a line of detail and its check image.
// The whole row is the button, tagged by the layout: a radio button, checked (and the row
// outlined) while the screen's check image for it is "check".
Card {
    id: row
    required property ImageView check
    property string title
    property string detail
    property int tag
    // What shows the title; a screen that colours its answers gives its own label.
    property Label label: Label { text: row.title }
    signal touchUpInside(Button sender)

    readonly property bool checked: check.imageName === "check"

    width: parent.width
    height: 66 * Theme.unit
    border.width: checked ? 2 : 1
    border.color: checked ? Theme.tint : Theme.barLine

    Column {
        anchors { left: parent.left; leftMargin: 18 * Theme.unit; right: mark.left; rightMargin: 12 * Theme.unit }
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2 * Theme.unit
        KitLabel {
            width: parent.width
            model: row.label
            font.pixelSize: 18 * Theme.unit
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
            font.pixelSize: 13 * Theme.unit
            Accessible.ignored: true
        }
    }
    KitImageView {
        id: mark
        anchors { right: parent.right; rightMargin: 18 * Theme.unit; verticalCenter: parent.verticalCenter }
        width: 28 * Theme.unit
        height: width
        model: row.check
    }
    KitButton {
        anchors.fill: parent
        model.accessibleName: row.label.text
        model.tag: row.tag
        radius: row.radius
        checkable: true
        checked: row.checked
        onTouchUpInside: sender => row.touchUpInside(sender)
        Accessible.description: row.detail
    }
}
