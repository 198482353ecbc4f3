#pragma once

#include <QColor>
#include <QRectF>
#include <QSizeF>
#include <QString>

class QPainter;

/// How the painted switches look: a round head with an indicator disc, and a label that grows out of it.
/// Widths and heights are those of the item less a line on either side, in pixels.
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
    /// Draws the text as large as asked for, or smaller where the label would cut it.
    void drawText(QPainter *painter, int w, int h) const;
    /// Draws what the disc shows of the switch's state.
    virtual void drawChecked(QPainter *painter, int w, int h) = 0;
    /// The place of the disc.
    QRectF getLabelRect(int w, int h) const;

    QColor bckgClr;
    int lineWidth = 2;
    int textSize = 10; ///< point size
    bool m_enabled = false;
    QString text;
};
