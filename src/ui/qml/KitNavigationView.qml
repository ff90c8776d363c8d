import QtQuick
import QtQuick.Controls.Basic as T
import CalorieCounter.Kit

// Renders a NavigationController: the bar of the top screen and the stack of screen layouts.
// Only the top screen takes input; the stack hides the ones beneath once it has slid over them.
// A new top screen gets the keyboard while this view is the one on top.
Item {
    id: root
    property NavigationController nav
    // What draws a screen: made for each screen on the stack, with the screen as its `screen`.
    property Component screenDelegate
    readonly property ViewController topScreen: nav ? nav.topViewController : null
    readonly property NavigationItem navItem: topScreen ? topScreen.navigationItem : null

    Rectangle {
        id: bar
        z: 1
        width: parent.width
        height: Theme.navigationBarHeight
        visible: root.nav && !root.nav.navigationBarHidden
        color: Theme.barBackground
        Rectangle { anchors.bottom: parent.bottom; width: parent.width; height: 1; color: Theme.barLine }

        Text {
            anchors.centerIn: parent
            width: parent.width - 2 * Math.max(left.width, right.width) - 16
            text: root.topScreen ? root.topScreen.title : ""
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            font.family: Theme.fontFamily
            font.pixelSize: 17
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: text
            Accessible.ignored: !visible || !enabled || !text
        }
        Item {
            id: left
            x: 4
            height: parent.height
            width: childrenRect.width
            KitButton {
                y: (parent.height - height) / 2
                framePositioned: false
                visible: !!model
                model: root.navItem && root.navItem.leftBarButtonItem ? root.navItem.leftBarButtonItem.customView : null
            }
            KitButton {
                // The standard back control, unless a left item takes its place.
                y: (parent.height - height) / 2
                visible: root.nav && root.nav.viewControllers.length > 1 && root.navItem
                         && !root.navItem.leftBarButtonItem && !root.navItem.hidesBackButton
                model: Button { title: "‹ Back"; titleColor: Theme.tint }
                onTouchUpInside: root.nav.popViewController(true)
            }
        }
        Item {
            id: right
            anchors.right: parent.right
            anchors.rightMargin: 4
            height: parent.height
            width: childrenRect.width
            KitButton {
                y: (parent.height - height) / 2
                framePositioned: false
                visible: !!model
                model: root.navItem && root.navItem.rightBarButtonItem ? root.navItem.rightBarButtonItem.customView : null
            }
        }
    }

    T.StackView {
        id: stack
        anchors.fill: parent
        anchors.topMargin: bar.visible ? bar.height : 0
        clip: true
        // Only a container: a screen reader would name it ("layered pane") on the way to each
        // screen of another stack.
        Accessible.ignored: true
    }

    Component {
        id: host
        KitScreenPage {}
    }
    function page(controller: ViewController) {
        return { screen: controller, nav: root.nav, screenDelegate: root.screenDelegate }
    }

    Connections {
        target: root.nav
        // Both come before the screens' enabled states follow the stack. The stack hands the
        // keyboard it holds to the screen it pushes, straight from the old top screen; on a pop,
        // and for a screen that takes no keyboard, no item has it until the new top screen takes
        // it: never the stack itself, which a screen reader would announce.
        function onPushed(controller, animated) {
            if (!controller.takesKeyboard) root.releaseFocus()
            stack.push(host, root.page(controller), animated ? T.StackView.PushTransition : T.StackView.Immediate)
            root.focusTopLater()
        }
        function onPopped(count, animated) {
            root.releaseFocus()
            stack.pop(stack.get(stack.depth - 1 - count), animated ? T.StackView.PopTransition : T.StackView.Immediate)
            root.focusTopLater()
        }
    }

    // The top screen's field that wants the keyboard has it, or else the screen itself, so that
    // Tab starts on its first control. Not while something covers this view.
    function focusTop() {
        const page = stack.currentItem as KitScreenPage
        if (visible && enabled && page && page.screen.takesKeyboard) page.forceActiveFocus()
    }
    function releaseFocus() {
        if (stack.activeFocus) keyboardRest.forceActiveFocus()
    }
    // Where the keyboard rests meanwhile: nothing a screen reader knows of.
    Item { id: keyboardRest }
    // Once the stack and what covers it have settled.
    function focusTopLater() { focusLater.restart() }
    Timer { id: focusLater; interval: 0; onTriggered: root.focusTop() }

    // The stack as it is when this view starts rendering a controller; later changes animate.
    function rebuild() {
        stack.clear(T.StackView.Immediate)
        if (!nav) return
        nav.rendered = true
        for (let i = 0; i < nav.viewControllers.length; ++i)
            stack.push(host, root.page(nav.viewControllers[i]), T.StackView.Immediate)
    }
    onNavChanged: rebuild()
    Component.onCompleted: rebuild()
}
