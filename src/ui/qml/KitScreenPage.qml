import QtQuick
import QtQuick.Controls.Basic as T
import CalorieCounter.Kit

// One screen on a navigation stack, drawn by the stack's screen delegate; it takes input only
// while its screen is on top.
FocusScope {
    id: page
    required property ViewController screen
    required property NavigationController nav
    required property Component screenDelegate
    property Item drawing: null

    enabled: screen === nav.topViewController
    // Focus coming to the screen, or to a field in it, tells a screen reader which screen it is.
    Accessible.role: Accessible.Pane
    Accessible.name: screen.spokenTitle
    Accessible.ignored: !visible || !enabled
    Component.onCompleted: drawing = screenDelegate.createObject(page, { screen: page.screen }) as Item
    // The drawing goes before the screen it reads from.
    T.StackView.onRemoved: {
        if (drawing) drawing.destroy()
        nav.finishedRemoving(screen)
    }
}
