import QtQuick
import CalorieCounter.Kit

// A section's header view above its rows, found through the list's rows.
Item {
    id: header
    required property string section
    readonly property View view: (header.ListView.view.model as TableRows)?.headerViewForSection(Number(section)) ?? null

    width: ListView.view.width
    height: view ? Theme.sectionHeaderHeight : 0
    clip: true
    KitSubviews { view: header.view; visibleRight: header.width }
}
