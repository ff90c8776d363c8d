pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Overlay

// Renders the StatusOverlay: a rounded translucent box with a spinner or a picture and a text,
// placed, turned, scaled and faded as the model says; while the model catches touches, a clear
// layer over the whole window swallows them.
Item {
    id: root
    property StatusOverlay model: null
    readonly property bool active: !!model && model.active

    visible: active

    MouseArea {
        anchors.fill: parent
        enabled: root.active && root.model.catchesTouches
    }

    Item {
        id: box
        width: root.model?.boxSize.width ?? 0
        height: root.model?.boxSize.height ?? 0
        x: (root.model?.centre.x ?? 0) - width / 2
        y: (root.model?.centre.y ?? 0) - height / 2
        rotation: root.model?.rotation ?? 0
        scale: root.model?.boxScale ?? 1
        opacity: root.model?.boxOpacity ?? 1

        // A translucent bar's frosted white (without its blur, the page behind would show through
        // as clutter), darkened by black at 0.1.
        Rectangle { anchors.fill: parent; radius: 10; color: Theme.overlayBox }
        Rectangle { anchors.fill: parent; radius: 10; color: Theme.overlayShade }
        MouseArea { anchors.fill: parent }  // the box takes the touches that land on it

        Item {
            id: spinner
            width: 37; height: 37
            x: (root.model?.iconCentre.x ?? 0) - width / 2
            y: (root.model?.iconCentre.y ?? 0) - height / 2
            visible: root.model?.spinning ?? false
            Repeater {
                model: 12
                Rectangle {
                    id: spoke
                    required property int index
                    x: (spinner.width - width) / 2
                    width: 4; height: 11; radius: 2
                    color: root.model?.spinnerColor ?? Theme.clear
                    opacity: 1 - spoke.index / 14
                    transform: Rotation { origin.x: 2; origin.y: spinner.height / 2; angle: -spoke.index * 30 }
                }
            }
            RotationAnimator on rotation {
                from: 0; to: 360; duration: 1000
                loops: Animation.Infinite
                running: spinner.visible
            }
            Accessible.role: Accessible.Animation
            Accessible.name: "In progress"
            Accessible.ignored: !visible || !enabled
        }

        Image {
            x: (root.model?.iconCentre.x ?? 0) - width / 2
            y: (root.model?.iconCentre.y ?? 0) - height / 2
            width: 28; height: 28
            visible: !!root.model && root.model.imageName !== ""
            source: visible ? Theme.imageUrl(root.model.imageName, Theme.imageScale) : ""
            Accessible.role: Accessible.Graphic
            Accessible.name: visible && root.model.imageName.endsWith("success-color") ? "Success" : "Error"
            Accessible.ignored: !visible || !enabled
        }

        Text {
            x: root.model?.labelFrame.x ?? 0
            y: root.model?.labelFrame.y ?? 0
            width: root.model?.labelFrame.width ?? 0
            height: root.model?.labelFrame.height ?? 0
            visible: !!root.model && !root.model.labelHidden
            text: root.model?.text ?? ""
            font: root.model?.labelFont ?? Qt.font({})
            color: Theme.text
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            wrapMode: Text.Wrap
            elide: Text.ElideRight
            Accessible.role: Accessible.StaticText
            Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
    }
}
