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

    // A control reached by Tab below or above the visible part is scrolled into view, as a
    // pointer user scrolls to it before clicking.
    Connections {
        target: root.Window.window
        function onActiveFocusItemChanged() { root.reveal(root.Window.activeFocusItem) }
    }
    function reveal(item: Item) {
        let inside = item
        while (inside && inside !== root.contentItem) inside = inside.parent
        if (!inside) return
        const area = item.mapToItem(root.contentItem, 0, 0, item.width, item.height)
        const margin = 8
        let y = contentY
        if (area.y + area.height > y + height) y = area.y + area.height - height + margin
        if (area.y < y) y = area.y - margin
        contentY = Math.max(0, Math.min(y, contentHeight - height))
    }
}
