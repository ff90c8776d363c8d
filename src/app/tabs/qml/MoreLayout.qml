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
            x: 16; y: 20; width: 288
            text: "About Calorie Counter"
            font.family: Theme.fontFamily; font.pixelSize: 20; font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading; Accessible.name: text
            Accessible.ignored: !visible || !enabled
        }
        KitLabel {
            id: about
            x: 16; y: 54; width: 288
            model: layout.screen.lb1
            font.pixelSize: 13
            lineHeight: 1.15
        }
        YourDataButtons {
            id: yourData
            x: 16; y: about.y + about.height + 20; width: 288
            model: layout.screen.yourData
            headingSize: 20; buttonSize: 17
        }
        KitLabel {
            x: 16; y: yourData.y + yourData.height + 20; width: 288
            model: layout.screen.lb2
            font.pixelSize: 12
            color: Theme.fineText
            lineHeight: 1.15
        }
    }
}
