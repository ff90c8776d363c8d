import QtQuick
import CalorieKit

// Renders a Button: its image, or its title in its title colour; touch-up-inside on release.
Item {
    id: root
    property Button model: Button {}
    property alias font: title.font
    property alias framePositioned: frameBinding.positioned
    signal touchUpInside(Button sender)

    implicitWidth: Math.max(title.implicitWidth, image.status === Image.Ready ? 24 : 0) + 8
    implicitHeight: 38
    visible: !!model && !model.hidden

    Image {
        id: image
        anchors.centerIn: parent
        source: Theme.imageUrl(root.model?.imageName ?? "")
        opacity: area.pressed && root.model?.adjustsImageWhenHighlighted ? 0.5 : 1
    }
    Text {
        id: title
        anchors.fill: parent
        text: root.model?.title ?? ""
        color: root.model?.titleColor ?? "black"
        opacity: area.pressed ? 0.4 : 1
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        font.family: Theme.fontFamily
        font.pixelSize: 17
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
    }
    MouseArea {
        id: area
        anchors.fill: parent
        onClicked: root.press()
    }

    function press() {
        if (!model) return
        model.sendTouchUpInside()
        touchUpInside(model)
    }

    Accessible.role: Accessible.Button
    Accessible.name: model ? (model.title || model.accessibleName) : ""
    Accessible.onPressAction: press()

    FrameBinding { id: frameBinding; item: root; model: root.model }
}
