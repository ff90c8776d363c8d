#include "dashboard/DashboardScreen.h"

#include "store/AppState.h"
#include "store/Dates.h"
#include "store/DevLog.h"
#include "store/Formatted.h"

namespace {

QColor colour(const gauge::Rgb& rgb) {
    return QColor(rgb.red, rgb.green, rgb.blue);
}

QRectF rect(const gauge::Rect& r) {
    return QRectF(r.x, r.y, r.width, r.height);
}

QString text(const std::string& utf8) {
    return QString::fromStdString(utf8);
}

Label* thinLabel(const gauge::Rect& frame, const std::string& value) {
    auto* label = new Label;
    label->setFrame(rect(frame));
    label->setFontName(QStringLiteral("HelveticaNeue-Thin"));
    label->setFontSize(10);
    label->setText(text(value));
    return label;
}

}  // namespace

DashboardScreen::DashboardScreen(const gauge::GaugeGeometry& geometry, QObject* parent)
    : ViewController(parent), geometry_(geometry) {}

QRectF DashboardScreen::gaugeTrack() const {
    return QRectF(0, geometry_.barCentreY - geometry_.barThickness / 2, geometry_.width,
                  geometry_.barThickness);
}

qreal DashboardScreen::gaugeBottom() const {
    const gauge::Rect label = gauge::budgetLine(0, 1, geometry_).titleFrame;
    return label.y + label.height;
}

void DashboardScreen::showTodaysDate() {
    AppState& state = AppState::shared();
    state.shownDate = formatted("Today, %s", DateFormatter("MMMM d").format(Clock::now()).c_str());
    DEVLOG("%s", state.shownDate.c_str());
    dateLbl_.setText(text(state.shownDate));
}

float DashboardScreen::showScaleMarks(bool longFormats) {
    const gauge::ScaleMarks marks =
        gauge::scaleMarks(AppState::shared().calorieBudgetValue, geometry_.width, longFormats);
    maxValue_.setText(text(marks.maxText));
    midValue_.setText(text(marks.midText));
    ExtremeMaxValue_.setText(text(marks.topText));
    max1Value_.setText(text(marks.max1Text));
    markPositions_.clear();
    for (const std::string* mark :
         {&marks.midText, &marks.max1Text, &marks.maxText, &marks.topText})
        markPositions_.append(gauge::markPosition(*mark, marks.topText, geometry_.width));
    emit markPositionsChanged();
    return marks.caloriesPerPoint;
}

void DashboardScreen::showDay(float caloriesPerPoint) {
    const AppState& state = AppState::shared();
    a1_ = gauge::barLength(static_cast<float>(state.consumedValue), caloriesPerPoint);
    drawYourToday();
    // In 64 bits: far-off values wrap as the 32-bit figure always has, without overflowing.
    const auto left = static_cast<int32_t>(int64_t{state.calorieBudgetValue} - state.consumedValue);
    todayLable_.setText(text(formatted("%i", left)));
    detailCalorie_.setText(text(formatted("%i Cal", state.consumedValue)));
    detailExercise_.setText(text(formatted("%i Cal", state.burnedValue)));
}

void DashboardScreen::placeBudgetLine(float caloriesPerPoint) {
    goal_ = gauge::budgetLine(AppState::shared().calorieBudgetValue, caloriesPerPoint, geometry_);
}

void DashboardScreen::drawYourToday() {
    if (shapeLayer_) canvas()->removeSubview(shapeLayer_);
    shapeLayer_ = new ShapeLayer;
    shapeLayer_->setLine(QPointF(0, geometry_.barCentreY), QPointF(a1_, geometry_.barCentreY));
    shapeLayer_->setStrokeColor(colour(geometry_.barColour));
    shapeLayer_->setLineWidth(geometry_.barThickness);
    canvas()->addSubview(shapeLayer_);
}

// Never removed: every appearance adds one more line and label pair over the earlier ones.
void DashboardScreen::drawYourGoal() {
    auto* line = new ShapeLayer;
    line->setLine(QPointF(goal_.x, goal_.y1), QPointF(goal_.x, goal_.y2));
    line->setStrokeColor(colour(geometry_.budgetLineColour));
    line->setLineWidth(geometry_.budgetLineWidth);
    canvas()->addSubview(line);
    canvas()->addSubview(thinLabel(goal_.titleFrame, "Budget"));
    canvas()->addSubview(thinLabel(goal_.valueFrame, goal_.valueText));
}
