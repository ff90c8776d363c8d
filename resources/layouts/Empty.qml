import QtQuick
// The layout of a screen that has none of its own (the tab interface's container).
Item { property var screen }
