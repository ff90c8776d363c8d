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
        Button* next = barButton("Next", 40);
        connect(next, &Button::touchUpInside, this, &WizardScreen::nextButton);
        navigationItem()->setRightBarButtonItem(new BarButtonItem(next));
    }
    if (buttons & Previous) {
        Button* previous = barButton("Previous", 70);
        connect(previous, &Button::touchUpInside, this, &WizardScreen::previousButton);
        navigationItem()->setLeftBarButtonItem(new BarButtonItem(previous));
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
