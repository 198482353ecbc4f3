#pragma once

#include "bench.h"
#include "common/history.h"
#include "visuals/drawing.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <chrono>
#include <memory>
#include <random>
#include <thread>
#include <vector>

const QSize VIEW_SIZE(800, 184); // a band's share of the window
constexpr int TEXT_SIZE = 10;    // points, as in the window at the start

/// Ten scans of a band over its widest range. In each, one column in six has a weak signal at random, and
/// always the same one a strong signal.
inline History historyOf(MasterFreqModeEnum band) {
    const auto freqs = FreqMode(MasterFreqMode(band).getMaxRangeFreqMode()).getFreqList()->getFreqs();
    std::mt19937 random(1);
    History history(band, History::DEFAULT_HISTORY_LEN);
    for (int scan = 0; scan < History::DEFAULT_HISTORY_LEN; ++scan) {
        History::Scan results;
        for (const float freq : freqs) {
            const bool lasting = results.size() == 4;
            const auto type =
                lasting ? SigTypeEnum::FPV : static_cast<SigTypeEnum>(random() % 6 ? 0 : 1 + random() % 3);
            const float rssi = lasting ? -76.0f : -105.0f + static_cast<float>(random() % 28);
            results.push_back(std::make_shared<FreqScanResult>(
                FreqScanResultBuilder().freqMHz(freq).rssi(rssi).type(type).build()));
        }
        history.acceptScan(results);
        std::this_thread::sleep_for(std::chrono::milliseconds(12)); // the curve's points need different times
    }
    return history;
}

/// A view with the properties that the window sets, and its picture.
template <typename View>
class Band : public View {
public:
    Band(MasterFreqModeEnum band, int widthOfLines)
        : history(historyOf(band))
        , target(VIEW_SIZE, QImage::Format_ARGB32_Premultiplied) {
        this->setTextSize(TEXT_SIZE);
        this->setLineWidth(widthOfLines);
        this->setBackgroundColor(Qt::black);
        this->setSize(VIEW_SIZE);
        this->setHistory(history);
        shapes = this->data();
    }

    void paintScan() {
        this->setHistory(history);
        QPainter painter(&target);
        this->paint(&painter);
    }

    void paintBare() {
        QPainter painter(&target);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(target.rect(), Qt::black);
        for (const auto &shape : shapes)
            std::visit([&](const auto &known) { put(known, painter); }, shape);
    }

private:
    static void put(const FilledRect &rect, QPainter &painter) { painter.fillRect(rect.place, rect.color); }
    static void put(const DrawnLine &line, QPainter &painter) {
        QPen pen(line.color, line.width);
        if (line.dash > 0) {
            pen.setDashPattern({double(line.dash), double(line.dash)});
            pen.setDashOffset(line.dash);
        }
        painter.setPen(pen);
        painter.drawLine(line.place);
    }
    static void put(const Words &words, QPainter &painter) {
        painter.setFont(fontOfSize(words.pointSize));
        painter.setPen(words.color);
        painter.drawText(words.place, words.text);
    }

    History history;
    QImage target;
    Drawing shapes;
};

/// Measures one scan on a view of each of the four bands, from `setHistory` to `paint`. The yardstick is a
/// bare painter that draws the same rectangles, lines and texts, all with smooth edges.
template <typename View>
void reportPainting(const char *row, int widthOfLines, int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication app(argc, argv);
    std::vector<std::unique_ptr<Band<View>>> bands;
    for (const MasterFreqModeEnum band : MasterFreqMode::values())
        bands.push_back(std::make_unique<Band<View>>(band, widthOfLines));
    const double ratio = ratioOf(
        500,
        [&] {
            for (const auto &band : bands)
                band->paintScan();
        },
        [&] {
            for (const auto &band : bands)
                band->paintBare();
        });
    report(row, ratio, "bare painters");
}
