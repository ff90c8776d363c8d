import QtQuick

// Draws a list of layers in order, later ones on top, each with the renderer named
// after its class. Layers are drawing only: none of it reaches assistive technology.
Repeater {
    property var layers
    model: layers
    delegate: Loader {
        required property QtObject modelData
        required property string kind
        source: "Kit" + kind + ".qml"
        onLoaded: item.model = modelData
    }
}
