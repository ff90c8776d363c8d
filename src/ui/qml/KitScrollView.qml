import QtQuick
import CalorieCounter.Kit

// Renders a ScrollView; the layout's children become its content.
Flickable {
    id: root
    property ScrollView model: ScrollView {}
    default property alias content: holder.data

    visible: !model.hidden
    clip: true
    interactive: model.scrollEnabled
    contentWidth: model.contentSize.width > 0 ? model.contentSize.width : width
    contentHeight: model.contentSize.height > 0 ? model.contentSize.height : holder.childrenRect.height
    boundsBehavior: Flickable.DragOverBounds

    Item {
        id: holder
        width: root.contentWidth
        height: root.contentHeight
    }
    Item {
        parent: root.contentItem
        z: 1
        KitSubviews { view: root.model }
    }
    FrameBinding { item: root; model: root.model }
}
