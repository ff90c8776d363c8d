#include "app/EndMessage.h"

#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <QQuickWindow>

#include "app/tabs/YourDataSection.h"
#include "store/ProgramEnd.h"
#include "store/YourData.h"

namespace {

QString sentence(QString text) {
    if (text.isEmpty()) return text;
    text[0] = text[0].toUpper();
    if (!text.endsWith('.')) text += '.';
    return text;
}

// Runs the window until the person closes it or a way out lets the program go on.
bool runWindow(EndMessage& model) {
    for (QWindow* other : QGuiApplication::topLevelWindows()) other->hide();
    QQmlApplicationEngine engine;
    engine.setInitialProperties({{"model", QVariant::fromValue(&model)}});
    engine.loadData("import CalorieCounter.App\nEndMessageWindow {}");
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().value(0));
    if (!window) return false;  // stderr has the message already

    QEventLoop loop;
    QObject::connect(window, &QWindow::visibleChanged, &loop, [&](bool visible) {
        if (!visible) loop.quit();
    });
    QObject::connect(&model, &EndMessage::finished, &loop, &QEventLoop::quit);
    window->show();
    window->requestActivate();
    loop.exec();
    window->hide();
    return model.goOn();
}

}  // namespace

bool hasDisplay() {
    if (!qGuiApp) return false;
    const QString platform = QGuiApplication::platformName();
    return platform != "offscreen" && platform != "minimal";
}

EndMessage::EndMessage(const QString& cause, const DeadEnd& end, const YourData* data, QObject* parent)
    : QObject(parent), message_(sentence(cause)), end_(end), data_(data) {}

QUrl EndMessage::suggestedCsv() const {
    return inDocuments(YourData::suggestedCsvName(Clock::now()));
}

void EndMessage::report(bool ok, const std::string& text, bool goOn) {
    outcome_ = QString::fromStdString(text);
    emit outcomeChanged();
    if (ok && goOn) {
        goOn_ = true;
        emit finished();
    }
}

void EndMessage::exportTo(const QUrl& file) {
    if (!canExport()) return;
    const DataOutcome done = data_->exportCsv(QFile::encodeName(file.toLocalFile()).toStdString());
    report(done.ok, done.text, false);
}

void EndMessage::restoreLatest() {
    if (!canRestore()) return;
    const DataOutcome done = data_->restoreLatest(Clock::now());
    report(done.ok, done.text, true);
}

void EndMessage::finishPlan() {
    if (!canFinish()) return;
    const DataOutcome done = data_->finishPlan(Clock::now());
    report(done.ok, done.text, true);
}

void EndMessage::startNewPlan() {
    if (!canStartNew()) return;
    const DataOutcome done = data_->startNewPlan(Clock::now());
    report(done.ok, done.text, true);
}

void showEndMessageWindow(const QString& message) {
    EndMessage model(message, DeadEnd{}, nullptr);
    runWindow(model);
}

bool offerWaysOut(const DeadEnd& end, const YourData& data) {
    if (!hasDisplay()) return false;
    EndMessage model(QString::fromStdString(end.cause), end, &data);
    return runWindow(model);
}

void installEndMessageWindow() {
    setProgramEndPresenter([](const std::string& message) {
        if (hasDisplay()) showEndMessageWindow(QString::fromStdString(message));
    });
}
