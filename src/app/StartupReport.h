#pragma once
// What the command line asks for once the first screen is up: a screenshot (--screenshot) or
// the start-up figures for benchmarks (--report-startup). Either one quits the program.

#include <QObject>

#include "app/CommandLine.h"

class QQuickWindow;

class StartupReport : public QObject {
    Q_OBJECT

public:
    StartupReport(QQuickWindow* window, const LaunchOptions& options);

private:
    void firstFrame();
    void saveScreenshot();

    QQuickWindow* window_;
    LaunchOptions options_;
    bool seen_ = false;
};
