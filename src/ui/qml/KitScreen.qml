import QtQuick

// The root of every layout: the screen it renders, and what its code adds to its view on top.
Item {
    id: root
    property var screen
    default property alias content: holder.data

    Item { id: holder; anchors.fill: parent }
    Item {
        anchors.fill: parent
        z: 1
        KitSubviews { view: root.screen ? root.screen.view : null }
    }
}
