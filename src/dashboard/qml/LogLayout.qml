import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Dashboard

KitScreen {
    id: layout
    required property LogScreen screen
    view: screen.view  // the bar and the budget line are drawn into it

    DayStepper {
        screen: layout.screen
        y: Theme.pad ? 72 : 46
        width: parent.width
    }
    DashboardBody {
        screen: layout.screen
    }
}
