#pragma once

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

/// The look of the painted switches: a round head with an indicator disc, and a label beside it. Widths and
/// heights are in pixels: those of the item, less the width of a line on each side.
class AbstractUavSwitch {
protected:
    /// The 45 degree points of a circle of diameter 1.
    static constexpr float COEFF_X = 0.85355F;
    static constexpr float COEFF_Y = 0.14645F;
    static const QColor colorChecked; ///< the indicator disc
    static const QColor switchBack;   ///< the round head
    static const QColor textBack;     ///< the label while enabled

    ~AbstractUavSwitch() = default;

    /// Paints the whole switch into an item of this size.
    void paintSwitch(QPainter *painter, const QSizeF &item);

    void drawBorder(QPainter *painter, int w, int h) const;
    /// Draws the text in `textSize`, or smaller if the label is too small for that.
    void drawText(QPainter *painter, int w, int h) const;
    /// Draws the state of the switch into the disc.
    virtual void drawChecked(QPainter *painter, int w, int h) = 0;
    /// The rectangle of the disc.
    QRectF getLabelRect(int w, int h) const;

    QColor bckgClr;
    int lineWidth = 2;
    int textSize = 10; ///< point size
    bool m_enabled = false;
    QString text;
};
