// The letter index bar: its layers, and touches and presses as its delegate hears them. In the
// real window it is touched, dragged and keyed in tests/ui, pressed by name in the AT-SPI check.
#include <gtest/gtest.h>

#include "exercise/ExerciseCatalogue.h"
#include "exercise/IndexBarMapping.h"
#include "exercise/SectionIndexBar.h"

namespace {

using indexbar::kNotFound;

struct Recorder : SectionIndexBarDelegate {
    void tableViewIndexBar(SectionIndexBar*, int64_t at) override { sections.push_back(at); }
    std::vector<int64_t> sections;
};

const std::vector<std::string>& catalogueSections() {
    static const auto sections = exercise::ExerciseCatalogue().sections();
    return sections;
}

// Letter n's layer: the letters keep positions 0 to 26, under the lines.
TextLayer* letter(SectionIndexBar& bar, int n) {
    return qobject_cast<TextLayer*>(bar.sublayers()->objects().value(n));
}

}  // namespace

TEST(SectionIndexBar, LaysOutOncePerIndexesAndOnlyWithASize) {
    SectionIndexBar bar;
    bar.setIndexes(catalogueSections());
    EXPECT_EQ(bar.sublayers()->count(), 0);  // no size yet: the first one lays it out
    bar.setLaidOutSize(QSizeF(20, 378));

    // 27 letters top to bottom in cells of 14, then the left edge and a line over every letter.
    ASSERT_EQ(bar.sublayers()->count(), 28);
    EXPECT_EQ(bar.sublayers()->objects().value(27), bar.shapeLayer());
    QString letters;
    QList<QLineF> path = {QLineF(0, 0, 0, 378)};
    for (int i = 0; i < 27; ++i) {
        letters += letter(bar, i)->string();
        path << QLineF(0, 14 * i, 20, 14 * i);
    }
    EXPECT_EQ(letters, "#ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_EQ(std::pair(letter(bar, 26)->frame(), letter(bar, 26)->fontSize()),
              std::pair(QRectF(0, 364, 20, 14), qreal(12)));
    EXPECT_EQ(bar.shapeLayer()->path(), path);
    EXPECT_EQ(bar.shapeLayer()->frame(), QRectF(0, 0, 20, 378));

    // A new size alone changes nothing; the same indexes again rebuild every letter at it.
    const QList<QObject*> layers = bar.sublayers()->objects();
    bar.setLaidOutSize(QSizeF(20, 270));
    EXPECT_EQ(bar.sublayers()->objects(), layers);
    bar.setIndexes(catalogueSections());
    ASSERT_EQ(bar.sublayers()->count(), 28);
    EXPECT_EQ(letter(bar, 26)->frame(), QRectF(0, 260, 20, 10));
    EXPECT_EQ(letter(bar, 0)->fontSize(), 11);

    // A frame set by code is the size that counts.
    bar.setFrame(QRectF(300, 0, 30, 540));
    bar.setIndexes({});
    EXPECT_EQ(bar.letterHeight(), 20);
    EXPECT_EQ(bar.shapeLayer()->path()[27], QLineF(0, 520, 30, 520));
}

TEST(SectionIndexBar, TouchesFlashTheLetterAndNameItsSection) {
    Recorder delegate;
    SectionIndexBar bar, unsized;
    for (SectionIndexBar* b : {&bar, &unsized}) {
        b->setDelegate(&delegate);
        b->setIndexes(catalogueSections());
    }
    bar.setLaidOutSize(QSizeF(20, 270));

    // Down on E, over N, Q, X, Y, Z, "#", past both ends; presses; a bar not laid out: below it.
    const auto at = [](int n) { return QPointF(5, (n + 0.5) * 10); };
    bar.touchesBegan(at(5));
    for (const int n : {14, 17, 24, 25, 26, 0}) bar.touchesMoved(at(n));
    bar.touchesMoved(QPointF(5, 900));
    bar.touchesMoved(QPointF(5, -55));  // 55 above the top reads as 55 below it: E
    bar.pressLetter(17);
    bar.pressLetter(27);  // no such letter
    unsized.touchesBegan(QPointF(5, 40));
    EXPECT_EQ(delegate.sections,
              (std::vector<int64_t>{3, 11, 13, 19, 19, 19, kNotFound, 19, 3, 13, 19}));

    // Each letter touched flashes, no other: to grey 180 and back, half a second each way, easing.
    for (int n = 0; n < 27; ++n)
        EXPECT_EQ(letter(bar, n)->animationForKey("myAnimation") != nullptr,
                  QList({5, 14, 17, 24, 25, 26, 0}).contains(n)) << n;
    const ColourFlash flash = letter(bar, 5)->colourFlash("myAnimation");
    EXPECT_EQ(std::tuple(flash.valid, flash.reverses, flash.to, flash.duration, flash.loops),
              std::tuple(true, true, QColor(180, 180, 180), 500, 1));
    EXPECT_EQ(flash.curve, (QList<qreal>{0, 0, 0.58, 1, 1, 1}));
}
