import QtQuick

// Draws the views and layers that code added to a View, in the order added, each with the
// renderer named after its class.
Repeater {
    property var view
    model: view ? view.subviews : []
    delegate: Loader {
        required property var modelData
        source: "Kit" + modelData.kind + ".qml"
        onLoaded: item.model = modelData
    }
}
