import QtQuick
import "qrc:/ui"

// The Today layouts' two add buttons: food (filled) and exercise (outlined).
Row {
    id: buttons
    required property var screen
    property bool pad: false
    spacing: pad ? 20 : 8

    component Action: Rectangle {
        id: action
        property string title
        property bool filled
        signal triggered(var sender)
        width: buttons.pad ? 260 : 140
        height: buttons.pad ? 56 : 44
        radius: buttons.pad ? 14 : 10
        color: filled ? Theme.tint : "white"
        border.color: Theme.tint
        KitButton {
            anchors.fill: parent
            model.title: action.title
            model.titleColor: action.filled ? "white" : Theme.tint
            font.pixelSize: buttons.pad ? 20 : 16
            font.weight: Font.DemiBold
            onTouchUpInside: sender => action.triggered(sender)
        }
    }

    Action { title: "Add food"; filled: true; onTriggered: sender => buttons.screen.addFood(sender) }
    Action { title: "Add exercise"; onTriggered: sender => buttons.screen.addExcercise(sender) }
}
