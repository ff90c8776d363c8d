#pragma once
// The fourth tab: steps through the days of the plan, from its first day up to today. The day
// it shows is dayIndex, the day that entries are booked on.

#include "dashboard/DashboardScreen.h"
#include "ui/Button.h"

class LogScreen : public DashboardScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")

public:
    explicit LogScreen(QObject* parent = nullptr);

    // Calories per point, kept from the last appearance for the redraws of stepping.
    float f() const { return f_; }

public slots:
    void finalResult();
    void nextBtn(Button* sender = nullptr);
    void backBtn(Button* sender = nullptr);

protected:
    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    View* canvas() override { return view(); }

private:
    void loadDay();

    float f_ = 0;
};
