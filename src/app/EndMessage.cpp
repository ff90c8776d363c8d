#include "app/EndMessage.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <memory>

#include "store/ProgramEnd.h"

namespace {

// Plain QML, no kit: the program may be ending because a screen could not be built.
constexpr char kWindowQml[] = R"(
import QtQuick
import QtQuick.Controls.Basic

Window {
    id: window
    property string message
    title: "Calorie Counter"
    flags: Qt.Dialog
    modality: Qt.ApplicationModal
    width: 380
    height: column.implicitHeight + 40
    color: "#F2F2F2"

    Shortcut { sequence: StandardKey.Cancel; onActivated: window.close() }

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
            font.pixelSize: 17; font.bold: true
            wrapMode: Text.Wrap
            Accessible.role: Accessible.StaticText; Accessible.name: text
        }
        Text {
            id: body
            width: parent.width
            text: window.message
            textFormat: Text.PlainText
            font.pixelSize: 14
            wrapMode: Text.WrapAnywhere
            Accessible.role: Accessible.StaticText; Accessible.name: text
        }
        Button {
            anchors.right: parent.right
            text: "Quit"
            focus: true
            onClicked: window.close()
            Accessible.role: Accessible.Button
            Accessible.name: text
            Accessible.onPressAction: window.close()
            Keys.onReturnPressed: window.close()
            Keys.onEnterPressed: window.close()
        }
    }
}
)";

}  // namespace

bool hasDisplay() {
    if (!qGuiApp) return false;
    const QString platform = QGuiApplication::platformName();
    return platform != "offscreen" && platform != "minimal";
}

void showEndMessageWindow(const QString& message) {
    for (QWindow* other : QGuiApplication::topLevelWindows()) other->hide();

    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(kWindowQml, QUrl("qrc:/app/EndMessage.qml"));
    std::unique_ptr<QObject> object(component.createWithInitialProperties(
        {{"message", message.isEmpty() ? message : message.front().toUpper() + message.mid(1)}}));
    auto* window = qobject_cast<QQuickWindow*>(object.get());
    if (!window) return;  // stderr has the message already

    QEventLoop loop;
    QObject::connect(window, &QWindow::visibleChanged, &loop, [&](bool visible) {
        if (!visible) loop.quit();
    });
    window->show();
    window->requestActivate();
    loop.exec();
}

void installEndMessageWindow() {
    setProgramEndPresenter([](const std::string& message) {
        if (hasDisplay()) showEndMessageWindow(QString::fromStdString(message));
    });
}
