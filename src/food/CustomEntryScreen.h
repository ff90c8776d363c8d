#pragma once
// Books a typed number of calories on the day being edited: eaten (custom food) or burned (custom
// exercise), as the Today view's add menu chose in customEntryIsExercise. Nothing is checked:
// the text's integer value is taken, 0 when it has none.

#include "ui/Label.h"
#include "ui/TextField.h"
#include "ui/ViewController.h"

class CustomEntryScreen : public ViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* detailLbl READ detailLbl CONSTANT)
    Q_PROPERTY(TextField* calorieTxt READ calorieTxt CONSTANT)

public:
    explicit CustomEntryScreen(QObject* parent = nullptr);

    Label* detailLbl() { return &detailLbl_; }
    TextField* calorieTxt() { return &calorieTxt_; }

public slots:
    // "Done".
    void nextButton();
    // Back without booking; the screen attaches it to nothing itself.
    void previousButton();

protected:
    void viewDidLoad() override;
    // Deliberately nothing, not even the base class's.
    void viewWillDisappear(bool) override {}

private:
    Label detailLbl_;
    TextField calorieTxt_;
};
