#include "overlay/StatusOverlay.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QInputMethod>
#include <QScreen>
#include <QTextLayout>
#include <QVariantAnimation>
#include <QtMath>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <thread>
#include <utility>

#include "ui/MainScreen.h"

namespace {

StatusOverlay* instance = nullptr;
std::once_flag created;

constexpr auto kSuccessImage = "StatusOverlay.bundle/success-color";
constexpr auto kErrorImage = "StatusOverlay.bundle/error-color";
// Qt reports where the keyboard is but not how long it takes to get there; this is the phone
// keyboard's own time.
constexpr double kKeyboardAnimationSeconds = 0.25;

int milliseconds(double seconds) { return static_cast<int>(std::lround(seconds * 1000)); }

// The text's size as the label will draw it: wrapped within the measuring box, lines that do not
// fit below it cut off (the last one shown ends in an ellipsis). Rounded up, so that the label
// given exactly this size wraps the same way.
overlay::Size measure(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    qreal width = 0;
    qreal height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(overlay::kTextBounds.width);
        if (height + line.height() > overlay::kTextBounds.height) break;
        width = std::max(width, line.naturalTextWidth());
        height += line.height();
    }
    layout.endLayout();
    return {static_cast<float>(std::ceil(width)), static_cast<float>(std::ceil(height))};
}

// The interface orientation as the platform numbers it, from how far the screen is turned from
// its natural orientation: a desktop screen never turns, so there the box stays upright. Qt's
// landscape is the phone turned with its bottom edge to the right (landscape right).
overlay::Orientation interfaceOrientation() {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen) return overlay::Orientation::Portrait;
    const int angle = screen->angleBetween(screen->nativeOrientation(), screen->orientation());
    if (angle == 0) return overlay::Orientation::Portrait;
    if (angle == 180) return overlay::Orientation::UpsideDown;
    if (angle == screen->angleBetween(Qt::PortraitOrientation, Qt::LandscapeOrientation))
        return overlay::Orientation::LandscapeRight;
    return overlay::Orientation::LandscapeLeft;
}

}  // namespace

StatusOverlay& StatusOverlay::shared() {
    std::call_once(created, [] { instance = new StatusOverlay; });
    return *instance;
}

StatusOverlay::StatusOverlay()
    : labelFont_(QFontDatabase::systemFont(QFontDatabase::GeneralFont)),
      fade_(new QVariantAnimation(this)),
      move_(new QVariantAnimation(this)) {
    labelFont_.setPixelSize(static_cast<int>(overlay::kLabelFontSize));
    labelFont_.setBold(true);

    fade_->setStartValue(0.0);
    fade_->setEndValue(1.0);
    fade_->setDuration(milliseconds(overlay::kAnimationSeconds));
    fade_->setEasingCurve(QEasingCurve::InOutQuad);
    connect(fade_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        const qreal progress = value.toReal();
        boxScale_ = fadeFrom_.scale + (fadeTo_.scale - fadeFrom_.scale) * progress;
        boxOpacity_ = fadeFrom_.opacity + (fadeTo_.opacity - fadeFrom_.opacity) * progress;
        emit motionChanged();
    });
    connect(fade_, &QAbstractAnimation::finished, this, [this] {
        if (const auto done = std::exchange(fadeDone_, nullptr)) done();
    });

    move_->setEasingCurve(QEasingCurve::InOutQuad);
    connect(move_, &QVariantAnimation::valueChanged, this, [this](const QVariant& value) {
        centre_ = value.toPointF();
        emit motionChanged();
    });

    qAddPostRoutine(&StatusOverlay::applicationGone);
}

QColor StatusOverlay::spinnerColor() const {
    return QColor(overlay::kSpinnerColour.red, overlay::kSpinnerColour.green,
                  overlay::kSpinnerColour.blue);
}

void StatusOverlay::show(const std::optional<QString>& text, bool interaction) {
    StatusOverlay& hud = shared();
    hud.interaction_ = interaction;
    hud.hudMake(text, {}, true, false);
}

void StatusOverlay::showSuccess(const std::optional<QString>& text, bool interaction) {
    StatusOverlay& hud = shared();
    hud.interaction_ = interaction;
    hud.hudMake(text, kSuccessImage, false, true);
}

void StatusOverlay::showError(const std::optional<QString>& text, bool interaction) {
    StatusOverlay& hud = shared();
    hud.interaction_ = interaction;
    hud.hudMake(text, kErrorImage, false, true);
}

void StatusOverlay::dismiss() { shared().hudHide(); }

void StatusOverlay::hudMake(const std::optional<QString>& text, const QString& image, bool spin,
                            bool hide) {
    hudCreate();
    text_ = text;
    imageName_ = image;
    spinning_ = spin;
    hudSize();
    emit contentChanged();
    hudOrient();
    hudPosition(std::nullopt);
    hudShow();
    if (hide) startTimedHide();
}

void StatusOverlay::hudCreate() {
    if (active_) return;
    // A new box, untransformed; whether touches reach the application is settled now, for as
    // long as this box lives.
    active_ = true;
    background_ = !interaction_;
    boxScale_ = 1;
    boxOpacity_ = 1;
    registerNotifications();
}

void StatusOverlay::registerNotifications() {
    if (QScreen* screen = QGuiApplication::primaryScreen())
        observers_ << connect(screen, &QScreen::orientationChanged, this, [this] { hudOrient(); });
    QInputMethod* keyboard = QGuiApplication::inputMethod();
    observers_ << connect(keyboard, &QInputMethod::keyboardRectangleChanged, this, [this, keyboard] {
        const QRectF frame = keyboard->keyboardRectangle();
        hudPosition(KeyboardChange{
            frame.isEmpty() ? overlay::KeyboardEvent::WillHide : overlay::KeyboardEvent::WillShow,
            frame.size()});
    });
    observers_ << connect(keyboard, &QInputMethod::visibleChanged, this, [this, keyboard] {
        hudPosition(KeyboardChange{keyboard->isVisible() ? overlay::KeyboardEvent::DidShow
                                                         : overlay::KeyboardEvent::DidHide,
                                   keyboard->keyboardRectangle().size()});
    });
}

void StatusOverlay::hudDestroy() {
    for (const QMetaObject::Connection& observer : std::as_const(observers_)) disconnect(observer);
    observers_.clear();
    move_->stop();
    active_ = false;
    background_ = false;
    text_.reset();
    imageName_.clear();
    spinning_ = false;
    emit contentChanged();
}

void StatusOverlay::hudSize() {
    const overlay::BoxLayout layout =
        overlay::boxLayout(text_ ? std::optional(measure(*text_, labelFont_)) : std::nullopt);
    boxSize_ = QSizeF(layout.box.width, layout.box.height);
    labelFrame_ = QRectF(layout.label.x, layout.label.y, layout.label.width, layout.label.height);
    iconCentre_ = QPointF(layout.centre.x, layout.centre.y);
}

void StatusOverlay::hudOrient() {
    rotation_ = qRadiansToDegrees(overlay::rotationAngle(interfaceOrientation()));
    emit motionChanged();
}

void StatusOverlay::hudPosition(std::optional<KeyboardChange> change) {
    const overlay::Orientation orientation = interfaceOrientation();
    float keyboard = 0;
    double seconds = 0;
    if (change) {
        seconds = kKeyboardAnimationSeconds;
        keyboard = overlay::keyboardHeight(
            change->event,
            {static_cast<float>(change->frame.width()), static_cast<float>(change->frame.height())},
            orientation);
    } else {
        keyboard = keyboardHeight();
    }
    const QSizeF screen = MainScreen::bounds();
    const overlay::Point centre = overlay::boxCentre(
        orientation, {static_cast<float>(screen.width()), static_cast<float>(screen.height())},
        keyboard);
    const QPointF target(centre.x, centre.y);

    move_->stop();
    if (seconds <= 0) {
        centre_ = target;
        emit motionChanged();
        return;
    }
    move_->setDuration(milliseconds(seconds));
    move_->setStartValue(centre_);
    move_->setEndValue(target);
    move_->start();
}

float StatusOverlay::keyboardHeight() {
    const QInputMethod* keyboard = QGuiApplication::inputMethod();
    return keyboard->isVisible() ? static_cast<float>(keyboard->keyboardRectangle().height()) : 0;
}

void StatusOverlay::hudShow() {
    if (alpha_ != 0) return;
    alpha_ = 1;
    boxOpacity_ = 0;
    boxScale_ *= overlay::kShowStartScale;
    emit motionChanged();
    animateBox(boxScale_ * overlay::kShowScaleStep, 1, nullptr);
}

// The state stays shown until the shrink has finished: a show meanwhile changes nothing that
// lasts, since the end of the shrink tears everything down.
void StatusOverlay::hudHide() {
    if (alpha_ != 1 || hiding_) return;
    hiding_ = true;
    animateBox(boxScale_ * overlay::kHideScale, 0, [this] {
        hiding_ = false;
        hudDestroy();
        alpha_ = 0;
    });
}

void StatusOverlay::animateBox(qreal scale, qreal opacity, std::function<void()> done) {
    fade_->stop();
    fadeFrom_ = {boxScale_, boxOpacity_};
    fadeTo_ = {scale, opacity};
    fadeDone_ = std::move(done);
    fade_->start();
}

void StatusOverlay::startTimedHide() {
    // The thread gets its own copy of the text, so nothing is shared with the main thread but
    // the count and the lock.
    std::optional<std::string> text;
    if (text_) text = text_->toStdString();
    ++timedHidesInFlight_;
    std::thread([this, text = std::move(text)] { timedHide(text); }).detach();
}

// On its own thread. The shared object is never freed, so `this` outlives the thread; the
// application object may not, and without it there is no main thread to hand the hide to.
void StatusOverlay::timedHide(const std::optional<std::string>& text) {
    const double seconds = overlay::hideDelay(text ? std::optional<std::string_view>(*text)
                                                   : std::nullopt);
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
    {
        const std::lock_guard lock(applicationLock_);
        if (applicationAlive_)
            QMetaObject::invokeMethod(this, [this] { hudHide(); }, Qt::QueuedConnection);
    }
    --timedHidesInFlight_;
}

// Runs in the application object's destructor, on the main thread.
void StatusOverlay::applicationGone() {
    const std::lock_guard lock(instance->applicationLock_);
    instance->applicationAlive_ = false;
}
