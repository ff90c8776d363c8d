pragma ComponentBehavior: Bound
import QtQuick
import Qt.labs.qmlmodels
import CalorieCounter.Kit

// Draws a list of layers in order, later ones on top, each with its class's renderer. Layers
// are drawing only: none of it reaches assistive technology.
Repeater {
    property ObjectListModel layers
    model: layers
    delegate: DelegateChooser {
        role: "kind"
        DelegateChoice {
            roleValue: "TextLayer"
            KitTextLayer { required property TextLayer modelData; model: modelData }
        }
        DelegateChoice {
            roleValue: "ShapeLayer"
            KitShapeLayer { required property ShapeLayer modelData; model: modelData }
        }
    }
}
