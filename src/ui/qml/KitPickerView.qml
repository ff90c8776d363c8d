pragma ComponentBehavior: Bound
import QtQuick
import CalorieCounter.Kit

// Renders a PickerView: one wheel per component, side by side and equally wide. Titles and the
// wheels' accessible names are asked of the picker; a reload builds the wheels anew.
Item {
    id: root
    property PickerView model: PickerView {}
    property font font: Qt.font({ family: Theme.fontFamily, pixelSize: 21 })

    implicitWidth: 320
    implicitHeight: 216
    visible: !model.hidden

    Row {
        anchors.fill: parent
        Repeater {
            id: wheels
            model: root.model.wheels
            KitWheel {
                id: wheel
                required property Wheel modelData
                required property int index
                source: modelData
                width: root.width / wheels.count
                height: root.height
                font: root.font
                Accessible.name: root.model.accessibilityLabelForComponent(wheel.index)
                onSettled: row => root.model.userSelectedRow(row, wheel.index)
                Component.onCompleted: select(root.model.selectedRowInComponent(wheel.index))
            }
        }
    }

    Connections {
        target: root.model
        function onRowSelected(row, component, animated) {
            const wheel = wheels.itemAt(component) as KitWheel
            if (wheel) wheel.select(row)
        }
    }

    FrameBinding { item: root; model: root.model }
}
