pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Dashboard

// The Log layouts' day row: back a day, the day shown, forward a day.
Item {
    id: stepper
    required property LogScreen screen
    height: Theme.pad ? 64 : 44

    component Step: KitButton {
        id: step
        property string glyph
        width: stepper.height
        height: stepper.height
        Text {
            anchors.centerIn: parent
            text: step.glyph
            color: Theme.tint
            font.family: Theme.fontFamily
            font.pixelSize: Theme.pad ? 48 : 34
            Accessible.ignored: true
        }
    }

    Step {
        id: back
        x: Theme.pad ? 32 : 4
        glyph: "‹"
        model.accessibleName: "Previous day"
        onTouchUpInside: sender => stepper.screen.backBtn(sender)
    }
    KitLabel {
        model: stepper.screen.dateLbl
        x: back.x + back.width
        width: next.x - x
        anchors.verticalCenter: parent.verticalCenter
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.NoWrap
        elide: Text.ElideRight
        font.pixelSize: Theme.pad ? 30 : 18
        font.weight: Font.DemiBold
    }
    Step {
        id: next
        x: stepper.width - width - back.x
        glyph: "›"
        model.accessibleName: "Next day"
        onTouchUpInside: sender => stepper.screen.nextBtn(sender)
    }
}
