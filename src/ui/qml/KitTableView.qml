pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit

// Renders a TableView as a virtualized list: only the rows on screen (and a few about to come)
// exist, each drawing the cell its data source made for it, with the table's header view
// scrolling above the first row and each section's header view staying at the top while its
// rows pass (a table's header view is its search bar, where it has one). A tap, Return or Space on
// the row that has the keyboard, or a screen reader's press selects it.
Item {
    id: root
    property TableViewModel model: TableViewModel {}
    property real rowHeight: 44
    property real separatorInset: 15
    property color selectionColor: Theme.rowSelection
    property color separatorColor: Theme.rowSeparator
    // For layouts: how many rows the table has now (all sections), and where they begin.
    readonly property int rowCount: list.count
    readonly property real headerHeight: list.headerItem ? list.headerItem.height : 0
    // Where Tab enters the rows, after the header view's controls: the row that has the keyboard,
    // or else the first on screen. The keyboard goes to the row itself, so that assistive
    // technology hears the row as focused; the arrows take it from row to row.
    readonly property int tabRow: list.currentIndex >= 0 ? list.currentIndex : Math.max(0, list.count
        && list.indexAt(list.width / 2, Math.max(0, list.contentY) + rowHeight / 2))

    visible: !model.hidden
    clip: true

    Rectangle { anchors.fill: parent; color: root.model.backgroundColor }
    Label { id: noLabel }

    KitTableParts { id: parts }

    ListView {
        id: list
        anchors.fill: parent
        model: root.model.rows
        reuseItems: true
        highlightFollowsCurrentItem: false
        onMovementStarted: scrolling.stop()  // a finger on the list takes over from a glide
        Accessible.role: Accessible.List
        Accessible.ignored: !visible || !enabled

        header: root.model.tableHeaderView instanceof SearchBar ? parts.searchBar : null

        section.property: "section"
        section.labelPositioning: ViewSection.InlineLabels | ViewSection.CurrentLabelAtStart
        section.delegate: parts.sectionHeader

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
                color: row.cell ? row.cell.backgroundColor : Theme.clear
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
                color: Theme.clear
                border { width: 2; color: Theme.tint }
                visible: row.activeFocus
            }
            MouseArea {
                anchors.fill: parent
                onClicked: root.model.userSelectedRow(row.index)
            }

            // The list's current row is the one with the keyboard, and none while the keyboard is
            // elsewhere: the list gives its current row the keyboard whenever it makes it anew,
            // which would take it from a field in the header view as the rows change.
            activeFocusOnTab: index === root.tabRow
            onActiveFocusChanged: {
                if (activeFocus) list.currentIndex = index
                else if (list.currentIndex === index) list.currentIndex = -1
            }
            Keys.onUpPressed: root.moveKeyboard(-1)
            Keys.onDownPressed: root.moveKeyboard(1)
            Keys.onReturnPressed: root.model.userSelectedRow(index)
            Keys.onEnterPressed: root.model.userSelectedRow(index)
            Keys.onSpacePressed: root.model.userSelectedRow(index)

            // Selected, to a screen reader, is the row with the keyboard while there is one, else
            // the table's selection.
            Accessible.role: Accessible.ListItem
            Accessible.name: row.cell ? row.cell.textLabel.text : ""
            Accessible.focusable: true
            Accessible.selectable: true
            Accessible.selected: activeFocus || (selected && list.currentIndex < 0)
            Accessible.ignored: !visible || !enabled
            Accessible.onPressAction: if (visible && enabled) root.model.userSelectedRow(index)
        }

        // Rows not yet made stand where the list estimates them, and sections' headers make
        // rows unequal: a glide ends near a far row, and a short one then finishes it exactly.
        NumberAnimation {
            id: scrolling
            property int row: -1
            property int mode: ListView.Beginning
            property int glides: 0
            target: list
            property: "contentY"
            duration: 300
            easing.type: Easing.InOutQuad
            onFinished: if (++glides < 4) root.glide(row, mode, 150)
        }
    }

    function moveKeyboard(by) {
        list.currentIndex = Math.max(0, Math.min(list.count - 1, list.currentIndex + by))
        list.positionViewAtIndex(list.currentIndex, ListView.Contain)
        if (list.currentItem) list.currentItem.forceActiveFocus()
    }

    Connections {
        target: root.model
        function onScrollRequested(row, position, animated) {
            scrolling.stop()
            const mode = [ListView.Contain, ListView.Beginning, ListView.Center, ListView.End][position]
            if (!animated) {
                list.positionViewAtIndex(row, mode)
                return
            }
            scrolling.glides = 0
            root.glide(row, mode, 300)
        }
    }
    // Glides from where the list stands to where row is placed as mode says; no further than a
    // pixel is no glide.
    function glide(row, mode, duration) {
        const from = list.contentY
        list.positionViewAtIndex(row, mode)
        const to = list.contentY
        list.contentY = from
        if (Math.abs(to - from) < 1) {
            list.contentY = to
            return
        }
        scrolling.row = row
        scrolling.mode = mode
        scrolling.to = to
        scrolling.duration = duration
        scrolling.start()
    }
    // The rows are first asked for once the screen has loaded, as the platform lays a table out.
    Timer { running: true; interval: 0; onTriggered: root.model.layoutIfNeeded() }
}
