import QtQuick
import QtQml
import CalorieCounter.Kit

// Places item at the model's frame when code has set one; otherwise the layout's geometry holds.
QtObject {
    id: frame
    required property Item item
    property View model
    // False where a container places the item and only its size counts (a bar button's view).
    property bool positioned: true
    // Where the item is cut off: it is made no wider than reaches this far.
    property real maxRight: Infinity
    readonly property bool active: !!model && model.frame.width > 0 && model.frame.height > 0

    property list<QtObject> bindings: [
        Binding { target: frame.item; property: "x"; value: frame.model?.frame.x ?? 0; when: frame.active && frame.positioned },
        Binding { target: frame.item; property: "y"; value: frame.model?.frame.y ?? 0; when: frame.active && frame.positioned },
        Binding { target: frame.item; property: "width"; value: Math.min(frame.model?.frame.width ?? 0, frame.maxRight - (frame.model?.frame.x ?? 0)); when: frame.active },
        Binding { target: frame.item; property: "height"; value: frame.model?.frame.height ?? 0; when: frame.active }
    ]
}
