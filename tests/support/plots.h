#pragma once

#include "common/history.h"
#include "messages.h"
#include "visuals/layered-plot.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSignalSpy>

/// A history of these scans, oldest first, `apartMs` milliseconds apart.
inline History historyOf(const std::vector<std::vector<Found>> &scans, int apartMs = 100,
                         MasterFreqModeEnum band = MasterFreqModeEnum::R_2400) {
    History history(band, History::DEFAULT_HISTORY_LEN);
    std::int64_t nowMs = 5000;
    for (const auto &scan : scans)
        history.acceptScan(resultsOf(scan), nowMs += apartMs);
    return history;
}

/// The shapes of drawings as a text, one a line, in the order of painting, in pixels. A line that ends in ':'
/// is the look of the shapes below it: [WIDTHpx dash LENGTH] or [POINTSpt room WIDTH], and the colour.
///   rectangle   X,Y WIDTHxHEIGHT
///   line        X1,Y1 to X2,Y2
///   words       'TEXT' X,Y, from the left end of their base line
inline std::string told(const std::vector<Drawing> &drawings) {
    QString all, former;
    const auto text = [](QString format, const auto &...values) {
        ((format = format.arg(values)), ...);
        return format + "\n";
    };
    const auto tell = [&](const QString &kind, const QColor &color, const QString &place) {
        const QString look =
            kind + color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb) + ":\n";
        all += (look == former ? "" : look) + place;
        former = look;
    };
    for (const Drawing &drawing : drawings)
        for (const auto &shape : drawing)
            if (const auto *rect = std::get_if<FilledRect>(&shape)) {
                const QRect &r = rect->place;
                tell("", rect->color, text("%1,%2 %3x%4", r.x(), r.y(), r.width(), r.height()));
            } else if (const auto *line = std::get_if<DrawnLine>(&shape)) {
                const QLine &l = line->place;
                tell(QString("%1px dash %2 ").arg(line->width).arg(line->dash), line->color,
                     text("%1,%2 to %3,%4", l.x1(), l.y1(), l.x2(), l.y2()));
            } else if (const auto *words = std::get_if<Words>(&shape)) {
                tell(QString("%1pt room %2 ").arg(words->pointSize).arg(words->room), words->color,
                     text("'%1' %2,%3", words->text, words->place.x(), words->place.y()));
            }
    return all.toStdString();
}
/// The same text from a table of a test. There "; " also means a line break.
inline std::string table(const QString &shapes) {
    return (shapes.trimmed().replace(QRegularExpression("; |\\s*\n\\s*"), "\n") + "\n").toStdString();
}

/// A view with fixed measures of the labels' font: 7 pixels for a character, 9 above the base line.
template <typename Plot>
class Shown : public Plot {
public:
    explicit Shown(const QSize &size = {100, 100}, int points = 10) {
        this->setProperty("backgroundColor", QColor("#101010"));
        this->setProperty("textColor", QColor("#eeeeee"));
        this->setProperty("borderColor", QColor("#0000ff"));
        this->setProperty("innerBorderColor", QColor("#0000ff"));
        resize(size, points, 2);
    }
    void resize(const QSize &size, int points, int pixels) {
        this->setSize(size);
        this->setProperty("lineWidth", pixels);
        this->setProperty("textSize", points);
    }

    using Plot::data;
    using Plot::itemChange;
    using Plot::legend;
    /// The labels, the plot area, and the data.
    std::string shapes() const {
        return told({legend(), {FilledRect{plotArea, this->backgroundColor}}, data()});
    }
    /// The picture of the view, with `scale` pixels for a logical one.
    QImage picture(double scale = 1) {
        QImage shown((this->boundingRect().size() * scale).toSize(), QImage::Format_RGB32);
        QPainter painter(&shown);
        painter.scale(scale, scale);
        this->paint(&painter);
        return shown;
    }

    QRect plotArea;
    std::pair<int, int> measured; ///< the measures of the real font

protected:
    QRect layOut(const QSize &item) override {
        measured = {this->labelFont.charW, this->labelFont.ascent};
        this->labelFont = {7, 9};
        return plotArea = Plot::layOut(item);
    }
};

/// A row of a table: size of the item, points of the labels, pixels of the lines, and the shapes.
using Standing = std::tuple<QSize, int, int, const char *>;
