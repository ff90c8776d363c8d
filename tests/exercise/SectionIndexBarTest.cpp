// The letter index bar: its layers, touches and presses as its delegate hears them, and the bar
// drawn in a real window, touched with the mouse and pressed by assistive technology.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDir>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <memory>

#include "exercise/ExerciseCatalogue.h"
#include "exercise/IndexBarMapping.h"
#include "exercise/SectionIndexBar.h"

namespace {

using indexbar::kNotFound;

struct Recorder : SectionIndexBarDelegate {
    void tableViewIndexBar(SectionIndexBar*, int64_t section) override {
        sections.push_back(section);
    }
    std::vector<int64_t> sections;
};

std::vector<std::string> catalogueSections() {
    return exercise::ExerciseCatalogue().sections();
}

QList<TextLayer*> textLayers(SectionIndexBar& bar) {
    QList<TextLayer*> layers;
    for (QObject* layer : bar.sublayers()->objects())
        if (auto* text = qobject_cast<TextLayer*>(layer)) layers << text;
    return layers;
}

// The middle of letter n's cell, in a bar with cells of height h.
QPointF letter(int n, double h) {
    return QPointF(5, (n + 0.5) * h);
}

}  // namespace

TEST(SectionIndexBar, LaysOutOncePerIndexesAndOnlyWithASize) {
    SectionIndexBar bar;
    bar.setIndexes(catalogueSections());
    EXPECT_FALSE(bar.isLayedOut());  // no size yet: the first one lays it out
    EXPECT_EQ(bar.sublayers()->count(), 0);
    bar.setLaidOutSize(QSizeF(20, 378));
    ASSERT_TRUE(bar.isLayedOut());

    // 27 letters top to bottom, then the lines over them.
    const QList<TextLayer*> letters = textLayers(bar);
    ASSERT_EQ(letters.size(), 27);
    EXPECT_EQ(bar.sublayers()->count(), 28);
    EXPECT_EQ(bar.sublayers()->objects().value(27), bar.shapeLayer());
    EXPECT_EQ(bar.letterHeight(), 14);
    QList<QLineF> path = {QLineF(0, 0, 0, 378)};
    for (int i = 0; i < 27; ++i) {
        const TextLayer* l = letters[i];
        EXPECT_EQ(l->string(), QString(i == 0 ? '#' : QChar('A' + i - 1)));
        EXPECT_EQ(l->frame(), QRectF(0, 14 * i, 20, 14));
        EXPECT_EQ(l->fontSize(), 12);
        path << QLineF(0, 14 * i, 20, 14 * i);
    }
    EXPECT_EQ(bar.shapeLayer()->path(), path);
    EXPECT_EQ(bar.shapeLayer()->frame(), QRectF(0, 0, 20, 378));

    // A new size alone changes nothing; the same indexes again rebuild every letter at it.
    bar.setLaidOutSize(QSizeF(20, 270));
    EXPECT_EQ(textLayers(bar), letters);
    bar.setIndexes(catalogueSections());
    const QList<TextLayer*> rebuilt = textLayers(bar);
    ASSERT_EQ(rebuilt.size(), 27);
    for (TextLayer* layer : rebuilt) EXPECT_FALSE(letters.contains(layer));
    EXPECT_EQ(rebuilt[26]->frame(), QRectF(0, 260, 20, 10));
    EXPECT_EQ(rebuilt[0]->fontSize(), 11);
    EXPECT_EQ(bar.sublayers()->count(), 28);

    // A frame set by code is the size that counts.
    bar.setFrame(QRectF(300, 0, 30, 540));
    bar.setIndexes({});
    EXPECT_EQ(bar.letterHeight(), 20);
    EXPECT_EQ(bar.shapeLayer()->path()[27], QLineF(0, 520, 30, 520));
}

TEST(SectionIndexBar, TouchesFlashTheLetterAndNameItsSection) {
    SectionIndexBar bar;
    Recorder delegate;
    bar.setDelegate(&delegate);
    bar.setLaidOutSize(QSizeF(20, 270));
    bar.setIndexes(catalogueSections());

    // Down on E, dragged over N, Q, X, Y, Z, "#", past both ends; then letters pressed.
    bar.touchesBegan(letter(5, 10));
    for (const int n : {14, 17, 24, 25, 26, 0}) bar.touchesMoved(letter(n, 10));
    bar.touchesMoved(QPointF(5, 900));
    bar.touchesMoved(QPointF(5, -55));  // 55 above the top reads as 55 below it: E
    bar.pressLetter(17);
    bar.pressLetter(27);  // no such letter
    EXPECT_EQ(delegate.sections,
              (std::vector<int64_t>{3, 11, 13, 19, 19, 19, kNotFound, 19, 3, 13}));

    // Every letter touched flashes, and no other.
    const QList<TextLayer*> letters = textLayers(bar);
    for (int n = 0; n < 27; ++n) {
        EXPECT_EQ(letters[n]->animationForKey("myAnimation") != nullptr,
                  (QList{5, 14, 17, 24, 25, 26, 0}.contains(n)))
            << n;
    }
    // As the renderer plays it: to grey 180 and back, half a second each way, easing out and
    // then the same curve backwards; a key that holds no animation plays nothing.
    const ColourFlash flash = letters[5]->colourFlash("myAnimation");
    EXPECT_TRUE(flash.valid && flash.reverses);
    EXPECT_EQ(flash.to, QColor(180, 180, 180));
    EXPECT_EQ(std::tuple(flash.duration, flash.loops), std::tuple(500, 1));
    EXPECT_EQ(flash.curve, (QList<qreal>{0, 0, 0.58, 1, 1, 1}));
    ASSERT_EQ(flash.backCurve.size(), 6);
    for (int i = 0; i < 6; ++i)
        EXPECT_NEAR(flash.backCurve[i], (QList<qreal>{0.42, 0, 1, 1, 1, 1}[i]), 1e-9);
    EXPECT_FALSE(letters[1]->colourFlash("myAnimation").valid);

    // A touch before any layout flashes nothing and counts as one below the bar.
    delegate.sections.clear();
    SectionIndexBar unsized;
    unsized.setDelegate(&delegate);
    unsized.setIndexes(catalogueSections());
    unsized.touchesBegan(QPointF(5, 40));
    EXPECT_EQ(delegate.sections, std::vector<int64_t>{19});
}

QStringList qmlWarnings;
void collect(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type != QtDebugMsg && type != QtInfoMsg) qmlWarnings.append(message);
}

// The bar drawn 378 points high (cells of 14) at (40, 11) in a window of its own.
class IndexBarOnScreen : public testing::Test {
protected:
    void SetUp() override {
        qmlWarnings.clear();
        previousHandler = qInstallMessageHandler(collect);
        bar.setDelegate(&delegate);
        bar.setIndexes(catalogueSections());
        QQmlComponent component(&engine);
        component.setData(R"(import QtQuick
                             import CalorieCounter.Exercise
                             Window {
                                 property SectionIndexBar barModel
                                 width: 100; height: 400; color: "white"; visible: true
                                 SectionIndexBarView { model: barModel; x: 40; y: 11; width: 20; height: 378 }
                             })",
                          QUrl("qrc:/IndexBarTest.qml"));
        ASSERT_TRUE(component.isReady()) << component.errorString().toStdString();
        window.reset(qobject_cast<QQuickWindow*>(
            component.createWithInitialProperties({{"barModel", QVariant::fromValue(&bar)}})));
        ASSERT_TRUE(window) << component.errorString().toStdString();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(window.get()));
        ASSERT_TRUE(QTest::qWaitFor([this] { return bar.isLayedOut(); }, 5000));
    }
    // Drawn and used without a single warning, taken down included.
    void TearDown() override {
        window.reset();
        qInstallMessageHandler(previousHandler);
        EXPECT_TRUE(qmlWarnings.isEmpty()) << qmlWarnings.join('\n').toStdString();
    }
    QPoint cell(int n) const { return QPoint(50, 11 + 14 * n + 7); }
    // The darkest grey in a small area: a line half a pixel off the grid shades two pixels.
    int darkest(QRect area) {
        const QImage image = window->grabWindow();
        int grey = 255;
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                grey = std::min(grey, qGray(image.pixel(x, y)));
        return grey;
    }
    QAccessibleInterface* accessible(const QString& name) {
        QList<QAccessibleInterface*> todo = {QAccessible::queryAccessibleInterface(window.get())};
        while (!todo.isEmpty()) {
            QAccessibleInterface* node = todo.takeFirst();
            if (node->text(QAccessible::Name) == name) return node;
            for (int i = 0; i < node->childCount(); ++i) todo << node->child(i);
        }
        return nullptr;
    }

    SectionIndexBar bar;
    Recorder delegate;
    QQmlEngine engine;
    std::unique_ptr<QQuickWindow> window;
    QtMessageHandler previousHandler = nullptr;
};

TEST_F(IndexBarOnScreen, ATouchAndADragSelectAndTheTouchedCellFlashes) {
    // The left edge and the separators are drawn; the cells are clear.
    const QRect flashed(42, cell(5).y() - 2, 2, 4);  // in E's cell, beside its letter
    EXPECT_LT(darkest(QRect(39, 200, 2, 1)), 245);
    EXPECT_LT(darkest(QRect(55, 11 + 14 * 3 - 1, 1, 2)), 245);
    EXPECT_EQ(darkest(flashed), 255);

    QTest::mousePress(window.get(), Qt::LeftButton, {}, cell(5));  // E
    // The cell darkens, then comes back within a second.
    EXPECT_TRUE(QTest::qWaitFor([&] { return darkest(flashed) < 230; }, 3000));
    QDir().mkpath("screenshots");
    window->grabWindow().save("screenshots/index-bar-flash.png");
    EXPECT_TRUE(QTest::qWaitFor([&] { return darkest(flashed) == 255; }, 3000));

    QTest::mouseMove(window.get(), cell(17));       // Q
    QTest::mouseMove(window.get(), QPoint(50, 1));  // 10 above the top: as 10 below, "#"
    QTest::mouseRelease(window.get(), Qt::LeftButton, {}, QPoint(50, 1));
    EXPECT_EQ(delegate.sections, (std::vector<int64_t>{3, 13, kNotFound}));
}

TEST_F(IndexBarOnScreen, EveryLetterIsAButtonThatAScreenReaderOrTheKeyboardPresses) {
    for (const QString& name : bar.property("letters").toStringList()) {
        QAccessibleInterface* node = accessible(name);
        ASSERT_NE(node, nullptr) << name.toStdString();
        EXPECT_EQ(node->role(), QAccessible::Button);
    }
    accessible("X")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    accessible("N")->actionInterface()->doAction(QAccessibleActionInterface::pressAction());

    auto* item = window->contentItem()->childItems().first();
    item->forceActiveFocus();
    for (int i = 0; i < 5; ++i) QTest::keyClick(window.get(), Qt::Key_Down);
    QTest::keyClick(window.get(), Qt::Key_Space);  // "E"
    QTest::keyClick(window.get(), Qt::Key_Up);
    QTest::keyClick(window.get(), Qt::Key_Return);  // "D"
    EXPECT_EQ(delegate.sections, (std::vector<int64_t>{19, 11, 3, 3}));
}
