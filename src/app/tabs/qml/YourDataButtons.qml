pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Dialogs
import CalorieCounter.Kit
import CalorieCounter.Tabs

// "Your data" on the More screen: a heading, its three buttons one under the other, and the file
// dialog they open.
Column {
    id: section
    required property YourDataSection model
    property real headingSize: 20
    property real buttonSize: 17
    spacing: 2

    Text {
        width: parent.width
        height: implicitHeight + 8
        text: "Your data"
        font.family: Theme.fontFamily; font.pixelSize: section.headingSize; font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading; Accessible.name: text
        Accessible.ignored: !visible || !enabled
    }
    Repeater {
        model: [section.model.exportButton, section.model.backupButton, section.model.restoreButton]
        KitButton {
            required property Button modelData
            model: modelData
            width: implicitWidth
            height: section.buttonSize * 2.4
            font.pixelSize: section.buttonSize
            focusRing.anchors.margins: -2
        }
    }

    FileDialog {
        title: section.model.dialogTitle
        fileMode: section.model.dialogSaves ? FileDialog.SaveFile : FileDialog.OpenFile
        currentFolder: section.model.dialogFolder
        selectedFile: section.model.dialogFile
        nameFilters: section.model.dialogFilters
        acceptLabel: section.model.dialogAccept
        visible: section.model.dialogOpen
        onAccepted: section.model.fileChosen(selectedFile)
        onRejected: section.model.dialogClosed()
    }
}
