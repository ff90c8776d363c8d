#pragma once
// The set-up screens on a navigation stack in a window that nothing draws, over the real calorie
// store (a fresh copy of food.db) and user defaults in a throwaway folder.

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
        state.databasePath = databasePath();
        std::filesystem::copy_file(FOOD_DB_PATH, state.databasePath);
        std::filesystem::permissions(state.databasePath, std::filesystem::perms::owner_write,
                                     std::filesystem::perm_options::add);
        state.defaults = &defaults_;
        Application::setDelegate(this);
    }
    ~WizardApp() override {
        window_.reset();
        Application::setDelegate(nullptr);
        AppState::shared() = AppState{};
    }

    CalorieStore& store() override { return store_; }
    Window* window() override { return window_.get(); }
    UserDefaults* standardUserDefaults() override { return &defaults_; }

    // Makes a new Step the root of the window's stack; it loads and appears at once.
    template <class Step>
    Step* start() {
        auto* step = new Step;
        window_->setRootViewController(new NavigationController(step));
        return step;
    }
    NavigationController* nav() { return window_->rootViewController(); }
    // The alert on show, or null.
    AlertView* alert() { return qobject_cast<AlertView*>(window_->presented().value(0)); }

    std::string databasePath() const { return dir_.file("food.db"); }
    QString firstTimeOnDisk() const {
        return QSettings(defaults_.fileName(), QSettings::IniFormat).value("firstTime").toString();
    }

private:
    TempDir dir_;
    CalorieStore store_;
    SettingsDefaults defaults_{QString::fromStdString(dir_.path().string())};
    std::unique_ptr<Window> window_ = std::make_unique<Window>();
};
