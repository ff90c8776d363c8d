#pragma once
// The first tab: today's calories against the budget, and the add menu that leads to food
// search, custom food, the exercise list or custom exercise.

#include "dashboard/DashboardScreen.h"
#include "ui/ActionSheet.h"
#include "ui/Button.h"
#include "ui/ScrollView.h"

class TodayScreen : public DashboardScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(ScrollView* mainScroll READ mainScroll CONSTANT)

public:
    explicit TodayScreen(QObject* parent = nullptr);
    ~TodayScreen() override;

    ScrollView* mainScroll() { return &mainScroll_; }
    // The option sheet shown last.
    ActionSheet* actiondoor() const { return actiondoor_; }

public slots:
    void AddButton();
    void addFood(Button* sender = nullptr);
    void addExcercise(Button* sender = nullptr);
    void actionSheetClickedButtonAtIndex(ActionSheet* sheet, int index);

protected:
    void viewDidLoad() override;
    void viewWillAppear(bool animated) override;
    View* canvas() override { return &mainScroll_; }

private:
    void showMenu(int tag);
    void retireMenu();
    void pushOnTodayTab(ViewController* screen);

    ScrollView mainScroll_;
    ActionSheet* actiondoor_ = nullptr;
};
