import QtQuick
import CalorieKit

// Renders an AlertView: a centred box over a dimmed window; any button dismisses it. To assistive
// technology it is an alert named by its title with its message as description, announced as it
// shows. It takes the keyboard as it shows (Tab reaches its buttons): Return, Enter and Escape
// press the cancel button (index 0).
FocusScope {
    id: root
    property AlertView model
    anchors.fill: parent

    Rectangle { anchors.fill: parent; color: "#66000000" }
    MouseArea { anchors.fill: parent }  // the alert is modal

    Rectangle {
        anchors.centerIn: parent
        width: 270
        height: content.height
        radius: 13
        color: "#F2F2F2"
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
                    required property string modelData
                    required property int index
                    width: content.width
                    Rectangle { width: parent.width; height: 1; color: "#D0D0D0" }
                    KitButton {
                        width: parent.width
                        height: 44
                        focusRing.anchors.margins: 3
                        model: Button { title: modelData; titleColor: Theme.tint }
                        onTouchUpInside: root.model.clickButtonAtIndex(index)
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
    // Once the window holds it: the keyboard cannot be given before.
    Component.onCompleted: Qt.callLater(() => root.forceActiveFocus())
}
