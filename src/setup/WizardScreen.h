#pragma once
// What the six set-up steps share: the custom "Next" and "Previous" bar buttons, the alert of an
// incomplete step, and the push of the next step.

#include "ui/NavigationController.h"
#include "ui/ViewController.h"

class WizardScreen : public ViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")

public:
    using ViewController::ViewController;

public slots:
    // Checks this step and goes on to the next one, or says what is missing.
    virtual void nextButton() = 0;
    // Back to the step below, whose answers and marks stay as they were. Step 1 builds no
    // "Previous", so nothing reaches it there.
    void previousButton();

protected:
    enum BarButton { Next = 1, Previous = 2 };
    // Builds the bar buttons as the step's view loads. Previous takes the place of the standard
    // back control.
    void addBarButtons(int buttons);
    // Steps 2 to 5 also ask the navigation controller's own item, not this screen's, to hide its
    // back button; nothing the user sees depends on it.
    void hideNavigationBackButton();

    // The step is incomplete: "Message" with text and "Ok", and nothing else changes.
    void showAlert(const char* text);

    // A fresh instance of the next step on every push, with the layout of this idiom.
    template <class Step>
    void pushStep() {
        navigationController()->pushViewController(new Step, true);
    }
};
