import QtQuick
import "qrc:/ui"

// The frame of every set-up step: where the user is, the question, a line of help, then the
// step's own controls stacked in a centred column. pad scales it up for a tablet.
Item {
    id: step
    property bool pad: false
    property int number
    property string question
    property string hint
    default property alias content: body.data
    // Metrics are phone points times this.
    readonly property real unit: pad ? 1.5 : 1

    anchors.fill: parent

    Column {
        id: column
        width: step.pad ? 520 : step.width - 40
        x: (step.width - width) / 2
        y: step.pad ? 96 : 26
        spacing: 6 * step.unit

        Text {
            text: "STEP " + step.number + " OF 6"
            color: Theme.tint
            font.family: Theme.fontFamily
            font.pixelSize: 12 * step.unit
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
            font.pixelSize: 23 * step.unit
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
            font.pixelSize: 14 * step.unit
            Accessible.role: Accessible.StaticText; Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
        Item { width: 1; height: 14 * step.unit }
        Column {
            id: body
            width: column.width
            spacing: 12 * step.unit
        }
    }
}
