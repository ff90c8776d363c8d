#pragma once
// The fifth tab: what the program does, where its data lives, and what a person can do with it.
// The texts are the layout's.

#include "ui/Label.h"
#include "ui/ScrollView.h"
#include "ui/ViewController.h"
#include "app/tabs/YourDataSection.h"

class MoreScreen : public ViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* lb1 READ lb1 CONSTANT)
    Q_PROPERTY(Label* lb2 READ lb2 CONSTANT)
    Q_PROPERTY(ScrollView* mainscrol READ mainscrol CONSTANT)
    Q_PROPERTY(YourDataSection* yourData READ yourData CONSTANT)

public:
    explicit MoreScreen(QObject* parent = nullptr);

    Label* lb1() { return &lb1_; }
    Label* lb2() { return &lb2_; }
    ScrollView* mainscrol() { return &mainscrol_; }
    YourDataSection* yourData() { return &yourData_; }

protected:
    void viewDidLoad() override;

private:
    Label lb1_;
    Label lb2_;
    ScrollView mainscrol_;
    YourDataSection yourData_;
};
