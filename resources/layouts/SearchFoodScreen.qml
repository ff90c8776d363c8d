import QtQuick
import "qrc:/ui"

KitScreen {
    id: layout
    property bool pad: false

    KitTableView {
        id: table
        anchors.fill: parent
        model: layout.screen.searchFoodTable
        rowHeight: layout.pad ? 56 : 52
        separatorInset: layout.pad ? 24 : 15
    }
    // What an empty list means: nothing typed yet, or nothing found.
    Text {
        x: 24
        y: table.headerHeight + (layout.pad ? 56 : 36)
        width: layout.width - 48
        visible: table.rowCount === 0
        text: layout.screen.searchBarOut.text.length > 0 ? "No food of the catalogue has this in its name."
                                                        : "Type part of a food's name: \"apple\", \"rice\", \"cheddar\"."
        color: Theme.secondaryText
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        font.family: Theme.fontFamily
        font.pixelSize: layout.pad ? 20 : 15
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
