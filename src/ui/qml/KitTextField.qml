import QtQuick
import QtQuick.Controls.Basic
import CalorieKit

// Renders a TextField; its text flows back into the model on every edit.
TextField {
    id: root
    property var model: null
    visible: !model.hidden
    text: model.text
    placeholderText: model.placeholder
    font.family: Theme.fontFamily
    font.pixelSize: 17
    onTextEdited: model.text = text
    onActiveFocusChanged: model.firstResponder = activeFocus
    Connections {
        target: root.model
        function onFirstResponderChanged() { if (root.model.firstResponder) root.forceActiveFocus() }
    }
    Component.onCompleted: if (model.firstResponder) forceActiveFocus()
    Accessible.name: model.placeholder
    FrameBinding { item: root; model: root.model }
}
