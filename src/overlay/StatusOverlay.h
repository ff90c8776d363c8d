#pragma once
// The status overlay: a small rounded box floating over the whole window with a spinner, or a
// success or error picture, and an optional text. One shared object, driven by class operations
// from the main thread; KitStatusOverlay draws what it holds. Its state is its alpha: 0 hidden,
// 1 shown. Sizing, placing and timing come from OverlayLayout; this object applies them.

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QList>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <atomic>
#include <functional>
#include <mutex>
#include <optional>
#include <string>

#include "overlay/OverlayLayout.h"

class QVariantAnimation;

class StatusOverlay : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("one shared object, made on first use")
    // The box and its parts exist: from a show until the end of the hide that follows.
    Q_PROPERTY(bool active READ active NOTIFY contentChanged)
    // A transparent layer over the window swallows touches while the box is up.
    Q_PROPERTY(bool catchesTouches READ catchesTouches NOTIFY contentChanged)
    Q_PROPERTY(QString text READ text NOTIFY contentChanged)
    Q_PROPERTY(bool labelHidden READ labelHidden NOTIFY contentChanged)
    Q_PROPERTY(QString imageName READ imageName NOTIFY contentChanged)
    Q_PROPERTY(bool spinning READ spinning NOTIFY contentChanged)
    Q_PROPERTY(QSizeF boxSize READ boxSize NOTIFY contentChanged)
    Q_PROPERTY(QRectF labelFrame READ labelFrame NOTIFY contentChanged)
    Q_PROPERTY(QPointF iconCentre READ iconCentre NOTIFY contentChanged)
    Q_PROPERTY(QFont labelFont READ labelFont CONSTANT)
    Q_PROPERTY(QColor spinnerColor READ spinnerColor CONSTANT)
    // Where the box is, in window coordinates, and how it is turned, scaled and faded.
    Q_PROPERTY(QPointF centre READ centre NOTIFY motionChanged)
    Q_PROPERTY(qreal rotation READ rotation NOTIFY motionChanged)  // degrees, clockwise
    Q_PROPERTY(qreal boxScale READ boxScale NOTIFY motionChanged)
    Q_PROPERTY(qreal boxOpacity READ boxOpacity NOTIFY motionChanged)

public:
    // Created on first use, under a once-only guard, and kept for the life of the process.
    static StatusOverlay& shared();

    // A text of std::nullopt is no text; an empty text is still text.
    static void show(const std::optional<QString>& text = std::nullopt, bool interaction = true);
    // Success and error hide by themselves after 0.5 s plus 0.04 s per character.
    static void showSuccess(const std::optional<QString>& text = std::nullopt,
                            bool interaction = true);
    static void showError(const std::optional<QString>& text = std::nullopt,
                          bool interaction = true);
    static void dismiss();

    bool isShown() const { return alpha_ == 1; }
    bool interaction() const { return interaction_; }
    // Timed hides whose thread has not yet handed the hide back to the main thread.
    int timedHidesInFlight() const { return timedHidesInFlight_.load(); }

    bool active() const { return active_; }
    bool catchesTouches() const { return background_; }
    QString text() const { return text_.value_or(QString()); }
    bool labelHidden() const { return !text_; }
    QString imageName() const { return imageName_; }
    bool spinning() const { return spinning_; }
    QSizeF boxSize() const { return boxSize_; }
    QRectF labelFrame() const { return labelFrame_; }
    QPointF iconCentre() const { return iconCentre_; }
    QFont labelFont() const { return labelFont_; }
    QColor spinnerColor() const;
    QPointF centre() const { return centre_; }
    qreal rotation() const { return rotation_; }
    qreal boxScale() const { return boxScale_; }
    qreal boxOpacity() const { return boxOpacity_; }

signals:
    void contentChanged();
    void motionChanged();

private:
    struct KeyboardChange {
        overlay::KeyboardEvent event;
        QSizeF frame;
    };

    StatusOverlay();
    void hudMake(const std::optional<QString>& text, const QString& image, bool spin, bool hide);
    void hudCreate();
    void registerNotifications();
    void hudDestroy();
    void hudSize();
    void hudOrient();
    void hudPosition(std::optional<KeyboardChange> change);
    static float keyboardHeight();
    void hudShow();
    void hudHide();
    void startTimedHide();
    void timedHide(const std::optional<std::string>& text);
    void animateBox(qreal scale, qreal opacity, std::function<void()> done);
    static void applicationGone();

    bool interaction_ = true;
    qreal alpha_ = 0;
    bool active_ = false;
    bool background_ = false;
    std::optional<QString> text_;
    QString imageName_;
    bool spinning_ = false;
    QSizeF boxSize_;
    QRectF labelFrame_;
    QPointF iconCentre_;
    QFont labelFont_;
    QPointF centre_;
    qreal rotation_ = 0;
    qreal boxScale_ = 1;
    qreal boxOpacity_ = 1;
    bool hiding_ = false;
    struct Fade {
        qreal scale = 1;
        qreal opacity = 1;
    };
    Fade fadeFrom_;
    Fade fadeTo_;
    std::function<void()> fadeDone_;
    QVariantAnimation* fade_;  // scale and opacity of a show or hide
    QVariantAnimation* move_;  // the centre, following the keyboard
    QList<QMetaObject::Connection> observers_;

    // The timed-hide threads hand their hide to the main thread only while the application
    // object exists; its destruction clears applicationAlive_ under the same lock.
    std::atomic<int> timedHidesInFlight_{0};
    std::mutex applicationLock_;
    bool applicationAlive_ = true;
};
