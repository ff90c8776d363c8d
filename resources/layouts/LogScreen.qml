import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout

    DayStepper {
        screen: layout.screen
        y: 46
        width: parent.width
    }
    DashboardBody {
        screen: layout.screen
    }
}
