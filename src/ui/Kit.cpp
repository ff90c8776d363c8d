#include "ui/Kit.h"

#include <QtQml/qqml.h>

#include "ui/ActionSheet.h"
#include "ui/AlertView.h"
#include "ui/Button.h"
#include "ui/ImageView.h"
#include "ui/Label.h"
#include "ui/LiveRowsModel.h"
#include "ui/NavigationController.h"
#include "ui/ScrollView.h"
#include "ui/TabBarController.h"
#include "ui/TextField.h"
#include "ui/ViewController.h"
#include "ui/Window.h"
#include "ui/PickerView.h"
#include "ui/DatePicker.h"
#include "ui/ShapeLayer.h"
#include "ui/TextLayer.h"
#include "ui/SearchBar.h"
#include "ui/TableView.h"

void registerKitTypes() {
    constexpr const char* uri = "CalorieKit";
    // Layouts may declare their own controls (a choice button, a static label)...
    qmlRegisterType<View>(uri, 1, 0, "View");
    qmlRegisterType<Label>(uri, 1, 0, "Label");
    qmlRegisterType<Button>(uri, 1, 0, "Button");
    qmlRegisterType<ImageView>(uri, 1, 0, "ImageView");
    qmlRegisterType<ScrollView>(uri, 1, 0, "ScrollView");
    qmlRegisterType<TextField>(uri, 1, 0, "TextField");
    // ...but screens, containers and modals come from code.
    const QString fromCode = QStringLiteral("created by screen code");
    qmlRegisterUncreatableType<ViewController>(uri, 1, 0, "ViewController", fromCode);
    qmlRegisterUncreatableType<NavigationItem>(uri, 1, 0, "NavigationItem", fromCode);
    qmlRegisterUncreatableType<BarButtonItem>(uri, 1, 0, "BarButtonItem", fromCode);
    qmlRegisterUncreatableType<TabBarItem>(uri, 1, 0, "TabBarItem", fromCode);
    qmlRegisterUncreatableType<NavigationController>(uri, 1, 0, "NavigationController", fromCode);
    qmlRegisterUncreatableType<TabBarController>(uri, 1, 0, "TabBarController", fromCode);
    qmlRegisterUncreatableType<Window>(uri, 1, 0, "WindowModel", fromCode);
    qmlRegisterUncreatableType<AlertView>(uri, 1, 0, "AlertView", fromCode);
    qmlRegisterUncreatableType<ActionSheet>(uri, 1, 0, "ActionSheet", fromCode);
    qmlRegisterType<PickerView>(uri, 1, 0, "PickerView");
    qmlRegisterType<DatePicker>(uri, 1, 0, "DatePicker");
    qmlRegisterType<ShapeLayer>(uri, 1, 0, "ShapeLayer");
    qmlRegisterUncreatableType<ObjectListModel>(uri, 1, 0, "ObjectListModel", fromCode);
    qmlRegisterType<LiveRowsModel>(uri, 1, 0, "LiveRowsModel");
    qmlRegisterType<TextLayer>(uri, 1, 0, "TextLayer");
    qmlRegisterType<TableView>(uri, 1, 0, "TableView");
    qmlRegisterType<SearchBar>(uri, 1, 0, "SearchBar");
    qmlRegisterUncreatableType<TableViewCell>(uri, 1, 0, "TableViewCell", fromCode);
}
