import QtQuick
import CalorieCounter.Kit

// The centred column a screen's content stands in: the available width less the margins on a
// phone, a fixed width on a pad.
Column {
    required property real available
    width: Theme.columnWidth > 0 ? Theme.columnWidth : available - 2 * Theme.margin
    x: (available - width) / 2
}
