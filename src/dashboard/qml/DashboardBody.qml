pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Dashboard

// The gauge and the day's figures, shared by the Today and Log layouts on both idioms. It lies
// over the canvas that code draws the bar and the budget line into, in the same coordinates:
// the track under the bar, the scale marks each under the calories it stands for, then the
// calories left and the eaten and burned figures.
Item {
    id: body
    required property DashboardScreen screen
    readonly property rect track: screen.gaugeTrack
    readonly property real margin: Theme.pad ? 40 : 16

    width: track.width
    height: card.y + card.height

    component Caption: Text {
        font.family: Theme.fontFamily
        font.pixelSize: Theme.pad ? 17 : 12
        color: Theme.secondaryText
        Accessible.role: Accessible.StaticText
        Accessible.name: text
        Accessible.ignored: !visible || !enabled  // covered, as beneath the add menu
    }

    component Figure: Item {
        id: figure
        property string caption
        property Label label
        property color swatch: Theme.clear
        width: (card.width - 1) / 2
        height: card.height
        Column {
            anchors.centerIn: parent
            spacing: Theme.pad ? 6 : 2
            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: 6
                Rectangle {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Theme.pad ? 12 : 8; height: width; radius: width / 2
                    color: figure.swatch
                    visible: figure.swatch.a > 0
                }
                Caption { text: figure.caption }
            }
            KitLabel {
                anchors.horizontalCenter: parent.horizontalCenter
                model: figure.label
                font.pixelSize: Theme.pad ? 30 : 20
                font.weight: Font.Medium
            }
        }
    }

    Caption {
        x: body.margin
        y: body.track.y - height - (Theme.pad ? 10 : 6)
        text: "Calories eaten"
    }
    Rectangle {
        x: body.track.x; y: body.track.y
        width: body.track.width; height: body.track.height
        color: Theme.gaugeTrack
    }

    Repeater {
        model: [body.screen.midValue, body.screen.max1Value, body.screen.maxValue,
                body.screen.ExtremeMaxValue]
        Item {
            id: mark
            required property Label modelData
            required property int index
            readonly property real at: body.screen.markPositions[index]
            Rectangle {
                x: Math.min(mark.at, body.width - 1)
                y: body.screen.gaugeBottom + 2
                width: 1; height: Theme.pad ? 8 : 5
                color: Theme.secondaryText
            }
            KitLabel {
                model: mark.modelData
                x: Math.max(2, Math.min(body.width - width - 2, mark.at - width / 2))
                y: body.screen.gaugeBottom + (Theme.pad ? 12 : 8)
                font.pixelSize: Theme.pad ? 14 : 10
                color: Theme.secondaryText
            }
        }
    }

    Caption {
        id: leftCaption
        y: body.screen.gaugeBottom + (Theme.pad ? 74 : 30)
        width: body.width
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Theme.pad ? 20 : 13
        text: "Calories left"
    }
    KitLabel {
        id: left
        model: body.screen.todayLable
        y: leftCaption.y + leftCaption.height
        width: body.width
        horizontalAlignment: Text.AlignHCenter
        font.pixelSize: Theme.pad ? 80 : 44
        font.weight: Font.Light
    }

    Rectangle {
        id: card
        x: body.margin
        y: left.y + left.height + (Theme.pad ? 24 : 8)
        width: body.width - 2 * body.margin
        height: Theme.pad ? 110 : 58
        radius: Theme.pad ? 16 : 12
        color: Theme.card
        border.color: Theme.cardLine
        Row {
            Figure { caption: "Eaten"; label: body.screen.detailCalorie; swatch: Theme.eaten }
            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 1; height: card.height * 0.6
                color: Theme.cardLine
            }
            Figure { caption: "Burned"; label: body.screen.detailExercise }
        }
    }
}
