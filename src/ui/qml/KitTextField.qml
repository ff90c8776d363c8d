import QtQuick
import QtQuick.Controls.Basic as Controls
import CalorieKit

// Renders a TextField; its text flows back into the model on every edit. While the model is the
// first responder the field has the keyboard, so typing goes in at once. The control is named
// by its module: CalorieKit's TextField is the model type.
Controls.TextField {
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
    Accessible.ignored: !visible || !enabled
    FrameBinding { item: root; model: root.model }
}
