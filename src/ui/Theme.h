#pragma once
// Every colour, font and shared metric of the program, and what differs between a phone and a
// pad: one definition each, read by C++ (Theme::tint()) and by QML (Theme.tint) alike.

#include <QtQml/qqmlregistration.h>
#include <QColor>
#include <QFont>
#include <QObject>
#include <QString>
#include <QUrl>

class Theme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

    // The red of bar buttons, tab and navigation bars, chosen answers and figures.
    Q_PROPERTY(QColor tint READ tint CONSTANT)
    Q_PROPERTY(QColor text READ text CONSTANT)
    Q_PROPERTY(QColor secondaryText READ secondaryText CONSTANT)
    Q_PROPERTY(QColor fineText READ fineText CONSTANT)
    Q_PROPERTY(QColor inactive READ inactive CONSTANT)
    Q_PROPERTY(QColor onTint READ onTint CONSTANT)
    Q_PROPERTY(QColor clear READ clear CONSTANT)
    // The keyboard's ring: the platform's focus blue, so it never reads as a chosen answer's red.
    Q_PROPERTY(QColor focusRing READ focusRing CONSTANT)
    Q_PROPERTY(QColor windowBackground READ windowBackground CONSTANT)
    Q_PROPERTY(QColor barBackground READ barBackground CONSTANT)
    Q_PROPERTY(QColor barLine READ barLine CONSTANT)
    // White boxes: fields, wheels, answers.
    Q_PROPERTY(QColor field READ field CONSTANT)
    // The translucent cards of figures, with their border.
    Q_PROPERTY(QColor card READ card CONSTANT)
    Q_PROPERTY(QColor cardLine READ cardLine CONSTANT)
    Q_PROPERTY(QColor gaugeTrack READ gaugeTrack CONSTANT)
    Q_PROPERTY(QColor eaten READ eaten CONSTANT)
    // Alerts and option sheets: the dimmed window, their grey group and its separators.
    Q_PROPERTY(QColor dimming READ dimming CONSTANT)
    Q_PROPERTY(QColor group READ group CONSTANT)
    Q_PROPERTY(QColor groupLine READ groupLine CONSTANT)
    Q_PROPERTY(QColor wheelBand READ wheelBand CONSTANT)
    Q_PROPERTY(QColor rowSelection READ rowSelection CONSTANT)
    Q_PROPERTY(QColor rowSeparator READ rowSeparator CONSTANT)
    // The status overlay's box: a frosted white, darkened.
    Q_PROPERTY(QColor overlayBox READ overlayBox CONSTANT)
    Q_PROPERTY(QColor overlayShade READ overlayShade CONSTANT)

    Q_PROPERTY(QString fontFamily READ fontFamily CONSTANT)
    Q_PROPERTY(qreal navigationBarHeight READ navigationBarHeight CONSTANT)
    Q_PROPERTY(qreal tabBarHeight READ tabBarHeight CONSTANT)
    Q_PROPERTY(qreal sectionHeaderHeight READ sectionHeaderHeight CONSTANT)

    // The device idiom, and what it changes: layouts' metrics are phone points times unit; their
    // content stands in a column of columnWidth (0: the screen's width less two margins).
    Q_PROPERTY(bool pad READ pad CONSTANT)
    Q_PROPERTY(qreal unit READ unit CONSTANT)
    Q_PROPERTY(qreal columnWidth READ columnWidth CONSTANT)
    Q_PROPERTY(qreal margin READ margin CONSTANT)
    // Device pixels per point where the window draws: its pixel ratio times the canvas's scale.
    // Images are taken at the resolution that needs (see imageUrl).
    Q_PROPERTY(qreal imageScale READ imageScale WRITE setImageScale NOTIFY imageScaleChanged)

public:
    explicit Theme(QObject* parent = nullptr) : QObject(parent) {}

    static QColor tint() { return QColor(0xFF, 0x3B, 0x30); }
    static QColor text() { return QColor(0x00, 0x00, 0x00); }
    static QColor secondaryText() { return QColor(0x8A, 0x8A, 0x8E); }
    static QColor fineText() { return QColor(0x55, 0x55, 0x55); }
    static QColor inactive() { return QColor(0x8E, 0x8E, 0x93); }
    static QColor onTint() { return QColor(0xFF, 0xFF, 0xFF); }
    static QColor clear() { return QColor(0, 0, 0, 0); }
    static QColor focusRing() { return QColor(0x0A, 0x84, 0xFF); }
    static QColor windowBackground() { return QColor(0xF7, 0xF5, 0xF2); }
    static QColor barBackground() { return QColor(0xF9, 0xF8, 0xF7); }
    static QColor barLine() { return QColor(0xC8, 0xC4, 0xC0); }
    static QColor field() { return QColor(0xFF, 0xFF, 0xFF); }
    static QColor card() { return QColor(0xFF, 0xFF, 0xFF, 0xD9); }
    static QColor cardLine() { return QColor(0xE0, 0xDB, 0xD4); }
    static QColor gaugeTrack() { return QColor(0xE9, 0xE4, 0xDD); }
    static QColor eaten() { return QColor(0x2E, 0x8B, 0x57); }
    static QColor dimming() { return QColor(0, 0, 0, 0x66); }
    static QColor group() { return QColor(0xF2, 0xF2, 0xF2); }
    static QColor groupLine() { return QColor(0xD0, 0xD0, 0xD0); }
    static QColor wheelBand() { return QColor(0, 0, 0, 0x0F); }
    static QColor rowSelection() { return QColor(0xD9, 0xD9, 0xD9); }
    static QColor rowSeparator() { return QColor(0, 0, 0, 0x22); }
    static QColor overlayBox() { return QColor(0xF8, 0xF8, 0xF8); }
    static QColor overlayShade() { return QColor(0, 0, 0, 0x1A); }

    static QString fontFamily() { return QStringLiteral("DejaVu Sans"); }
    static qreal navigationBarHeight() { return 44; }
    static qreal tabBarHeight() { return 49; }
    static qreal sectionHeaderHeight() { return 22; }

    static bool pad() { return pad_; }
    static qreal unit() { return pad_ ? 1.5 : 1; }
    static qreal columnWidth() { return pad_ ? 520 : 0; }
    static qreal margin() { return 20; }
    // Set once the device idiom is known, before anything is drawn.
    static void setPad(bool pad) { pad_ = pad; }

    qreal imageScale() const { return imageScale_; }
    void setImageScale(qreal scale);

    // An image of the program by name ("check", "StatusOverlay.bundle/error-color") in the
    // rendering for scale (the 2x one above 1, the 3x one above 2); none for "".
    Q_INVOKABLE static QUrl imageUrl(const QString& name, qreal scale = 1);
    // The face a label or layer asks for by name, when this machine has it; else the program's.
    // "...-Thin" and "...-Bold" names that fall back keep their weight.
    Q_INVOKABLE static QString familyFor(const QString& fontName);
    Q_INVOKABLE static int weightFor(const QString& fontName);

signals:
    void imageScaleChanged();

private:
    static inline bool pad_ = false;
    qreal imageScale_ = 1;
};
