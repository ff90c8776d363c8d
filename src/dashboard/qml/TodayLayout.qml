import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Dashboard

KitScreen {
    id: layout
    required property TodayScreen screen

    KitScrollView {
        anchors.fill: parent
        model: layout.screen.mainScroll

        KitLabel {
            model: layout.screen.dateLbl
            x: 16; y: 18; width: 288
            font.pixelSize: 22
            font.weight: Font.DemiBold
        }
        DashboardBody {
            id: body
            screen: layout.screen
        }
        AddButtons {
            screen: layout.screen
            x: (body.width - width) / 2
            y: body.height + 22
        }
    }
}
