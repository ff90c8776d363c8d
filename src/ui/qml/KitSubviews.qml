pragma ComponentBehavior: Bound
import QtQuick
import Qt.labs.qmlmodels
import CalorieCounter.Kit

// Draws the views and layers that code added to a View (labels and shape layers), in the order
// added, each by its class's renderer: made when the view is added, destroyed when it is removed.
//
// Code may pile views up (a screen adds a line and two labels on every appearance), and every
// live item costs time on each frame and each show or hide. So once there are more than a few
// dozen, the oldest are flattened: drawn once more, over the picture of those before them, into
// one picture of the same pixels, and destroyed. Drawing, showing and hiding the pile then costs
// the same however high it grows. The newest stay live: they are what code removes again (a bar
// that is redrawn) and what a screen reader reads.
Item {
    id: root
    property View view
    // Where a container cuts this view off, in its coordinates.
    property real visibleRight: Infinity

    property int flattenAbove: 24  // live items
    readonly property int keepLive: 6
    property bool flattening: false
    property int generation: 0  // a grab begun in an earlier one is stale
    property QtObject grab: null  // the ItemGrabResult, which keeps the picture's url valid

    // The flattened pile, then the items being flattened onto it: below every live item. The
    // holder shares this item's coordinates, so an item moved into it stays where it is.
    Item {
        id: pile
        Item {
            id: holder
            x: -pile.x
            y: -pile.y
            Image { id: picture; cache: false; smooth: false }
        }
    }

    Repeater {
        id: renderers
        model: LiveRowsModel {
            id: rows
            source: root.view ? root.view.subviews : null
            onRestarted: root.dropPicture()
        }
        delegate: DelegateChooser {
            role: "kind"
            DelegateChoice {
                roleValue: "Label"
                KitLabel { required property Label modelData; model: modelData; visibleRight: root.visibleRight }
            }
            DelegateChoice {
                roleValue: "ShapeLayer"
                KitShapeLayer { required property ShapeLayer modelData; model: modelData }
            }
        }
        onItemAdded: flattenLater.restart()
        onItemRemoved: (index, item) => { if (item.parent === holder) root.generation++ }
    }
    onVisibleChanged: {
        // A grab may never finish while hidden: it is begun again once shown.
        if (!visible && flattening) {
            generation++
            flattening = false
        }
        flattenLater.restart()
    }
    // Once per batch of changes.
    Timer { id: flattenLater; interval: 0; onTriggered: root.flatten() }

    function flatten() {
        if (flattening || !visible || renderers.count <= flattenAbove) return
        const batch = renderers.count - keepLive
        let area = picture.source != "" ? Qt.rect(picture.x, picture.y, picture.width, picture.height) : null
        for (let i = 0; i < batch; ++i) {
            const item = renderers.itemAt(i)
            area = united(area, paintedArea(item))
            if (item.parent !== holder) item.parent = holder
        }
        pile.x = area.x
        pile.y = area.y
        pile.width = area.width
        pile.height = area.height
        const started = generation
        flattening = pile.grabToImage(result => {
            flattening = false
            if (started !== generation) return flatten()
            grab = result
            picture.source = result.url
            picture.x = pile.x
            picture.y = pile.y
            picture.width = pile.width
            picture.height = pile.height
            rows.retire(batch)
        }, Qt.size(pile.width * Screen.devicePixelRatio, pile.height * Screen.devicePixelRatio))
    }

    function dropPicture() {
        generation++
        picture.source = ""
        grab = null
        flattenLater.restart()
    }

    // Where an item may draw, in this item's coordinates: its box, grown by text that overflows
    // it and by a pixel of smoothing.
    function paintedArea(item) {
        const dx = Math.max(0, item.implicitWidth - item.width) + 1
        const dy = Math.max(0, item.implicitHeight - item.height) + 1
        return item.mapToItem(root, -dx, -dy, item.width + 2 * dx, item.height + 2 * dy)
    }

    // The smallest rectangle on whole pixels holding both.
    function united(a, b) {
        if (!a) a = b
        const left = Math.floor(Math.min(a.x, b.x))
        const top = Math.floor(Math.min(a.y, b.y))
        const right = Math.ceil(Math.max(a.x + a.width, b.x + b.width))
        const bottom = Math.ceil(Math.max(a.y + a.height, b.y + b.height))
        return Qt.rect(left, top, right - left, bottom - top)
    }
}
