import QtQuick
import CalorieKit

// Renders a TableView as a virtualized list: only the rows on screen (and a few about to come)
// exist, each drawing the cell its data source made for it, with the table's header view
// scrolling above the first row and each section's header view staying at the top while its
// rows pass. A tap, Return or Space on the current row, or a screen reader's press selects it.
Item {
    id: root
    property TableView model: TableView {}
    property real rowHeight: 44
    property real sectionHeaderHeight: 22
    property real separatorInset: 15
    property color selectionColor: "#D9D9D9"
    property color separatorColor: "#22000000"
    // For layouts: how many rows the table has now (all sections), and where they begin.
    readonly property int rowCount: list.count
    readonly property real headerHeight: list.headerItem ? list.headerItem.height : 0

    visible: !model.hidden
    clip: true

    Rectangle { anchors.fill: parent; color: root.model.backgroundColor }
    Label { id: noLabel }

    ListView {
        id: list
        anchors.fill: parent
        model: root.model.rows
        reuseItems: true
        highlightFollowsCurrentItem: false
        Accessible.role: Accessible.List

        header: Loader {
            readonly property View view: root.model.tableHeaderView
            width: list.width
            active: !!view
            source: view ? "Kit" + view.kind + ".qml" : ""
            onLoaded: item.model = view
        }

        section.property: "section"
        section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
        section.delegate: Item {
            id: header
            required property string section
            readonly property View view: root.model.headerViewForSection(Number(section))
            width: list.width
            height: view ? root.sectionHeaderHeight : 0
            clip: true
            KitSubviews { view: header.view }
        }

        delegate: Item {
            id: row
            required property int index
            required property bool selected
            property TableViewCell cell: null
            width: list.width
            height: root.rowHeight

            // The cell goes back to the table's queue when the row leaves the screen.
            function bind() {
                unbind()
                cell = root.model.cellForRow(index)
                fade.stop()
                highlight.opacity = selected ? 1 : 0
            }
            function unbind() {
                if (cell && root.model) root.model.enqueueReusableCell(cell)
                cell = null
            }
            Component.onCompleted: bind()
            Component.onDestruction: unbind()
            ListView.onPooled: unbind()
            ListView.onReused: bind()
            onSelectedChanged: {
                if (!selected && root.model.deselectionAnimated) {
                    fade.restart()
                } else {
                    fade.stop()
                    highlight.opacity = selected ? 1 : 0
                }
            }

            Rectangle {
                anchors.fill: parent
                color: row.cell ? row.cell.backgroundColor : "transparent"
            }
            Rectangle {
                id: highlight
                anchors.fill: parent
                color: root.selectionColor
                NumberAnimation on opacity { id: fade; running: false; to: 0; duration: 300 }
            }
            KitLabel {
                anchors { fill: parent; leftMargin: root.separatorInset; rightMargin: root.separatorInset }
                model: row.cell ? row.cell.textLabel : noLabel
                maximumLineCount: 2
                elide: Text.ElideRight
                lineHeight: 0.95
                Accessible.ignored: true
            }
            Rectangle {
                x: root.separatorInset
                anchors.bottom: parent.bottom
                width: parent.width - x
                height: 1
                color: root.separatorColor
            }
            Rectangle {
                anchors.fill: parent
                color: "transparent"
                border { width: 2; color: Theme.tint }
                visible: row.ListView.isCurrentItem && keys.activeFocus
            }
            MouseArea {
                anchors.fill: parent
                onClicked: {
                    list.currentIndex = row.index
                    root.model.userSelectedRow(row.index)
                }
            }

            Accessible.role: Accessible.ListItem
            Accessible.name: row.cell ? row.cell.textLabel.text : ""
            Accessible.selectable: true
            Accessible.selected: row.selected
            Accessible.onPressAction: root.model.userSelectedRow(row.index)
        }

        NumberAnimation {
            id: scrolling
            target: list
            property: "contentY"
            duration: 300
            easing.type: Easing.InOutQuad
        }
    }

    // The keyboard's way in: Tab here, the arrows move the current row, Return or Space selects
    // it. Not the list itself, whose focus would pass straight on to a field in its header view.
    Item {
        id: keys
        activeFocusOnTab: true
        function move(by) {
            list.currentIndex = Math.max(0, Math.min(list.count - 1, list.currentIndex + by))
            list.positionViewAtIndex(list.currentIndex, ListView.Contain)
        }
        onActiveFocusChanged: if (activeFocus && list.currentIndex < 0) move(0)
        Keys.onUpPressed: move(-1)
        Keys.onDownPressed: move(1)
        Keys.onReturnPressed: root.model.userSelectedRow(list.currentIndex)
        Keys.onEnterPressed: root.model.userSelectedRow(list.currentIndex)
        Keys.onSpacePressed: root.model.userSelectedRow(list.currentIndex)
        Accessible.ignored: true  // the rows speak for themselves
    }

    Connections {
        target: root.model
        function onScrollRequested(row, position, animated) {
            const from = list.contentY
            scrolling.stop()
            list.positionViewAtIndex(row, [ListView.Contain, ListView.Beginning, ListView.Center, ListView.End][position])
            if (!animated) return
            scrolling.to = list.contentY
            list.contentY = from
            scrolling.start()
        }
    }
    // The rows are first asked for once the screen has loaded, as the platform lays a table out.
    Component.onCompleted: Qt.callLater(() => root.model && root.model.layoutIfNeeded())
}
