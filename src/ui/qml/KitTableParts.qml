import QtQuick
import CalorieCounter.Kit

// The parts of a table that its list makes in contexts of their own (its header view and the
// sections' headers). Declared apart from the table's document, which binds its components to
// its own context, they reach the table through the list's rows.
QtObject {
    readonly property Component searchBar: KitSearchBar {
        width: ListView.view.width
        model: (ListView.view.model as TableRows)?.tableHeaderView as SearchBar
    }
    // Not named "section": a list reusing a section header looks that name up here.
    readonly property Component sectionHeader: KitTableSection {}
}
