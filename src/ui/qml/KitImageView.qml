import QtQuick
import CalorieCounter.Kit

Image {
    id: root
    property ImageView model: ImageView {}
    visible: !model.hidden
    source: Theme.imageUrl(model.imageName, Theme.imageScale)
    fillMode: Image.PreserveAspectFit
    FrameBinding { item: root; model: root.model }
}
