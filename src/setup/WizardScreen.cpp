#include "setup/WizardScreen.h"

#include "ui/AlertView.h"
#include "ui/Application.h"
#include "ui/BarButton.h"
#include "ui/Window.h"

void WizardScreen::previousButton() {
    navigationController()->popViewController(true);
}

void WizardScreen::addBarButtons(int buttons) {
    if (buttons & Next) {
        navigationItem()->setRightBarButtonItem(redBarButtonItem("Next", 40, this, &WizardScreen::nextButton));
    }
    if (buttons & Previous) {
        navigationItem()->setLeftBarButtonItem(
            redBarButtonItem("Previous", 70, this, &WizardScreen::previousButton));
    }
}

void WizardScreen::hideNavigationBackButton() {
    navigationController()->navigationItem()->setHidesBackButton(true);
}

void WizardScreen::showAlert(const char* text) {
    // The window keeps an alert that is never dismissed from outliving the application.
    Window* window = Application::delegate()->window();
    (new AlertView("Message", text, "Ok", window))->show();
}
