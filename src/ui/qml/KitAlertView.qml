pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit

// Renders an AlertView: a centred box over a dimmed window; any button dismisses it. To assistive
// technology it is an alert named by its title with its message as description, announced as it
// shows. The window gives it the keyboard as it shows (Tab reaches its buttons): Return, Enter
// and Escape press the cancel button (index 0).
FocusScope {
    id: root
    property AlertView model
    anchors.fill: parent

    Rectangle { anchors.fill: parent; color: Theme.dimming }
    MouseArea { anchors.fill: parent }  // the alert is modal

    Rectangle {
        anchors.centerIn: parent
        width: 270
        height: content.height
        radius: 13
        color: Theme.group
        Accessible.role: Accessible.AlertMessage
        Accessible.name: root.model ? root.model.title : ""
        Accessible.description: root.model ? root.model.message : ""
        Accessible.ignored: !root.enabled

        Column {
            id: content
            width: parent.width
            Item { width: 1; height: 18 }
            Text {
                width: parent.width - 32; x: 16
                text: root.model ? root.model.title : ""
                font.family: Theme.fontFamily; font.pixelSize: 17; font.weight: Font.DemiBold
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
            Item { width: 1; height: 4 }
            Text {
                width: parent.width - 32; x: 16
                text: root.model ? root.model.message : ""
                font.family: Theme.fontFamily; font.pixelSize: 13
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
            }
            Item { width: 1; height: 18 }
            Repeater {
                model: root.model ? root.model.buttonTitles : []
                Column {
                    id: choice
                    required property string modelData
                    required property int index
                    width: content.width
                    Rectangle { width: parent.width; height: 1; color: Theme.groupLine }
                    KitButton {
                        width: parent.width
                        height: 44
                        focusRing.anchors.margins: 3
                        model: Button { title: choice.modelData; titleColor: Theme.tint }
                        onTouchUpInside: root.model.clickButtonAtIndex(choice.index)
                    }
                }
            }
        }
    }

    Keys.onPressed: event => {
        if (![Qt.Key_Return, Qt.Key_Enter, Qt.Key_Escape].includes(event.key)) return
        event.accepted = true
        model.clickButtonAtIndex(0)
    }
}
