import QtQuick
import QtQuick.Controls.Basic as Controls
import CalorieCounter.Kit

// Renders a SearchBar: a rounded field with a magnifier, and the cancel button sliding in beside
// it while shown. Every change of the text that code did not make is the user's, however it came
// (keys, paste, an assistive technology setting the text). Return is the search button, Escape
// the cancel button.
Item {
    id: root
    property SearchBar model: SearchBar {}
    readonly property bool cancelShown: model.showsCancelButton

    implicitWidth: 320
    implicitHeight: 52
    visible: !model.hidden

    Rectangle {
        id: box
        anchors { left: parent.left; leftMargin: 8; verticalCenter: parent.verticalCenter }
        width: root.width - 16 - (root.cancelShown ? cancel.width + 4 : 0)
        height: 36
        radius: 10
        color: Theme.field
        border.color: field.activeFocus ? Theme.tint : Theme.barLine
        Behavior on width {
            enabled: root.model.cancelButtonAnimated
            NumberAnimation { duration: 250; easing.type: Easing.OutCubic }
        }

        Item {
            id: magnifier
            x: 10; y: (box.height - 14) / 2
            width: 14; height: 14
            Rectangle {
                width: 11; height: 11; radius: 5.5
                color: Theme.clear
                border { width: 1.6; color: Theme.secondaryText }
            }
            Rectangle {
                x: 8.5; y: 10.3
                width: 5.5; height: 1.8; radius: 0.9
                rotation: 45
                color: Theme.secondaryText
            }
        }
        Controls.TextField {
            id: field
            anchors { left: magnifier.right; leftMargin: 4; right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
            height: parent.height
            background: null
            text: root.model.text
            placeholderText: root.model.placeholder
            placeholderTextColor: Theme.secondaryText
            color: Theme.text
            font.family: Theme.fontFamily
            font.pixelSize: 16
            selectByMouse: true
            activeFocusOnTab: true
            inputMethodHints: Qt.ImhNoPredictiveText
            onTextChanged: if (text !== root.model.text) root.model.userChangedText(text)
            onActiveFocusChanged: {
                if (activeFocus) root.model.userBeganEditing()
                else root.model.firstResponder = false
            }
            Keys.onReturnPressed: root.model.userPressedSearch()
            Keys.onEnterPressed: root.model.userPressedSearch()
            Keys.onEscapePressed: if (root.cancelShown) root.model.userPressedCancel()
            Accessible.name: root.model.placeholder
            Accessible.ignored: !visible || !enabled
        }
    }

    KitButton {
        id: cancel
        anchors { right: parent.right; rightMargin: 6; verticalCenter: parent.verticalCenter }
        width: implicitWidth
        visible: opacity > 0
        opacity: root.cancelShown ? 1 : 0
        Behavior on opacity {
            enabled: root.model.cancelButtonAnimated
            NumberAnimation { duration: 250 }
        }
        model: Button { title: "Cancel"; titleColor: Theme.tint }
        onTouchUpInside: root.model.userPressedCancel()
    }

    Connections {
        target: root.model
        function onFirstResponderChanged() {
            if (root.model.firstResponder) field.forceActiveFocus()
            else if (field.activeFocus) field.focus = false
        }
    }
    Component.onCompleted: if (model.firstResponder) field.forceActiveFocus()
}
