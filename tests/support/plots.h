#pragma once

#include "common/history.h"
#include "scans.h"
#include "visuals/layered-plot.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>

/// A history of these scans, oldest first, so many milliseconds apart.
inline History historyOf(const std::vector<std::vector<Found>> &scans, int apartMs = 100,
                         MasterFreqModeEnum band = MasterFreqModeEnum::R_2400) {
    History history(band, History::DEFAULT_HISTORY_LEN);
    std::int64_t nowMs = 5000;
    for (const auto &scan : scans)
        history.acceptScan(resultsOf(scan), nowMs += apartMs);
    return history;
}

/// How a shape looks and where it stands: "#ff0000:" and "0,298 400x4", "2px dash 0 #0000ff:" and
/// "0,50 to 400,50", "10pt room 28 #eeeeee:" and "'-105' 0,317".
using Told = std::pair<QString, QString>;
inline QString nameOf(const QColor &color) {
    return color.name(color.alpha() < 255 ? QColor::HexArgb : QColor::HexRgb) + ":";
}
inline Told tell(const FilledRect &rect) {
    const QRect &r = rect.place;
    return {nameOf(rect.color), QString::asprintf("%d,%d %dx%d", r.x(), r.y(), r.width(), r.height())};
}
inline Told tell(const DrawnLine &line) {
    const QLine &l = line.place;
    return {QString("%1px dash %2 ").arg(line.width).arg(line.dash) + nameOf(line.color),
            QString::asprintf("%d,%d to %d,%d", l.x1(), l.y1(), l.x2(), l.y2())};
}
inline Told tell(const Words &words) {
    return {QString("%1pt room %2 ").arg(words.pointSize).arg(words.room) + nameOf(words.color),
            QString("'%1' %2,%3").arg(words.text).arg(words.place.x()).arg(words.place.y())};
}

/// The shapes in order, and before those that look different how they look.
inline QStringList told(const Drawing &drawing) {
    QStringList all;
    QString former;
    for (const auto &shape : drawing) {
        const auto [look, place] = std::visit([](const auto &known) { return tell(known); }, shape);
        if (look != former)
            all << look;
        all << place;
        former = look;
    }
    return all;
}
/// The same from a table.
inline QStringList table(const QString &text) {
    return text.trimmed().split(QRegularExpression("; |\\s*\n\\s*"));
}

/// A view whose labels have a font of its own, 7 pixels a character and 9 above the base line.
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
    using Plot::legend;
    QStringList shapes() const { return told(legend()) + told(data()); }

    QImage picture() {
        QImage shown(this->boundingRect().size().toSize(), QImage::Format_RGB32);
        QPainter painter(&shown);
        this->paint(&painter);
        return shown;
    }

    QRect plotArea; ///< the place of the data in the item

protected:
    QRect layOut(const QSize &item) override {
        this->labelFont = {7, 9};
        return plotArea = Plot::layOut(item);
    }
};

/// What a view shows in an item of a size.
struct Standing {
    QSize size;
    int textSize;
    int lineWidth;
    const char *shapes;
};
