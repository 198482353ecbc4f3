#pragma once

#include <QColor>
#include <QFont>
#include <QLine>
#include <QPoint>
#include <QRect>
#include <QString>
#include <variant>
#include <vector>

class QPainter;

struct FilledRect {
    QRect place;
    QColor color;
};

struct DrawnLine {
    QLine place;
    QColor color;
    int width;    ///< in pixels
    int dash = 0; ///< length of the dashes and of the gaps in widths of the line; 0 for a line without gaps
};

struct Words {
    QPoint place; ///< the left end of the base line
    QString text;
    QColor color;
    int pointSize;
    int room = 0; ///< in pixels: wider words are squeezed to it; 0 for words that may be of any width
};

/// What one layer of a view shows, in the order of painting: what stands where in which colour, in logical
/// pixels from the layer's corner. It says nothing of how that is painted.
using Drawing = std::vector<std::variant<FilledRect, DrawnLine, Words>>;

void paintDrawing(const Drawing &drawing, QPainter &painter);

/// The application's font in a size of at least one point.
QFont fontOfSize(int points);
