#pragma once
// The fifth tab: what the program does and where its data lives. The texts are the layout's.

#include "ui/Label.h"
#include "ui/ScrollView.h"
#include "ui/ViewController.h"

class MoreScreen : public ViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* lb1 READ lb1 CONSTANT)
    Q_PROPERTY(Label* lb2 READ lb2 CONSTANT)
    Q_PROPERTY(ScrollView* mainscrol READ mainscrol CONSTANT)

public:
    explicit MoreScreen(QObject* parent = nullptr);

    Label* lb1() { return &lb1_; }
    Label* lb2() { return &lb2_; }
    ScrollView* mainscrol() { return &mainscrol_; }

protected:
    void viewDidLoad() override;

private:
    Label lb1_;
    Label lb2_;
    ScrollView mainscrol_;
};
