import QtQuick
import "qrc:/ui"
import "qrc:/exercise"

// The search bar across the top, the list beneath it and the letter index bar down the list's
// right edge; while the bar is hidden (searching) the list takes the whole width.
KitScreen {
    id: layout
    property bool pad: false

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
        rowHeight: layout.pad ? 52 : 44
        separatorInset: layout.pad ? 24 : 15
    }
    Rectangle {  // the list's white goes on under the bar
        anchors.fill: indexBar
        visible: indexBar.visible
        color: layout.screen.plainTableView.backgroundColor
    }
    KitSectionIndexBar {
        id: indexBar
        anchors { top: searchBar.bottom; bottom: parent.bottom; right: parent.right }
        width: layout.pad ? 30 : 20
        model: layout.screen.indexBar
    }
    // What an empty list means while searching.
    Text {
        x: 24
        y: table.y + (layout.pad ? 56 : 36)
        width: layout.width - 48
        visible: layout.screen.searchBarOut.text.length > 0 && table.rowCount === 0
        text: "No activity has this in its name."
        color: Theme.secondaryText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        font.family: Theme.fontFamily
        font.pixelSize: layout.pad ? 20 : 15
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
