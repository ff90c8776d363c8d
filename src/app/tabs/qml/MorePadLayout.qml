import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Tabs

KitScreen {
    id: layout
    required property MoreScreen screen

    MoreTexts { screen: layout.screen }
    KitScrollView {
        anchors.fill: parent
        model: layout.screen.mainscrol

        Text {
            x: 64; y: 40; width: 640
            text: "About Calorie Counter"
            font.family: Theme.fontFamily; font.pixelSize: 28; font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading; Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
        KitLabel {
            id: about
            x: 64; y: 84; width: 640
            model: layout.screen.lb1
            font.pixelSize: 18
            lineHeight: 1.15
        }
        YourDataButtons {
            id: yourData
            x: 64; y: about.y + about.height + 28; width: 640
            model: layout.screen.yourData
            headingSize: 28; buttonSize: 20
        }
        KitLabel {
            x: 64; y: yourData.y + yourData.height + 28; width: 640
            model: layout.screen.lb2
            font.pixelSize: 16
            color: Theme.fineText
            lineHeight: 1.15
        }
    }
}
