pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit

// Renders an ActionSheet: the choices in a rounded group at the bottom, then Cancel on its own.
// To assistive technology it is a dialog named by its title. The window gives it the keyboard as
// it shows (Tab reaches its buttons); Escape presses Cancel.
FocusScope {
    id: root
    property ActionSheet model
    readonly property int cancelIndex: model ? model.otherButtonTitles.length : 0
    anchors.fill: parent

    Rectangle { anchors.fill: parent; color: Theme.dimming }
    MouseArea { anchors.fill: parent }

    Column {
        anchors { left: parent.left; right: parent.right; bottom: parent.bottom; margins: 8 }
        spacing: 8
        Accessible.role: Accessible.Dialog
        Accessible.name: root.model ? root.model.title : ""
        Accessible.ignored: !root.enabled

        Rectangle {
            width: parent.width
            height: group.height
            radius: 13
            color: Theme.group
            Column {
                id: group
                width: parent.width
                Text {
                    width: parent.width
                    height: 44
                    text: root.model ? root.model.title : ""
                    color: Theme.secondaryText
                    font.family: Theme.fontFamily; font.pixelSize: 13
                    horizontalAlignment: Text.AlignHCenter; verticalAlignment: Text.AlignVCenter
                }
                Repeater {
                    model: root.model ? root.model.otherButtonTitles : []
                    Column {
                        id: choice
                        required property string modelData
                        required property int index
                        width: group.width
                        Rectangle { width: parent.width; height: 1; color: Theme.groupLine }
                        KitButton {
                            width: parent.width
                            height: 56
                            focusRing.anchors.margins: 3
                            model: Button { title: choice.modelData; titleColor: Theme.tint }
                            font.pixelSize: 20
                            onTouchUpInside: root.model.clickButtonAtIndex(choice.index)
                        }
                    }
                }
            }
        }
        Rectangle {
            width: parent.width
            height: 56
            radius: 13
            color: Theme.field
            KitButton {
                anchors.fill: parent
                radius: 13
                focusRing.anchors.margins: 3
                model: Button { title: root.model ? root.model.cancelButtonTitle : ""; titleColor: Theme.tint }
                font.pixelSize: 20
                font.weight: Font.DemiBold
                onTouchUpInside: root.model.clickButtonAtIndex(root.cancelIndex)
            }
        }
    }

    Keys.onEscapePressed: model.clickButtonAtIndex(cancelIndex)
}
