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
    QPoint place; ///< left end of the base line
    QString text;
    QColor color;
    int pointSize;
    int room = 0; ///< in pixels: wider words are squeezed to it; 0 means no limit
};

/// The content of one layer of a view, in the order of painting: shapes and words with place and colour.
/// Places are in logical pixels from the top left corner of the layer.
using Drawing = std::vector<std::variant<FilledRect, DrawnLine, Words>>;

void paintDrawing(const Drawing &drawing, QPainter &painter);

/// The application's font in a size of at least one point.
QFont fontOfSize(int points);
