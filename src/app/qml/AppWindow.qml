pragma ComponentBehavior: Bound
import QtQuick
import Qt.labs.qmlmodels
import CalorieCounter.Kit
import CalorieCounter.Overlay

// The application window: a tiled background, the root navigation stack, the tab interface
// placed over everything, what is presented over that, and the launch image while launching.
// Only the top layer is live: the tab interface hides what it covers, and while a modal shows,
// everything beneath it takes no input and leaves the accessibility tree. When the last modal
// goes, the keyboard returns to where it was.
Window {
    id: window
    required property WindowModel model
    required property string launchImage
    property bool launching: true
    readonly property bool modal: presented.count > 0
    property Item focusBeforeModal: null

    color: Theme.windowBackground

    Component {
        id: screenLayout
        ScreenLayout {}
    }

    KeyboardLift { id: keyboardLift; window: window }
    // The screen the layouts are made for, scaled to the window as WindowModel says; the window's
    // colour shows beside it. It goes up as far as a touch keyboard would cover the focused field.
    Item {
        id: canvas
        x: window.model.canvasX
        y: -keyboardLift.offset
        width: window.model.canvasSize.width
        height: window.model.canvasSize.height
        scale: window.model.canvasScale
        transformOrigin: Item.TopLeft
        clip: true

        Image {
            anchors.fill: parent
            fillMode: Image.Tile
            source: Theme.imageUrl(window.model.backgroundPatternImage, Theme.imageScale)
        }
        KitNavigationView {
            id: rootStack
            anchors.fill: parent
            nav: window.model.rootViewController
            screenDelegate: screenLayout
            visible: !!nav && tabViews.count === 0
            enabled: !window.modal
            onNavChanged: focusTopLater()
        }
        Repeater {
            id: tabViews
            model: window.model.subviews
            KitTabBarView {
                required property TabBarController modelData
                required property int index
                anchors.fill: parent
                controller: modelData
                screenDelegate: screenLayout
                visible: index === tabViews.count - 1
                enabled: !window.modal
            }
        }
        Repeater {
            id: presented
            model: window.model.presented
            // Once the window holds it and counts it as the modal, it takes the keyboard.
            onItemAdded: takeFocus.restart()
            delegate: DelegateChooser {
                role: "kind"
                DelegateChoice {
                    roleValue: "AlertView"
                    KitAlertView {
                        required property AlertView modelData
                        required property int index
                        z: 10
                        enabled: index === presented.count - 1
                        model: modelData
                    }
                }
                DelegateChoice {
                    roleValue: "ActionSheet"
                    KitActionSheet {
                        required property ActionSheet modelData
                        required property int index
                        z: 10
                        enabled: index === presented.count - 1
                        model: modelData
                    }
                }
            }
        }
        StatusOverlayView {
            anchors.fill: parent
            z: 50
            model: window.model.overlay as StatusOverlay
        }
        Image {
            anchors.fill: parent
            z: 100
            visible: window.launching
            source: Theme.imageUrl(window.launchImage, Theme.imageScale)
        }
    }
    Binding { target: Theme; property: "imageScale"; value: canvas.scale * window.Screen.devicePixelRatio }

    // The window takes the keyboard as it appears, so that its first screen has it.
    onVisibleChanged: if (visible) requestActivate()
    // A screen reader learns which screen is up from the keyboard moving to it, and may miss a
    // move made as the window became active: the keyboard moves there anew a moment later.
    onActiveChanged: if (active) refocusOnActive.restart()
    Timer {
        id: refocusOnActive
        interval: 500
        onTriggered: {
            const item = window.activeFocusItem
            if (!item) return
            window.contentItem.forceActiveFocus()
            item.forceActiveFocus()
        }
    }
    // Remembered only while no modal shows: disabling the layers beneath moves the focus away.
    onActiveFocusItemChanged: if (!modal && activeFocusItem) focusBeforeModal = activeFocusItem
    onModalChanged: if (!modal) refocus.restart()
    Timer {
        id: takeFocus
        interval: 0
        onTriggered: presented.itemAt(presented.count - 1)?.forceActiveFocus()
    }
    Timer {
        id: refocus
        interval: 0
        onTriggered: {
            const item = window.focusBeforeModal
            if (item && item.visible && item.enabled) item.forceActiveFocus()
        }
    }
}
