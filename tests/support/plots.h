#pragma once

#include "common/history.h"
#include "common/sig-type-colors.h"
#include "visuals/grid-plot.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

/// What a point of a scan is; the first column is at 2400 MHz, each further one 10 MHz above.
struct Signal {
    float rssi;
    SigTypeEnum type;
};
using Scan = std::vector<Signal>;

/// A history of these scans, oldest first, so many milliseconds apart.
inline History historyOf(const std::vector<Scan> &scans, std::int64_t apartMs = 100, float firstMHz = 2400) {
    History history(MasterFreqModeEnum::R_2400, History::DEFAULT_HISTORY_LEN);
    std::int64_t nowMs = 5000;
    for (const Scan &scan : scans) {
        History::Scan results;
        for (const Signal &signal : scan) {
            const float freq = firstMHz + 10.0f * static_cast<float>(results.size());
            results.push_back(std::make_shared<FreqScanResult>(
                FreqScanResultBuilder().freqMHz(freq).rssi(signal.rssi).type(signal.type).build()));
        }
        history.acceptScan(results, nowMs);
        nowMs += apartMs;
    }
    return history;
}

/// A view of a history whose grid is 40 characters wide and has a height of its own choice, in pixels.
template <typename Plot>
class SizedGridPlot : public Plot {
public:
    static constexpr int TEXT = 10;

    SizedGridPlot(int topPad, int gridHeight)
        : charW(averageCharWidth(TEXT))
        , origin(4 * charW, topPad)
        , width(40 * charW)
        , height(gridHeight) {
        this->setBackgroundColor(Qt::black);
        this->setTextColor(Qt::white);
        this->setBorderColor(Qt::blue);
        this->setTextSize(TEXT);
        this->setSize(QSizeF(origin.x() + width, topPad + height + 2 * TEXT));
    }

    static int averageCharWidth(int textSize) {
        QFont font = QGuiApplication::font();
        font.setPointSize(qMax(textSize, 1));
        return QFontMetrics(font).averageCharWidth();
    }

    QImage picture() {
        QImage shown(this->boundingRect().size().toSize(), QImage::Format_RGB32);
        shown.fill(Qt::magenta);
        QPainter painter(&shown);
        this->paint(&painter);
        return shown;
    }

    /// The colour at a place of the grid.
    QColor at(int x, int y) { return picture().pixelColor(origin + QPoint(x, y)); }

    /// Where vertical lines of two pixels stand; all have to cross the line at 5 pixels from the top.
    std::vector<int> columns() {
        const QImage shown = picture();
        const auto isGrid = [&](int x) {
            return x < 0 || shown.pixelColor(origin + QPoint(x, 5)) == QColor(Qt::blue);
        };
        std::vector<int> found;
        for (int x = 0; x < width; ++x)
            if (isGrid(x) && isGrid(x - 1))
                found.push_back(x);
        return found;
    }

    /// Whether there is text somewhere in an area of the item.
    bool hasText(const QRect &area) {
        const QImage cut = picture().copy(area);
        for (int y = 0; y < cut.height(); ++y)
            for (int x = 0; x < cut.width(); ++x)
                if (cut.pixelColor(x, y) == QColor(Qt::white))
                    return true;
        return false;
    }
    /// The line of labels below the grid.
    QRect labels() const { return QRect(0, origin.y() + height, origin.x() + width, 2 * TEXT); }

    const int charW;
    const QPoint origin;
    const int width;
    const int height;
};

/// Shows histories in views that are too small for their labels; it has to come to an end.
template <typename Plot>
bool staysEmptyWithoutRoom(const std::vector<History> &histories) {
    bool empty = true;
    for (const int text : {0, 3, 20}) {
        for (const int side : {1, 5, 40, 64}) {
            SizedGridPlot<Plot> plot(0, 0);
            plot.setTextSize(text);
            plot.setSize(QSizeF(side, side));
            for (const History &history : histories) {
                plot.setHistory(history);
                QImage background(side, side, QImage::Format_RGB32);
                background.fill(Qt::black);
                empty = empty && (side > 4 * plot.averageCharWidth(text) || plot.picture() == background);
            }
        }
    }
    return empty;
}
