// Views added by code reach QML one change at a time, and a pile of them is drawn as it always
// was once its oldest renderers have been flattened into a picture.
#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSignalSpy>
#include <QTest>
#include <memory>

#include "ui/Label.h"
#include "ui/LiveRowsModel.h"
#include "ui/ShapeLayer.h"

namespace {

QObject* objectAt(const QAbstractItemModel& model, int row) {
    return model.data(model.index(row, 0), ObjectListModel::ObjectRole).value<QObject*>();
}

// The rows [first, last] of the one insertion or removal announced last.
std::pair<int, int> lastRows(const QSignalSpy& spy) {
    return {spy.last().at(1).toInt(), spy.last().at(2).toInt()};
}

struct Announcements {
    explicit Announcements(QAbstractItemModel* model)
        : inserted(model, &QAbstractItemModel::rowsInserted),
          removed(model, &QAbstractItemModel::rowsRemoved),
          reset(model, &QAbstractItemModel::modelReset) {}
    QSignalSpy inserted, removed, reset;
};

}  // namespace

TEST(ObjectList, AnnouncesEachSingleInsertionAndRemoval) {
    ObjectListModel list;
    QAbstractItemModelTester tester(&list, QAbstractItemModelTester::FailureReportingMode::Fatal);
    Announcements said(&list);
    QObject a, b, c;
    for (QObject* o : {&a, &b, &c}) list.append(o);
    EXPECT_EQ(said.inserted.count(), 3);
    EXPECT_EQ(lastRows(said.inserted), std::make_pair(2, 2));

    EXPECT_TRUE(list.remove(&b));
    EXPECT_EQ(lastRows(said.removed), std::make_pair(1, 1));
    EXPECT_FALSE(list.remove(&b));  // not there: nothing to announce
    EXPECT_EQ(said.removed.count(), 1);
    EXPECT_EQ(said.reset.count(), 0);
    EXPECT_EQ(list.objects(), (QList<QObject*>{&a, &c}));
    EXPECT_EQ(objectAt(list, 1), &c);
    EXPECT_EQ(list.data(list.index(0), ObjectListModel::KindRole).toString(), "QObject");
}

TEST(LiveRows, PassChangesThroughAfterTheRetiredAndRestartWhenARetiredOneGoes) {
    ObjectListModel list;
    QObject objects[6];
    for (QObject& o : objects) list.append(&o);
    LiveRowsModel live;
    live.setSource(&list);
    QAbstractItemModelTester tester(&live, QAbstractItemModelTester::FailureReportingMode::Fatal);
    Announcements said(&live);
    QSignalSpy restarted(&live, &LiveRowsModel::restarted);

    live.retire(4);
    EXPECT_EQ(lastRows(said.removed), std::make_pair(0, 3));
    EXPECT_EQ(live.rowCount(), 2);
    EXPECT_EQ(objectAt(live, 0), &objects[4]);

    QObject added;
    list.append(&added);
    EXPECT_EQ(lastRows(said.inserted), std::make_pair(2, 2));
    list.remove(&objects[5]);
    EXPECT_EQ(lastRows(said.removed), std::make_pair(1, 1));
    EXPECT_EQ(objectAt(live, 1), &added);
    EXPECT_EQ(said.reset.count(), 0);
    EXPECT_EQ(restarted.count(), 0);

    list.remove(&objects[1]);  // its picture is part of the retired ones'
    EXPECT_EQ(restarted.count(), 1);
    EXPECT_EQ(live.rowCount(), list.count());
    EXPECT_EQ(objectAt(live, 0), &objects[0]);
}

// A bar redrawn over budget lines and their labels, as the dashboard piles them up: rendered
// twice side by side, once flattened and once with every renderer live, over a background that
// shows any pixel out of place.
TEST(Subviews, AFlattenedPileLooksLikeTheLiveOne) {
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData(R"(
        import QtQuick
        import CalorieCounter.Kit
        Window {
            id: window
            property View view
            property alias flattened: flattened
            property alias live: live
            width: 400; height: 120; visible: true
            Rectangle {
                anchors.fill: parent
                gradient: Gradient { GradientStop { color: "#F7F5F2" } GradientStop { position: 1; color: "#3050A0" } }
            }
            KitSubviews { id: flattened; view: window.view }
            Item { x: 200; KitSubviews { id: live; view: window.view; flattenAbove: 1e9 } }
        })",
                      QUrl("qrc:/tests/Pile.qml"));
    std::unique_ptr<QObject> created(component.create());
    ASSERT_TRUE(created) << component.errorString().toStdString();
    auto* window = qobject_cast<QQuickWindow*>(created.get());
    View view;
    window->setProperty("view", QVariant::fromValue(&view));
    auto* flattened = window->property("flattened").value<QQuickItem*>();
    auto* live = window->property("live").value<QQuickItem*>();

    View* bar = nullptr;
    QList<QObject*> piled;
    const auto add = [&](View* v) {
        view.addSubview(v);
        return v;
    };
    const auto shape = [&](QPointF from, QPointF to, QColor colour, qreal width) {
        auto* s = new ShapeLayer;
        s->setLine(from, to);
        s->setStrokeColor(colour);
        s->setLineWidth(width);
        return add(s);
    };
    const auto label = [&](qreal x, const QString& text) {
        auto* l = new Label;
        l->setFrame(QRectF(x, 49, 57, 17));
        l->setFontName("HelveticaNeue-Thin");
        l->setFontSize(10);
        l->setText(text);
        return add(l);
    };
    const auto shapes = [&](int rounds) {
        for (int i = 0; i < rounds; ++i) {
            if (bar) view.removeSubview(bar);
            bar = shape(QPointF(0, 36), QPointF(130.6 + i % 3, 36), QColor(46, 139, 87), 38);
            piled << shape(QPointF(97.33, 14), QPointF(97.33, 63), QColor(218, 165, 32), 2)
                  << label(58.33, "Budget") << label(102.33, "1850");
        }
    };
    const auto halvesAlike = [&] {
        const QImage shot = window->grabWindow();
        return shot.copy(0, 0, 200, 120) == shot.copy(200, 0, 200, 120);
    };
    const auto flattenedSettles = [&] {
        return QTest::qWaitFor([&] { return flattened->childItems().size() < 40 && halvesAlike(); },
                               20000);
    };

    shapes(40);
    EXPECT_TRUE(flattenedSettles());
    EXPECT_GT(live->childItems().size(), 120);

    // Code takes away a view that is already in the picture: the pile is drawn anew without it.
    view.removeSubview(piled[7]);
    shapes(3);
    EXPECT_TRUE(flattenedSettles());
}
