pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls.impl
import CalorieCounter.Kit

// Renders a TabBarController: the selected tab's navigation stack over a bar of tab buttons.
// The other tabs' stacks are hidden; as it appears, the selected tab's top screen gets the keyboard.
Rectangle {
    id: root
    property TabBarController controller
    // What draws a screen of a tab's stack (see KitNavigationView).
    property Component screenDelegate
    color: Theme.clear

    Item {
        anchors { top: parent.top; left: parent.left; right: parent.right; bottom: bar.top }
        Repeater {
            id: tabs
            model: root.controller.viewControllers
            KitTabPage {
                id: page
                selected: page.index === root.controller.selectedIndex
                screenDelegate: root.screenDelegate
            }
        }
    }

    Rectangle {
        id: bar
        anchors.bottom: parent.bottom
        width: parent.width
        height: Theme.tabBarHeight
        color: Theme.barBackground
        Rectangle { width: parent.width; height: 1; color: Theme.barLine }
        Row {
            anchors.fill: parent
            Accessible.role: Accessible.PageTabList
            Accessible.ignored: !visible || !enabled
            Repeater {
                model: root.controller.viewControllers
                Item {
                    id: tab
                    required property NavigationController modelData
                    required property int index
                    readonly property bool selected: root.controller.selectedIndex === index
                    readonly property color tint: selected ? (root.controller.tintColor.a > 0 ? root.controller.tintColor : Theme.tint) : Theme.inactive
                    width: bar.width / Math.max(1, root.controller.viewControllers.length)
                    height: bar.height
                    IconImage {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: 4
                        width: 26; height: 26
                        // Logical pixels: the window multiplies them by its own pixel ratio.
                        sourceSize.width: 26 * Theme.imageScale / Screen.devicePixelRatio
                        sourceSize.height: 26 * Theme.imageScale / Screen.devicePixelRatio
                        source: Theme.imageUrl(tab.modelData.tabBarItem.imageName, Theme.imageScale)
                        color: tab.tint
                    }
                    Text {
                        anchors.horizontalCenter: parent.horizontalCenter
                        anchors.bottom: parent.bottom
                        anchors.bottomMargin: 3
                        text: tab.modelData.tabBarItem.title
                        color: tab.tint
                        font.family: Theme.fontFamily
                        font.pixelSize: 10
                    }
                    MouseArea { anchors.fill: parent; onClicked: tab.select() }
                    KitFocusRing { anchors.margins: 2 }
                    activeFocusOnTab: true
                    Keys.onPressed: event => {
                        if (![Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key)) return
                        event.accepted = true
                        tab.select()
                    }
                    function select() { if (visible && enabled) root.controller.selectedIndex = index }

                    Accessible.role: Accessible.PageTab
                    Accessible.name: modelData.tabBarItem.title
                    Accessible.selected: selected
                    Accessible.ignored: !visible || !enabled
                    Accessible.onPressAction: select()
                }
            }
        }
    }

    // Once shown, and whenever a tab is chosen, the keyboard starts on the selected tab's top
    // screen, which a screen reader then names.
    Component.onCompleted: focusSelected.start()
    Connections {
        target: root.controller
        function onSelectedIndexChanged() { focusSelected.restart() }
    }
    Timer {
        id: focusSelected
        interval: 0
        onTriggered: {
            const selected = tabs.itemAt(root.controller.selectedIndex) as KitTabPage
            if (selected && selected.stack) selected.stack.focusTop()
        }
    }
}
