import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Food

KitScreen {
    id: layout
    required property SearchFoodScreen screen

    KitTableView {
        id: table
        anchors.fill: parent
        model: layout.screen.searchFoodTable
        rowHeight: Theme.pad ? 56 : 52
        separatorInset: Theme.pad ? 24 : 15
    }
    EmptyListHint {
        y: table.headerHeight + (Theme.pad ? 56 : 36)
        visible: table.rowCount === 0
        text: layout.screen.emptyListHint
    }
}
