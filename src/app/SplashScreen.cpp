#include "app/SplashScreen.h"

#include "app/tabs/TabBar.h"
#include "setup/MeasureUnitScreen.h"
#include "store/AppState.h"
#include "store/DevLog.h"
#include "store/UserDefaults.h"
#include "ui/NavigationController.h"

void SplashScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    navigationController()->setNavigationBarHidden(true);
    AppState& state = AppState::shared();
    if (pad_) state.isPad = true;

    ViewController* next = nullptr;
    if (state.defaults->stringForKey("firstTime") == "no") {
        next = new TabBar;
    } else {
        DEVLOG("firstTime");
        next = new MeasureUnitScreen;
    }
    navigationController()->pushViewController(next, true);
}

void SplashScreen::viewDidDisappear(bool animated) {
    ViewController::viewDidDisappear(animated);
    if (NavigationController* nav = navigationController()) nav->setNavigationBarHidden(false);
}
