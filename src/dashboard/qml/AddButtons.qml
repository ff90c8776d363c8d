pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Dashboard

// The Today layouts' two add buttons: food (filled) and exercise (outlined).
Row {
    id: buttons
    required property TodayScreen screen
    spacing: Theme.pad ? 20 : 8

    component Action: Rectangle {
        id: action
        property string title
        property bool filled
        signal triggered(Button sender)
        width: Theme.pad ? 260 : 140
        height: Theme.pad ? 56 : 44
        radius: Theme.pad ? 14 : 10
        color: filled ? Theme.tint : Theme.field
        border.color: Theme.tint
        KitButton {
            anchors.fill: parent
            model.title: action.title
            model.titleColor: action.filled ? Theme.onTint : Theme.tint
            font.pixelSize: Theme.pad ? 20 : 16
            font.weight: Font.DemiBold
            onTouchUpInside: sender => action.triggered(sender)
        }
    }

    Action { title: "Add food"; filled: true; onTriggered: sender => buttons.screen.addFood(sender) }
    Action { title: "Add exercise"; onTriggered: sender => buttons.screen.addExcercise(sender) }
}
