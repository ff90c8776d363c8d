// The main flows done with a finger on a Linux phone's 360x720 window (the phone's canvas scaled by
// 1.125): set-up tapped through and its wheels flicked, a drag down the exercise index bar, the
// food results flicked. Each must end where the mouse ends in the other ui tests.
#include <gtest/gtest.h>

#include <QPointingDevice>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <algorithm>
#include <cmath>

#include "app/tabs/TabBar.h"
#include "food/FoodScreen.h"
#include "food/SearchFoodScreen.h"
#include "setup/BirthdayScreen.h"
#include "store/AppState.h"
#include "support/AppHarness.h"

namespace {

QPointF centre(const QQuickItem* item) {
    return item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
}

// Whether a screen is being pushed or popped anywhere under item.
bool sliding(QQuickItem* item) {
    if (item->inherits("QQuickStackView") && item->property("busy").toBool()) return true;
    const QList<QQuickItem*> children = item->childItems();
    return std::any_of(children.begin(), children.end(), sliding);
}

bool atRest(QQuickItem* flickable) {
    return QTest::qWaitFor([flickable] { return !flickable->property("moving").toBool(); }, 10000);
}

// One finger on the window. It moves a frame a step, so that lifting it while moving is a flick
// with real speed.
class Finger {
public:
    explicit Finger(AppHarness& app) : window_(app.quickWindow()), app_(app) {}

    void down(QPointF at) { QTest::touchEvent(window_, device()).press(0, (at_ = at).toPoint()); }
    void moveTo(QPointF to, int steps = 5) {
        const QPointF from = at_;
        for (int i = 1; i <= steps; ++i) {
            QTest::qWait(16);
            at_ = from + (to - from) * i / steps;
            QTest::touchEvent(window_, device()).move(0, at_.toPoint());
        }
    }
    void up() { QTest::touchEvent(window_, device()).release(0, at_.toPoint()); }
    void swipe(QPointF from, QPointF to) {
        down(from);
        moveTo(to);
        up();
    }
    // A tap, with the small wander of a real fingertip; done once no screen is sliding in, as a
    // control tapped mid-push is not where it comes to stand.
    void tap(QPointF at, QPointF wander = {}) {
        down(at);
        if (!wander.isNull()) moveTo(at + wander, 1);
        up();
        QTest::qWait(20);
        EXPECT_TRUE(QTest::qWaitFor([this] { return !sliding(window_->contentItem()); }, 3000));
    }
    bool tap(const QString& name) {
        QQuickItem* item = app_.findByName(name);
        if (item) tap(centre(item));
        return item;
    }

private:
    static QPointingDevice* device() {
        static QPointingDevice* touchScreen = QTest::createTouchDevice();
        return touchScreen;
    }

    QQuickWindow* window_;
    AppHarness& app_;
    QPointF at_;
};

constexpr QSize kPhone(360, 720);

}  // namespace

TEST(Touch, FirstStartIsTappedAndFlickedThroughToTheTabs) {
    AppHarness app({.window = kPhone});
    app.launch();
    Finger finger(app);
    const AppState& state = AppState::shared();

    // The alert over a step takes the tap on its button.
    ASSERT_TRUE(finger.tap("Next"));
    ASSERT_NE(app.findByName("Message"), nullptr);
    ASSERT_TRUE(finger.tap("Ok"));
    EXPECT_EQ(app.findByName("Message"), nullptr);

    // A choice not taken would stop the walk at the next step's alert.
    ASSERT_TRUE(finger.tap("Metric") && finger.tap("Next"));
    app.type("80");
    ASSERT_TRUE(finger.tap("Next"));
    app.type("70");
    ASSERT_TRUE(finger.tap("Next") && finger.tap("Male") && finger.tap("Next"));

    // Flicked up by two rows' travel, the wheel glides on at least that far, and the row it comes
    // to rest on is the height taken and shown. (The first "Height" is the screen's title.)
    QQuickItem* height = app.findByName("Height", 1);
    ASSERT_NE(height, nullptr);
    const qreal row = height->mapRectToScene(QRectF(0, 0, 1, height->height() / 5)).height();
    finger.swipe(centre(height), centre(height) - QPointF(0, 2 * row));
    ASSERT_TRUE(atRest(height));
    const int cm = 40 + height->property("currentIndex").toInt();
    EXPECT_GE(cm, 42);
    EXPECT_EQ(state.heightCm, cm);
    EXPECT_NE(app.findByName(QString("%1 cm").arg(cm)), nullptr);
    ASSERT_TRUE(finger.tap("Next"));

    // Flicked down, to earlier years: the date set is the one the wheels came to rest on.
    const auto top = [&] { return app.window()->rootViewController()->topViewController(); };
    auto* birthday = qobject_cast<BirthdayScreen*>(top());
    ASSERT_NE(birthday, nullptr);
    const int startYear = birthday->datePicker()->year();
    QQuickItem* year = app.findByName("Year");
    ASSERT_NE(year, nullptr);
    finger.swipe(centre(year), centre(year) + QPointF(0, 2 * row));
    ASSERT_TRUE(atRest(year));
    const int born = birthday->datePicker()->year();
    EXPECT_LE(born, startYear - 2);
    EXPECT_EQ(year->property("title").toString(), QString::number(born));

    ASSERT_TRUE(finger.tap("Start my plan"));
    EXPECT_NE(qobject_cast<TabBar*>(top()), nullptr);
    EXPECT_EQ(birthday->age, calendarDay(Clock::now()).year - born);
}

// Down on C, along to M with the finger still down, on past Q (no section: P) to S while drifting
// off the bar over the list, which must not take the drag over.
TEST(Touch, DraggedDownTheIndexBarTheListFollowsTheFinger) {
    AppHarness app({.firstTime = QString("no"), .window = kPhone});
    app.launch();
    Finger finger(app);
    ASSERT_TRUE(finger.tap("Exercise"));
    QQuickItem* bar = app.findByName("Section index");
    ASSERT_NE(bar, nullptr);
    const auto letter = [&](int n) {
        return bar->mapToScene({bar->width() / 2, (n + 0.5) * bar->height() / 27});
    };
    const QRectF header = bar->mapRectToScene(QRectF(0, 0, 1, 22));  // a section header's height

    // Whether the row stands right under its section's header at the top of the list.
    const auto firstUnderHeader = [&](const QString& row) {
        return QTest::qWaitFor([&] {
            QQuickItem* item = app.findByName(row);
            return item && std::abs(item->mapToScene({0, 0}).y() - header.bottom()) < 1;
        }, 5000);
    };

    finger.down(letter(3));
    EXPECT_TRUE(firstUnderHeader("Cleaning, dusting"));
    finger.moveTo(letter(13), 10);
    EXPECT_TRUE(firstUnderHeader("Martial arts, judo, karate, jujitsu"));
    finger.moveTo(letter(17), 4);
    EXPECT_TRUE(firstUnderHeader("Paddleball, competitive"));
    finger.moveTo(letter(19) - QPointF(80, 0), 4);
    finger.up();
    EXPECT_TRUE(firstUnderHeader("Sky diving"));
}

// The same flick with the mouse and with a finger carries the list on past the pointer's travel,
// either way, and picks nothing; a tap, wandering a little, picks the row under it.
TEST(Touch, FlickedFoodResultsScrollAndOnlyATapPicks) {
    AppHarness app({.firstTime = QString("no"), .window = kPhone});
    app.launch();
    Finger finger(app);
    ASSERT_TRUE(finger.tap("Food"));
    ASSERT_TRUE(finger.tap("Search"));
    app.type("a");
    auto* search = qobject_cast<SearchFoodScreen*>(tab(1)->topViewController());
    ASSERT_NE(search, nullptr);
    QQuickItem* list = app.findByName(QString::fromStdString(search->searchresultID.at(0)));
    while (list && !list->inherits("QQuickListView")) list = list->parentItem();
    ASSERT_NE(list, nullptr);
    const auto contentY = [list] { return list->property("contentY").toReal(); };
    const qreal travel = list->mapRectFromScene(QRectF(0, 0, 1, 200)).height();

    // Past the pointer's travel only by the speed it leaves; the glide need not end, as the next
    // touch stops it.
    const auto carriedOn = [&](qreal from) {
        return QTest::qWaitFor([&] { return contentY() - from > travel; }, 3000);
    };
    QQuickWindow* window = app.quickWindow();
    qreal before = contentY();
    QTest::mousePress(window, Qt::LeftButton, {}, QPoint(180, 600));
    for (int i = 1; i <= 5; ++i) QTest::mouseMove(window, QPoint(180, 600 - 40 * i), 16);
    QTest::mouseRelease(window, Qt::LeftButton, {}, QPoint(180, 400), 16);
    EXPECT_TRUE(carriedOn(before));

    finger.down(QPointF(180, 600));
    before = contentY();
    finger.moveTo(QPointF(180, 400));
    finger.up();
    EXPECT_TRUE(carriedOn(before));

    finger.down(QPointF(180, 400));
    before = contentY();
    finger.moveTo(QPointF(180, 600));
    finger.up();
    ASSERT_TRUE(atRest(list));
    EXPECT_GT(before - contentY(), travel);
    EXPECT_EQ(search->searchFoodTable()->indexPathForSelectedRow(), std::nullopt);

    int index = -1;
    QMetaObject::invokeMethod(list, "indexAt", Q_RETURN_ARG(int, index), Q_ARG(qreal, 10),
                              Q_ARG(qreal, contentY() + list->height() / 2));
    const QString name = QString::fromStdString(search->searchresultID.at(index));
    QQuickItem* row = app.findByName(name);
    ASSERT_NE(row, nullptr);
    finger.tap(centre(row), QPointF(3, 2));
    auto* food = qobject_cast<FoodScreen*>(tab(1)->topViewController());
    ASSERT_NE(food, nullptr);
    EXPECT_EQ(QString::fromStdString(food->item), name);
}
