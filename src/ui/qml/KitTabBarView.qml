import QtQuick
import QtQuick.Controls.impl
import QtQuick.Layouts
import CalorieKit

// Renders a TabBarController: the selected tab's navigation stack over a bar of tab buttons.
Rectangle {
    id: root
    property TabBarController controller
    color: "transparent"

    StackLayout {
        anchors { top: parent.top; left: parent.left; right: parent.right; bottom: bar.top }
        currentIndex: root.controller.selectedIndex
        Repeater {
            model: root.controller.viewControllers
            // A tab's screens are drawn from its first visit on, not all at start-up.
            Loader {
                id: tab
                required property var modelData
                required property int index
                property bool visited: false
                active: visited || index === root.controller.selectedIndex
                onLoaded: visited = true
                sourceComponent: KitNavigationView { nav: tab.modelData }
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
            Repeater {
                model: root.controller.viewControllers
                Item {
                    id: tab
                    required property var modelData
                    required property int index
                    readonly property bool selected: root.controller.selectedIndex === index
                    readonly property color tint: selected ? (root.controller.tintColor.a > 0 ? root.controller.tintColor : Theme.tint) : Theme.inactive
                    width: bar.width / Math.max(1, root.controller.viewControllers.length)
                    height: bar.height
                    IconImage {
                        anchors.horizontalCenter: parent.horizontalCenter
                        y: 4
                        width: 26; height: 26
                        sourceSize: Qt.size(26, 26)
                        source: Theme.imageUrl(tab.modelData.tabBarItem.imageName)
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
                    MouseArea { anchors.fill: parent; onClicked: root.controller.selectedIndex = tab.index }
                    Accessible.role: Accessible.PageTab
                    Accessible.name: modelData.tabBarItem.title
                    Accessible.selected: selected
                    Accessible.onPressAction: root.controller.selectedIndex = index
                }
            }
        }
    }
}
