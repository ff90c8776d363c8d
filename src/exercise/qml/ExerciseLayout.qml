import QtQuick
import CalorieCounter.Kit
import CalorieCounter.Exercise

// The search bar across the top, the list beneath it and the letter index bar down the list's
// right edge; while the bar is hidden (searching) the list takes the whole width.
KitScreen {
    id: layout
    required property ExerciseScreen screen

    KitSearchBar {
        id: searchBar
        width: layout.width
        model: layout.screen.searchBarOut
    }
    KitTableView {
        id: table
        anchors { top: searchBar.bottom; bottom: parent.bottom }
        width: layout.width - (indexBar.visible ? indexBar.width : 0)
        model: layout.screen.plainTableView
        rowHeight: Theme.pad ? 52 : 44
        separatorInset: Theme.pad ? 24 : 15
    }
    Rectangle {  // the list's white goes on under the bar
        anchors.fill: indexBar
        visible: indexBar.visible
        color: layout.screen.plainTableView.backgroundColor
    }
    SectionIndexBarView {
        id: indexBar
        anchors { top: searchBar.bottom; bottom: parent.bottom; right: parent.right }
        width: Theme.pad ? 30 : 20
        model: layout.screen.indexBar
    }
    EmptyListHint {
        y: table.y + (Theme.pad ? 56 : 36)
        visible: table.rowCount === 0 && text.length > 0
        text: layout.screen.emptyListHint
    }
}
