import QtQuick
import CalorieKit

// The application window: a tiled background, the root navigation stack, the tab interface
// placed over everything, what is presented over that, and the launch image while launching.
// Only the top layer is live: the tab interface hides what it covers, and while a modal shows,
// everything beneath it takes no input and leaves the accessibility tree. When the last modal
// goes, the keyboard returns to where it was.
Window {
    id: window
    property WindowModel model
    property string launchImage
    property bool launching: true
    readonly property bool modal: presented.count > 0
    property Item focusBeforeModal: null

    color: "#F7F5F2"

    Image {
        anchors.fill: parent
        fillMode: Image.Tile
        source: Theme.imageUrl(window.model ? window.model.backgroundPatternImage : "")
    }
    KitNavigationView {
        id: rootStack
        anchors.fill: parent
        nav: window.model ? window.model.rootViewController : null
        visible: !!nav && tabViews.count === 0
        enabled: !window.modal
        onNavChanged: Qt.callLater(focusTop)
    }
    Repeater {
        id: tabViews
        model: window.model ? window.model.subviews : []
        KitTabBarView {
            required property var modelData
            required property int index
            anchors.fill: parent
            controller: modelData
            visible: index === tabViews.count - 1
            enabled: !window.modal
        }
    }
    Repeater {
        id: presented
        model: window.model ? window.model.presented : []
        Loader {
            required property var modelData
            required property int index
            anchors.fill: parent
            z: 10
            enabled: index === presented.count - 1
            source: "Kit" + modelData.kind + ".qml"
            onLoaded: item.model = modelData
        }
    }
    KitStatusOverlay {
        anchors.fill: parent
        z: 50
        model: window.model ? window.model.overlay : null
    }
    Image {
        anchors.fill: parent
        z: 100
        visible: window.launching
        source: Theme.imageUrl(window.launchImage)
    }

    // The window takes the keyboard as it appears, so that its first screen has it.
    onVisibleChanged: if (visible) requestActivate()
    // Remembered only while no modal shows: disabling the layers beneath moves the focus away.
    onActiveFocusItemChanged: if (!modal && activeFocusItem) focusBeforeModal = activeFocusItem
    onModalChanged: if (!modal) Qt.callLater(() => {
        if (focusBeforeModal && focusBeforeModal.visible && focusBeforeModal.enabled)
            focusBeforeModal.forceActiveFocus()
    })
}
