#include "GuiApplication.h"

#include <QGuiApplication>
#include <QQuickStyle>
#include <cstdlib>

#include "ui/Kit.h"

void ensureGuiApplication() {
    // Never destroyed: at exit Qt's own clean-up would run after the statics it relies on.
    static QGuiApplication* const app = [] {
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
        static int argc = 1;
        static char name[] = "calorie-bench";
        static char* argv[] = {name, nullptr};
        auto* created = new QGuiApplication(argc, argv);
        QQuickStyle::setStyle("Basic");
        registerKitTypes();
        return created;
    }();
    (void)app;
}
