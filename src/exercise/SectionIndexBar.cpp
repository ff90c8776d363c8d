#include "exercise/SectionIndexBar.h"

#include "exercise/IndexBarMapping.h"
#include "ui/Theme.h"

namespace {

QColor grey(int level) {
    return QColor(level, level, level);
}

QString text(std::string_view letter) {
    return QString::fromUtf8(letter.data(), qsizetype(letter.size()));
}

}  // namespace

SectionIndexBar::SectionIndexBar(QObject* parent) : View(parent), shapeLayer_(this) {
    shapeLayer_.setLineWidth(1);
    shapeLayer_.setFillColor(Theme::clear());
    shapeLayer_.setStrokeColor(grey(218));
}

QSizeF SectionIndexBar::size() const {
    return frame().isEmpty() ? laidOutSize_ : frame().size();
}

void SectionIndexBar::setLaidOutSize(QSizeF size) {
    laidOutSize_ = size;
    layoutSubviews();
}

void SectionIndexBar::setIndexes(const std::vector<std::string>& indexes) {
    indexes_ = indexes;
    isLayedOut_ = false;
    layoutSubviews();
}

void SectionIndexBar::layoutSubviews() {
    // Without a size there is nothing to lay out yet; the first size the bar gets will do it.
    const QSizeF bounds = size();
    if (isLayedOut_ || bounds.isEmpty()) return;
    const QList<QObject*> old = sublayers_.objects();
    sublayers_.clear();
    for (QObject* layer : old) {
        if (layer != &shapeLayer_) layer->deleteLater();  // a renderer may hold it a frame longer
    }

    shapeLayer_.setFrame(QRectF(QPointF(0, 0), bounds));
    QList<QLineF> path = {QLineF(0, 0, 0, bounds.height())};
    letterHeight_ = indexbar::letterHeight(bounds.height());
    const int fontSize = indexbar::fontSize(letterHeight_);
    for (size_t i = 0; i < indexbar::kLetters.size(); ++i) {
        const double y = double(i) * letterHeight_;
        TextLayer* layer = textLayerWithSize(fontSize, text(indexbar::kLetters[i]),
                                             QRectF(0, y, bounds.width(), letterHeight_));
        sublayers_.append(layer);
        path.append(QLineF(0, y, layer->frame().width(), y));
    }
    shapeLayer_.setPath(path);
    sublayers_.append(&shapeLayer_);  // last, over the letters, which keep positions 0 to 26
    isLayedOut_ = true;
    emit laidOut();
}

TextLayer* SectionIndexBar::textLayerWithSize(qreal size, const QString& string,
                                              const QRectF& frame) {
    auto* layer = new TextLayer(this);
    layer->setFontName(QStringLiteral("ArialMT"));
    layer->setFontSize(size);
    layer->setFrame(frame);
    layer->setAlignmentMode(QStringLiteral("center"));
    layer->setForegroundColor(grey(168));
    layer->setString(string);
    return layer;
}

void SectionIndexBar::sendEventToDelegate(QPointF location) {
    const int letter = indexbar::letterAt(location.y(), letterHeight_);
    animateLayerAtIndex(letter);
    const int64_t section = indexbar::sectionForLetter(letter, indexes_);
    if (delegate_) delegate_->tableViewIndexBar(this, section);
}

void SectionIndexBar::animateLayerAtIndex(int64_t index) {
    // Only a letter with a layer above it, so never before the first layout.
    if (index < 0 || sublayers_.count() < index + 2) return;
    auto* layer = qobject_cast<TextLayer*>(sublayers_.objects().value(int(index)));
    if (!layer) return;
    layer->addAnimation({.keyPath = QStringLiteral("backgroundColor"),
                         .toValue = grey(180),
                         .duration = 0.5,
                         .autoreverses = true,
                         .repeatCount = 1,
                         .timingFunction = QStringLiteral("easeOut")},
                        QStringLiteral("myAnimation"));
}

void SectionIndexBar::pressLetter(int letter) {
    if (letter < 0 || letter >= int(indexbar::kLetters.size())) return;
    sendEventToDelegate(QPointF(0, (letter + 0.5) * letterHeight_));
}

QStringList SectionIndexBar::letterTitles() const {
    QStringList titles;
    for (const std::string_view letter : indexbar::kLetters) titles << text(letter);
    return titles;
}
