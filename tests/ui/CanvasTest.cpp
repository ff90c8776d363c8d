// The design canvas in windows of other sizes: scaled whole into the window, its extra height
// given to the screen, centred across a wider one; what the window then shows; and the lift that
// keeps a focused field above a touch keyboard.
#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>

#include "support/AppHarness.h"
#include "ui/KeyboardLift.h"
#include "ui/Window.h"

TEST(Canvas, FillsTheWindowAtTheLargestScaleThatFitsAndCentresTheRest) {
    struct Case {
        QSizeF design, window;
        qreal scale;
        QSizeF canvas;
        qreal x;
    };
    const Case cases[] = {
        {{320, 568}, {320, 568}, 1, {320, 568}, 0},
        {{320, 568}, {360, 720}, 1.125, {320, 640}, 0},      // a Linux phone: filled, taller
        {{320, 568}, {640, 1136}, 2, {320, 568}, 0},
        {{320, 568}, {1280, 800}, 800 / 568.0, {320, 568}, 414},  // a desktop: centred
        {{768, 1024}, {1280, 800}, 800 / 1024.0, {768, 1024}, 340},
        {{320, 568}, {300, 400}, 400 / 568.0, {320, 568}, 37},    // smaller than the design
    };
    for (const Case& c : cases) {
        Window window;
        window.setDesignSize(c.design);
        window.setViewport(c.window);
        SCOPED_TRACE(QString("%1x%2").arg(c.window.width()).arg(c.window.height()).toStdString());
        EXPECT_DOUBLE_EQ(window.canvasScale(), c.scale);
        EXPECT_EQ(window.canvasSize(), c.canvas);  // within QSizeF's fuzzy comparison
        EXPECT_EQ(window.canvasX(), c.x);
    }
}

TEST(Canvas, APhoneWindowIsFilledAndItsTabBarStaysAtTheBottom) {
    AppHarness app({.firstTime = QString("no"), .window = QSize(360, 720)});
    app.launch();
    QQuickItem* more = app.findByName("More");  // a tab, not a screen's title
    ASSERT_TRUE(more);
    EXPECT_NEAR(more->mapRectToScene(more->boundingRect()).bottom(), 720, 1);
    EXPECT_EQ(app.grab().size(), QSize(360, 720) * app.quickWindow()->devicePixelRatio());
}

// Twice the design size looks as the design does on a screen of twice the pixel density.
TEST(Canvas, TwiceTheDesignSizeLooksAsTheDesignAtScaleFactorTwo) {
    TempDir dir;
    const auto shot = [&](const QString& name, const QStringList& extra, const char* factor) {
        QProcess process;
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("QT_QPA_PLATFORM", "offscreen");
        env.insert("QT_SCALE_FACTOR", factor);
        env.insert("ASAN_OPTIONS", "detect_leaks=0");
        process.setProcessEnvironment(env);
        const QString path = QString::fromStdString(dir.file(name.toStdString()));
        process.start(CALORIE_COUNTER_BIN, QStringList{"--data-dir", path + ".d", "--launch-hold-ms", "0",
                                                       "--screenshot", path} + extra);
        EXPECT_TRUE(process.waitForFinished(120000));
        return QImage(path).convertToFormat(QImage::Format_RGB32);
    };
    const QImage window = shot("window.png", {"--window", "640x1136"}, "1");
    const QImage scaled = shot("scaled.png", {}, "2");
    ASSERT_EQ(window.size(), QSize(640, 1136));
    ASSERT_EQ(scaled.size(), window.size());
    // Only the edges of rounded shapes, drawn from a picture at one scale and the other, differ.
    int differ = 0;
    for (int y = 0; y < window.height(); ++y)
        for (int x = 0; x < window.width(); ++x) {
            const QRgb a = window.pixel(x, y), b = scaled.pixel(x, y);
            differ += std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                std::abs(qBlue(a) - qBlue(b))}) > 24;
        }
    EXPECT_LT(differ, window.width() * window.height() / 1000);
}

TEST(KeyboardLift, LiftsAFieldTheKeyboardWouldCoverJustClearOfItAndNoFurther) {
    const QRectF keyboard(0, 400, 360, 320);
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 100, 300, 40), keyboard), 0);         // above it
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 500, 300, 40), keyboard), 148);       // 540 + 8 - 400
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 30, 300, 500), keyboard), 22);        // top kept in
    EXPECT_EQ(KeyboardLift::liftFor(QRectF(20, 500, 300, 40), QRectF()), 0);         // no keyboard
}
