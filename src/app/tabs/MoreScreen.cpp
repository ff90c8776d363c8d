#include "app/tabs/MoreScreen.h"

#include "store/AppState.h"
#include "ui/Application.h"

MoreScreen::MoreScreen(QObject* parent) : ViewController(parent) {
    setTitle("More");
}

void MoreScreen::viewDidLoad() {
    ViewController::viewDidLoad();
    lb1_.setTextAlignment(3);  // justified
    mainscrol_.setAutomaticallyAdjustsInsets(false);
    // The texts' height and the "Your data" section's below them.
    mainscrol_.setContentSize(QSizeF(320, 690 + 200));
    AppState::shared().defaults = Application::delegate()->standardUserDefaults();
}
