#pragma once
// The set-up screens on a navigation stack in a window that nothing draws. The application's
// delegate is real underneath: a calorie store over a fresh copy of food.db and the user
// defaults, both in a throwaway folder. Tests drive the screens through outlets and actions.

#include <QSettings>
#include <filesystem>
#include <memory>

#include "app/SettingsDefaults.h"
#include "store/AppState.h"
#include "store/CalorieStore.h"
#include "support/Fixtures.h"
#include "ui/AlertView.h"
#include "ui/Application.h"
#include "ui/NavigationController.h"
#include "ui/Window.h"

class WizardApp : public ApplicationDelegate {
public:
    WizardApp() : store_(AppState::shared()) {
        AppState& state = AppState::shared();
        state = AppState{};
        state.databaseName = "food.db";
        state.databasePath = databasePath();
        std::filesystem::copy_file(FOOD_DB_PATH, state.databasePath);
        std::filesystem::permissions(state.databasePath, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        defaults_ =
            std::make_unique<SettingsDefaults>(QString::fromStdString(dir_.path().string()));
        state.defaults = defaults_.get();
        Application::setDelegate(this);
    }
    ~WizardApp() override {
        window_.reset();
        Application::setDelegate(nullptr);
        AppState::shared() = AppState{};
    }
    WizardApp(const WizardApp&) = delete;
    WizardApp& operator=(const WizardApp&) = delete;

    CalorieStore& store() override { return store_; }
    Window* window() override { return window_.get(); }
    UserDefaults* standardUserDefaults() override { return defaults_.get(); }

    // Makes a new Step the root of the window's stack; it loads and appears at once.
    template <class Step>
    Step* start() {
        auto* step = new Step(layoutFor(Step::staticMetaObject.className()));
        window_->setRootViewController(new NavigationController(step));
        return step;
    }
    NavigationController* nav() { return window_->rootViewController(); }
    // The screen on top when it is a Step, else null.
    template <class Step>
    Step* top() {
        return qobject_cast<Step*>(nav()->topViewController());
    }

    // The alert on show, if any.
    AlertView* alert() {
        const QList<QObject*> shown = window_->presented();
        return shown.isEmpty() ? nullptr : qobject_cast<AlertView*>(shown.last());
    }
    void dismissAlert() {
        if (AlertView* shown = alert()) shown->clickButtonAtIndex(0);
    }

    std::string databasePath() const { return dir_.file("food.db"); }
    // "firstTime" as the defaults file on disk holds it.
    QString firstTimeOnDisk() const {
        return QSettings(QString::fromStdString(dir_.file("defaults.ini")), QSettings::IniFormat)
            .value("firstTime")
            .toString();
    }

private:
    TempDir dir_;
    CalorieStore store_;
    std::unique_ptr<SettingsDefaults> defaults_;
    std::unique_ptr<Window> window_ = std::make_unique<Window>();
};
