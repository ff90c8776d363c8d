import QtQuick
import CalorieCounter.Kit

// Renders a DatePicker: wheels for month, day and year. Each wheel the user turns sets the date
// at once; a date set from code turns the wheels.
Item {
    id: root
    property DatePicker model: DatePicker {}
    property font font: Qt.font({ family: Theme.fontFamily, pixelSize: 21 })

    implicitWidth: 320
    implicitHeight: 216
    visible: !model.hidden

    Row {
        anchors.fill: parent
        KitWheel {
            id: month
            Accessible.name: "Month"
            width: root.width * 0.46
            height: root.height
            font: root.font
            source: root.model.months
            onSettled: root.apply()
        }
        KitWheel {
            id: day
            Accessible.name: "Day"
            width: root.width * 0.2
            height: root.height
            font: root.font
            source: root.model.days
            onSettled: root.apply()
        }
        KitWheel {
            id: year
            Accessible.name: "Year"
            width: root.width * 0.34
            height: root.height
            font: root.font
            source: root.model.years
            onSettled: root.apply()
        }
    }

    function apply() {
        model.setYearMonthDay(model.minimumYear + year.currentIndex, month.currentIndex + 1, day.currentIndex + 1)
    }
    function show() {
        month.select(model.month - 1)
        day.select(model.day - 1)
        year.select(model.year - model.minimumYear)
    }
    // After the day wheel has taken the month's new length.
    Connections { target: root.model; function onDateChanged() { showLater.restart() } }
    Timer { id: showLater; interval: 0; onTriggered: root.show() }
    Component.onCompleted: show()

    FrameBinding { item: root; model: root.model }
}
