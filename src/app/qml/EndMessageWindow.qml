import QtQuick
import QtQuick.Controls.Basic as Controls
import QtQuick.Dialogs
import CalorieCounter.Kit
import CalorieCounter.App

// The window the program ends in: why it cannot go on and, where they apply, the ways out. A way
// out that lets the program go on closes it; Quit, Escape or closing the window ends it.
Window {
    id: window
    required property EndMessage model
    title: "Calorie Counter"
    flags: Qt.Dialog
    modality: Qt.ApplicationModal
    width: 420
    height: column.implicitHeight + 40
    color: Theme.windowBackground

    Shortcut { sequence: "Esc"; onActivated: window.close() }

    FileDialog {
        id: exportDialog
        title: "Export as CSV"
        fileMode: FileDialog.SaveFile
        nameFilters: ["CSV files (*.csv)"]
        selectedFile: window.model.suggestedCsv
        onAccepted: window.model.exportTo(selectedFile)
    }

    Column {
        id: column
        x: 20; y: 20
        width: parent.width - 40
        spacing: 14
        Accessible.role: Accessible.AlertMessage
        Accessible.name: heading.text

        Text {
            id: heading
            width: parent.width
            text: "Calorie Counter cannot go on"
            color: Theme.text
            font.pixelSize: 17; font.bold: true
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText; Accessible.name: text
        }
        Text {
            width: parent.width
            text: window.model.message
            color: Theme.text
            textFormat: Text.PlainText
            font.pixelSize: 14
            wrapMode: Text.WrapAnywhere
            Accessible.role: Accessible.StaticText; Accessible.name: text
        }
        Text {
            width: parent.width
            visible: text !== ""
            text: window.model.outcome
            color: Theme.secondaryText
            textFormat: Text.PlainText
            font.pixelSize: 13
            wrapMode: Text.WrapAnywhere
            Accessible.role: Accessible.StaticText; Accessible.name: text
            Accessible.ignored: !visible
        }
        Flow {
            width: parent.width
            spacing: 8
            layoutDirection: Qt.RightToLeft
            WayOut { text: "Quit"; focus: true; onActivated: window.close() }
            WayOut { text: "Start a new plan"; visible: window.model.canStartNew; onActivated: window.model.startNewPlan() }
            WayOut { text: "Finish the plan"; visible: window.model.canFinish; onActivated: window.model.finishPlan() }
            WayOut { text: "Restore the latest backup"; visible: window.model.canRestore; onActivated: window.model.restoreLatest() }
            WayOut { text: "Export as CSV…"; visible: window.model.canExport; onActivated: exportDialog.open() }
        }
    }

    // Controls' button: the kit's own Button is a model type of the screens.
    component WayOut: Controls.Button {
        signal activated()
        onClicked: activated()
        Keys.onReturnPressed: activated()
        Keys.onEnterPressed: activated()
        Accessible.role: Accessible.Button
        Accessible.name: text
        Accessible.ignored: !visible
        Accessible.onPressAction: activated()
    }
}
