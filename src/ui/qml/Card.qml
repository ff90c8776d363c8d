import QtQuick
import CalorieCounter.Kit

// The white rounded box that fields, wheels and answers stand in.
Rectangle {
    radius: 12 * Theme.unit
    color: Theme.field
    border.width: 1
    border.color: Theme.barLine
}
