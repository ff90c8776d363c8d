import QtQuick
import QtQuick.Controls.Basic as Controls
import CalorieCounter.Kit

// Renders a TextField; its text flows back into the model on every edit. While the model is the
// first responder the field has the keyboard, so typing goes in at once.
Controls.TextField {
    id: root
    property TextField model: TextField {}
    visible: !model.hidden
    text: model.text
    placeholderText: model.placeholder
    inputMethodHints: model.inputMethodHints
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
    Accessible.ignored: !visible || !enabled
    FrameBinding { item: root; model: root.model }
}
