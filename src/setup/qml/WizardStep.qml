import QtQuick
import CalorieCounter.Kit

// The frame of every set-up step: where the user is, the question, a line of help, then the
// step's own controls stacked in the screen's column.
Item {
    id: step
    property int number
    property string question
    property string hint
    default property alias content: body.data

    anchors.fill: parent

    ScreenColumn {
        id: column
        available: step.width
        y: Theme.pad ? 96 : 26
        spacing: 6 * Theme.unit

        Text {
            text: "STEP " + step.number + " OF 6"
            color: Theme.tint
            font.family: Theme.fontFamily
            font.pixelSize: 12 * Theme.unit
            font.weight: Font.DemiBold
            font.letterSpacing: 1
            Accessible.role: Accessible.StaticText; Accessible.name: "Step " + step.number + " of 6"
            Accessible.ignored: !visible || !enabled
        }
        Text {
            width: column.width
            text: step.question
            color: Theme.text
            wrapMode: Text.WordWrap
            font.family: Theme.fontFamily
            font.pixelSize: 23 * Theme.unit
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading; Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
        Text {
            width: column.width
            text: step.hint
            visible: text.length > 0
            color: Theme.secondaryText
            wrapMode: Text.WordWrap
            lineHeight: 1.1
            font.family: Theme.fontFamily
            font.pixelSize: 14 * Theme.unit
            Accessible.role: Accessible.StaticText; Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
        Item { width: 1; height: 14 * Theme.unit }
        Column {
            id: body
            width: column.width
            spacing: 12 * Theme.unit
        }
    }
}
