import QtQuick
import CalorieKit

// The application window: a tiled background, the root navigation stack, the tab interface
// placed over everything, what is presented over that, and the launch image while launching.
Window {
    id: window
    property WindowModel model
    property string launchImage
    property bool launching: true

    color: "#F7F5F2"

    Image {
        anchors.fill: parent
        fillMode: Image.Tile
        source: Theme.imageUrl(window.model ? window.model.backgroundPatternImage : "")
    }
    KitNavigationView {
        anchors.fill: parent
        nav: window.model ? window.model.rootViewController : null
        visible: !!nav
    }
    Repeater {
        model: window.model ? window.model.subviews : []
        KitTabBarView { required property var modelData; anchors.fill: parent; controller: modelData }
    }
    Repeater {
        model: window.model ? window.model.presented : []
        Loader {
            required property var modelData
            anchors.fill: parent
            z: 10
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
}
