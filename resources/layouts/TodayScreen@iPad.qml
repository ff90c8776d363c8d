import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout

    KitScrollView {
        anchors.fill: parent
        model: layout.screen.mainScroll

        KitLabel {
            model: layout.screen.dateLbl
            x: 40; y: 48; width: 688
            font.pixelSize: 34
            font.weight: Font.DemiBold
        }
        DashboardBody {
            id: body
            screen: layout.screen
            pad: true
        }
        AddButtons {
            screen: layout.screen
            pad: true
            x: (body.width - width) / 2
            y: body.height + 48
        }
    }
}
