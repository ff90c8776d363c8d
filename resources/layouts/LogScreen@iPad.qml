import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout

    DayStepper {
        screen: layout.screen
        pad: true
        y: 72
        width: parent.width
    }
    DashboardBody {
        screen: layout.screen
        pad: true
    }
}
