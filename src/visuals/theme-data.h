#pragma once

#include "common/sig-type-colors.h"

#include <QObject>

/// Every size and colour on the screen. Sizes depend on the window's width and height. The root document
/// writes these two and then emits sizeChanged() itself. Lives on the UI thread.
class ThemeData : public QObject {
    Q_OBJECT
    Q_PROPERTY(QColor backgroundColor READ getBackgroundColor NOTIFY changed)
    Q_PROPERTY(QColor strokeColor READ getStrokeColor NOTIFY changed)
    Q_PROPERTY(QColor fragmentColor READ getFragmentColor NOTIFY changed)
    Q_PROPERTY(QColor lightTextColor READ getLightTextColor NOTIFY changed)
    Q_PROPERTY(QColor disabledTextColor READ getDisabledTextColor NOTIFY changed)
    Q_PROPERTY(QColor darkTextColor READ getDarkTextColor NOTIFY changed)
    Q_PROPERTY(QColor wifiColor READ getWifiColor NOTIFY changed)
    Q_PROPERTY(QColor digColor READ getDigColor NOTIFY changed)
    Q_PROPERTY(QColor fpvColor READ getFpvColor NOTIFY changed)
    Q_PROPERTY(QColor barPlotBorder READ getBarPlotBorder NOTIFY changed)
    Q_PROPERTY(QColor maskColor READ getMaskColor NOTIFY changed)
    Q_PROPERTY(QColor accentColor READ getAccentColor NOTIFY changed)
    Q_PROPERTY(QColor gridColor READ getGridColor NOTIFY changed)
    Q_PROPERTY(QColor coursePlotBackground READ getCoursePlotBackground NOTIFY changed)
    Q_PROPERTY(QColor grooveColor READ getGrooveColor NOTIFY changed)
    Q_PROPERTY(QColor switchOnColor READ getSwitchOnColor NOTIFY changed)
    Q_PROPERTY(QColor switchOffKnobColor READ getSwitchOffKnobColor NOTIFY changed)
    Q_PROPERTY(QColor pressedShadeColor READ getPressedShadeColor NOTIFY changed)
    Q_PROPERTY(QColor summaryTextColor READ getSummaryTextColor NOTIFY changed)
    Q_PROPERTY(QColor currentEntryColor READ getCurrentEntryColor NOTIFY changed)
    Q_PROPERTY(QColor testModeColor READ getTestModeColor NOTIFY changed)

    Q_PROPERTY(int fontSizeTiny READ getFontSizeTiny NOTIFY sizeChanged)
    Q_PROPERTY(int fontSizeSmall READ getFontSizeSmall NOTIFY sizeChanged)
    Q_PROPERTY(int fontSizeMedium READ getFontSizeMedium NOTIFY sizeChanged)
    Q_PROPERTY(int fontSizeLarge READ getFontSizeLarge NOTIFY sizeChanged)
    Q_PROPERTY(int iconSizeSmall READ getIconSizeSmall NOTIFY sizeChanged)
    Q_PROPERTY(int iconSizeMedium READ getIconSizeMedium NOTIFY sizeChanged)
    Q_PROPERTY(int iconSizeLarge READ getIconSizeLarge NOTIFY sizeChanged)
    Q_PROPERTY(int buttonSizeSmall READ getButtonSizeSmall NOTIFY sizeChanged)
    Q_PROPERTY(int buttonSizeMedium READ getButtonSizeMedium NOTIFY sizeChanged)
    Q_PROPERTY(int buttonSizeLarge READ getButtonSizeLarge NOTIFY sizeChanged)

    Q_PROPERTY(int menuHeight READ getMenuHeight WRITE setMenuHeight NOTIFY menuHeightChanged)
    Q_PROPERTY(int helpFragmentHeight READ getHelpFragmentHeight WRITE setHelpFragmentHeight NOTIFY
                   helpFragmentHeightChanged)
    Q_PROPERTY(int windowWidth READ getWindowWidth WRITE setWindowWidth NOTIFY sizeChanged)
    Q_PROPERTY(int windowHeight READ getWindowHeight WRITE setWindowHeight NOTIFY sizeChanged)

public:
    using QObject::QObject;

    QColor getBackgroundColor() const { return QColor::fromRgba(0xff81909f); }
    QColor getStrokeColor() const { return QColor::fromRgba(0xff000000); }
    QColor getFragmentColor() const { return QColor::fromRgba(0xc0415f50); }
    QColor getLightTextColor() const { return Qt::white; }
    QColor getDisabledTextColor() const { return Qt::darkGray; }
    QColor getDarkTextColor() const { return Qt::black; }
    QColor getWifiColor() const { return SigTypeColors::getColor(SigTypeEnum::WIFI); }
    QColor getDigColor() const { return SigTypeColors::getColor(SigTypeEnum::DIG); }
    QColor getFpvColor() const { return SigTypeColors::getColor(SigTypeEnum::FPV); }
    QColor getBarPlotBorder() const { return QColor::fromRgba(0xff6d7683); }
    QColor getMaskColor() const { return QColor(51, 166, 50); }
    /// Headings, and parts of controls that can be set.
    QColor getAccentColor() const { return QColor::fromRgba(0xffa4ebb6); }
    /// Lines in the signal level over time and in the persistence display.
    QColor getGridColor() const { return QColor::fromRgba(0xff808080); }
    QColor getCoursePlotBackground() const { return QColor::fromRgba(0xff41505f); }
    /// The unfilled part of a slider or a switch.
    QColor getGrooveColor() const { return QColor::fromRgba(0xff808080); }
    QColor getSwitchOnColor() const { return QColor::fromRgba(0xff3cb371); }
    QColor getSwitchOffKnobColor() const { return QColor::fromRgba(0xffffffff); }
    /// A layer over a button that is held down.
    QColor getPressedShadeColor() const { return QColor::fromRgba(0xffa9a9a9); }
    QColor getSummaryTextColor() const { return QColor::fromRgba(0xffd3d3d3); }
    /// The current entry of a list.
    QColor getCurrentEntryColor() const { return QColor::fromRgba(0xffd3d3d3); }
    QColor getTestModeColor() const { return QColor::fromRgba(0xffff0000); }

    /// Font sizes in points.
    int getFontSizeTiny() const;
    int getFontSizeSmall() const;
    int getFontSizeMedium() const;
    int getFontSizeLarge() const;
    /// Icon and button sizes in pixels.
    int getIconSizeSmall() const;
    int getIconSizeMedium() const;
    int getIconSizeLarge() const;
    int getButtonSizeSmall() const;
    int getButtonSizeMedium() const;
    int getButtonSizeLarge() const; ///< No caller today.

    /// Height of the menu panel at the bottom of the window, in pixels.
    int getMenuHeight() const { return menuHeight; }
    void setMenuHeight(int height);
    /// On purpose: stored without a signal. No caller today.
    int getHelpFragmentHeight() const { return helpFragmentHeight; }
    void setHelpFragmentHeight(int height) { helpFragmentHeight = height; }
    /// In pixels. On purpose: the setter emits no signal. Its caller emits sizeChanged().
    int getWindowWidth() const { return windowWidth; }
    void setWindowWidth(int width) { windowWidth = width; }
    int getWindowHeight() const { return windowHeight; }
    void setWindowHeight(int height) { windowHeight = height; }

signals:
    /// On purpose: never emitted. The colours are constant.
    void changed();
    void sizeChanged();
    void menuHeightChanged();
    void helpFragmentHeightChanged(); ///< On purpose: never emitted. No caller today.

private:
    int fontSize(double share, double widthFactor) const;
    int iconSize(double share) const;
    int buttonSize(double share) const;

    int menuHeight = 0;
    int helpFragmentHeight = 0;
    int windowHeight = 0;
    int windowWidth = 0;
};
