pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit

// One tab's navigation stack, shown while its tab is selected. Its screens are drawn from its
// first visit on, not all at start-up.
Item {
    id: page
    required property NavigationController modelData
    required property int index
    property bool selected: false
    property Component screenDelegate
    property bool visited: false
    readonly property KitNavigationView stack: stacks.count > 0 ? stacks.itemAt(0) as KitNavigationView : null

    anchors.fill: parent
    visible: selected
    onSelectedChanged: if (selected) visited = true
    Component.onCompleted: visited = selected

    Repeater {
        id: stacks
        model: page.visited ? 1 : 0
        KitNavigationView {
            width: page.width
            height: page.height
            nav: page.modelData
            screenDelegate: page.screenDelegate
        }
    }
}
