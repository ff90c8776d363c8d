import QtQuick
import CalorieCounter.Kit

// Renders a Button: its image, or its title in its title colour; touch-up-inside on release, on
// Space or Return while it has the keyboard, and on assistive technology's press. A checkable
// button is one answer of a choice: a radio button, checked while it is the chosen one.
Item {
    id: root
    property Button model: Button {}
    property alias font: title.font
    property alias framePositioned: frameBinding.positioned
    property bool checkable: false
    property bool checked: false
    // The rounding of what the button fills, which its focus ring follows; a button that fills a
    // row edge to edge draws the ring inside (positive margins).
    property real radius: 3
    property alias focusRing: ring
    signal touchUpInside(Button sender)

    implicitWidth: Math.max(title.implicitWidth, image.status === Image.Ready ? 24 : 0) + 8
    implicitHeight: 38
    visible: !!model && !model.hidden
    activeFocusOnTab: true

    Image {
        id: image
        anchors.centerIn: parent
        source: Theme.imageUrl(root.model?.imageName ?? "", Theme.imageScale)
        opacity: area.pressed && (root.model?.adjustsImageWhenHighlighted ?? false) ? 0.5 : 1
    }
    Text {
        id: title
        anchors.fill: parent
        text: root.model?.title ?? ""
        color: root.model?.titleColor ?? Theme.text
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
    KitFocusRing { id: ring; controlRadius: root.radius }

    Keys.onPressed: event => {
        if (![Qt.Key_Space, Qt.Key_Return, Qt.Key_Enter].includes(event.key)) return
        event.accepted = true
        if (!event.isAutoRepeat) press()
    }

    // Covered (hidden, or beneath a modal) it is neither pressed nor offered to assistive technology.
    function press() {
        if (!model || !visible || !enabled) return
        model.sendTouchUpInside()
        touchUpInside(model)
    }

    Accessible.role: checkable ? Accessible.RadioButton : Accessible.Button
    Accessible.name: model ? (model.title || model.accessibleName) : ""
    Accessible.checkable: checkable
    Accessible.checked: checked
    Accessible.ignored: !visible || !enabled
    Accessible.onPressAction: press()
    // Toggling a radio button is pressing it; a function, so that plain buttons offer no toggle.
    function accessibleToggleAction() { press() }

    FrameBinding { id: frameBinding; item: root; model: root.model }
}
