#pragma once
// The letter index beside a sectioned list: "#" and A to Z in a column, drawn with 27 text layers
// and one shape layer (the left edge and a separator over every letter). A touch, or a drag over
// it, flashes the letter under the finger and tells the delegate which section to show: the
// letter's own or that of the nearest letter above it that the list has (IndexBarMapping).
//
// The layers are built on the first layout after each setIndexes, which lays out at once when the
// bar has a size; a later change of size alone leaves them as they are.

#include <QPointF>
#include <QSizeF>
#include <QStringList>
#include <cstdint>
#include <string>
#include <vector>

#include "ui/ObjectListModel.h"
#include "ui/ShapeLayer.h"
#include "ui/TextLayer.h"
#include "ui/View.h"

class SectionIndexBar;

class SectionIndexBarDelegate {
public:
    // section: a position in the bar's indexes, or indexbar::kNotFound.
    virtual void tableViewIndexBar(SectionIndexBar* indexBar, int64_t section) = 0;

protected:
    ~SectionIndexBarDelegate() = default;
};

class SectionIndexBar : public View {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by its screen")
    Q_PROPERTY(ObjectListModel* sublayers READ sublayers CONSTANT)
    Q_PROPERTY(QStringList letters READ letterTitles CONSTANT)
    Q_PROPERTY(qreal letterHeight READ letterHeight NOTIFY laidOut)

public:
    explicit SectionIndexBar(QObject* parent = nullptr);

    const std::vector<std::string>& indexes() const { return indexes_; }
    // The list's section titles, in section order; lays the bar out again.
    void setIndexes(const std::vector<std::string>& indexes);

    // Not owned: the screen that owns the bar.
    SectionIndexBarDelegate* delegate() const { return delegate_; }
    void setDelegate(SectionIndexBarDelegate* delegate) { delegate_ = delegate; }

    ObjectListModel* sublayers() { return &sublayers_; }
    ShapeLayer* shapeLayer() { return &shapeLayer_; }
    double letterHeight() const { return letterHeight_; }
    bool isLayedOut() const { return isLayedOut_; }

    // The frame's size when code has set a frame; otherwise the size the layout gives the bar.
    QSizeF size() const;
    // For the renderer: the layout has given the bar this size.
    Q_INVOKABLE void setLaidOutSize(QSizeF size);

    void layoutSubviews();
    TextLayer* textLayerWithSize(qreal size, const QString& string, const QRectF& frame);

    // A finger at location, in the bar's coordinates, touched down or moved; lifting it does
    // nothing.
    Q_INVOKABLE void touchesBegan(QPointF location) { sendEventToDelegate(location); }
    Q_INVOKABLE void touchesMoved(QPointF location) { sendEventToDelegate(location); }
    void sendEventToDelegate(QPointF location);
    // The darkening and fading back of letter cell index, restarted by every touch on it.
    void animateLayerAtIndex(int64_t index);

    // A press on a letter by keyboard or assistive technology: a touch in the middle of its cell.
    Q_INVOKABLE void pressLetter(int letter);

signals:
    void laidOut();

private:
    QStringList letterTitles() const;

    std::vector<std::string> indexes_;
    SectionIndexBarDelegate* delegate_ = nullptr;
    ObjectListModel sublayers_;
    ShapeLayer shapeLayer_;
    double letterHeight_ = 0;
    bool isLayedOut_ = false;
    QSizeF laidOutSize_;
};
