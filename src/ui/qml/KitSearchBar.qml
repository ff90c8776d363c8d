import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Shapes
import CalorieKit

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
        color: "white"
        border.color: field.activeFocus ? Theme.tint : Theme.barLine
        Behavior on width {
            enabled: root.model.cancelButtonAnimated
            NumberAnimation { duration: 250; easing.type: Easing.OutCubic }
        }

        Shape {
            id: magnifier
            x: 10; y: (box.height - 14) / 2
            width: 14; height: 14
            ShapePath {
                strokeColor: Theme.secondaryText
                strokeWidth: 1.6
                fillColor: "transparent"
                capStyle: ShapePath.RoundCap
                PathAngleArc { centerX: 6; centerY: 6; radiusX: 5; radiusY: 5; startAngle: 0; sweepAngle: 360 }
                PathMove { x: 9.6; y: 9.6 }
                PathLine { x: 13.5; y: 13.5 }
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
