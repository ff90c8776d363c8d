import QtQuick

// Draws the layers of a LayerList in order, later ones on top, each with the renderer named
// after its class. Layers are drawing only: none of it reaches assistive technology.
Repeater {
    property var layers
    model: layers
    delegate: Loader {
        required property QtObject sublayer
        source: "Kit" + sublayer.kind + ".qml"
        onLoaded: item.model = sublayer
    }
}
