import QtQuick
import CalorieCounter.Kit

// The root of every layout: it fills the screen's page, and draws what code adds to view (the
// screen's view, where its code adds any) over the layout's own content.
Item {
    id: root
    property View view
    default property alias content: holder.data

    anchors.fill: parent
    Item { id: holder; anchors.fill: parent }
    Item {
        anchors.fill: parent
        z: 1
        KitSubviews { view: root.view }
    }
}
