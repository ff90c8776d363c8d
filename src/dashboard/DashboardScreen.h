#pragma once
// What the Today and Log screens share: the day's date and figures, the gauge's scale marks,
// and the gauge itself (the bar of calories eaten and the budget line with its two labels),
// drawn by code onto the screen's canvas view.

#include <QRectF>

#include "dashboard/Gauge.h"
#include "ui/Label.h"
#include "ui/ShapeLayer.h"
#include "ui/ViewController.h"

class DashboardScreen : public ViewController {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("screens are made by code")
    Q_PROPERTY(Label* dateLbl READ dateLbl CONSTANT)
    Q_PROPERTY(Label* midValue READ midValue CONSTANT)
    Q_PROPERTY(Label* maxValue READ maxValue CONSTANT)
    Q_PROPERTY(Label* max1Value READ max1Value CONSTANT)
    Q_PROPERTY(Label* ExtremeMaxValue READ ExtremeMaxValue CONSTANT)
    Q_PROPERTY(Label* todayLable READ todayLable CONSTANT)
    Q_PROPERTY(Label* detailCalorie READ detailCalorie CONSTANT)
    Q_PROPERTY(Label* detailExercise READ detailExercise CONSTANT)
    // For the layout, in the canvas's coordinates: where the bar runs (its track), and the bottom
    // of the budget labels, below which the scale can go.
    Q_PROPERTY(QRectF gaugeTrack READ gaugeTrack CONSTANT)
    Q_PROPERTY(qreal gaugeBottom READ gaugeBottom CONSTANT)
    // Where the marks of midValue, max1Value, maxValue and ExtremeMaxValue stand along the track.
    Q_PROPERTY(QList<qreal> markPositions READ markPositions NOTIFY markPositionsChanged)

public:
    Label* dateLbl() { return &dateLbl_; }
    Label* midValue() { return &midValue_; }
    Label* maxValue() { return &maxValue_; }
    Label* max1Value() { return &max1Value_; }
    Label* ExtremeMaxValue() { return &ExtremeMaxValue_; }
    Label* todayLable() { return &todayLable_; }
    Label* detailCalorie() { return &detailCalorie_; }
    Label* detailExercise() { return &detailExercise_; }
    QRectF gaugeTrack() const;
    qreal gaugeBottom() const;
    QList<qreal> markPositions() const { return markPositions_; }

    // The current bar; replaced by every redraw.
    ShapeLayer* shapeLayer() const { return shapeLayer_; }

    void drawYourToday();
    void drawYourGoal();

signals:
    void markPositionsChanged();

protected:
    DashboardScreen(const gauge::GaugeGeometry& geometry, QObject* parent);

    // The view that the bar, the budget lines and their labels are added to.
    virtual View* canvas() = 0;

    // "Today, <month> <day>" into shownDate and the date label.
    void showTodaysDate();
    // Puts the marks for the budget into the scale labels; returns the calories per point.
    float showScaleMarks(bool longFormats);
    // The bar for consumedValue at the given scale, then calories left, eaten and burned.
    void showDay(float caloriesPerPoint);
    // Where drawYourGoal draws: the budget's position at the given scale.
    void placeBudgetLine(float caloriesPerPoint);

private:
    gauge::GaugeGeometry geometry_;
    Label dateLbl_;
    Label midValue_;
    Label maxValue_;
    Label max1Value_;
    Label ExtremeMaxValue_;
    Label todayLable_;
    Label detailCalorie_;
    Label detailExercise_;
    QList<qreal> markPositions_{0, 0, 0, 0};
    float a1_ = 0;
    gauge::BudgetLine goal_{};
    ShapeLayer* shapeLayer_ = nullptr;
};
