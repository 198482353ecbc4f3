#pragma once

#include "bench.h"
#include "common/history.h"
#include "visuals/drawing.h"

#include <QGuiApplication>
#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <random>
#include <thread>
#include <vector>

const QSize VIEW_SIZE(800, 184); // a band's share of the window
constexpr int TEXT_SIZE = 10;    // points, as the window starts

/// Draws one thing, after changing what differs from the thing before.
using Steps = std::vector<std::function<void(QPainter &)>>;

/// Notes what is drawn on it, down to each rectangle, line and text.
class Recorder : public QPaintEngine, public QPaintDevice {
public:
    Recorder()
        : QPaintEngine(AllFeatures) {}

    Steps steps;

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    QPaintEngine *paintEngine() const override { return const_cast<Recorder *>(this); }
    int metric(PaintDeviceMetric metric) const override {
        switch (metric) {
        case PdmWidth:
            return VIEW_SIZE.width();
        case PdmHeight:
            return VIEW_SIZE.height();
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return QImage(1, 1, QImage::Format_RGB32).logicalDpiX();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default:
            return QPaintDevice::metric(metric);
        }
    }

    void updateState(const QPaintEngineState &next) override {
        if (next.state() & DirtyPen)
            steps.push_back([pen = next.pen()](QPainter &painter) { painter.setPen(pen); });
        if (next.state() & DirtyBrush)
            steps.push_back([brush = next.brush()](QPainter &painter) { painter.setBrush(brush); });
        if (next.state() & DirtyFont)
            steps.push_back([font = next.font()](QPainter &painter) { painter.setFont(font); });
    }
    void drawRects(const QRectF *rects, int count) override {
        for (int i = 0; i < count; ++i)
            steps.push_back([rect = rects[i].toRect()](QPainter &painter) { painter.drawRect(rect); });
    }
    void drawLines(const QLineF *lines, int count) override {
        for (int i = 0; i < count; ++i)
            steps.push_back([line = lines[i].toLine()](QPainter &painter) { painter.drawLine(line); });
    }
    void drawTextItem(const QPointF &place, const QTextItem &item) override {
        steps.push_back([place, text = item.text()](QPainter &painter) { painter.drawText(place, text); });
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override { fail(); }
    void drawPolygon(const QPointF *, int, PolygonDrawMode) override { fail(); }

private:
    static void fail() {
        std::fprintf(stderr, "A view draws something else than rectangles, lines and texts.\n");
        std::exit(1);
    }
};

/// Ten scans of a band over its widest range, with a weak signal in every sixth column and one that lasts.
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
        std::this_thread::sleep_for(std::chrono::milliseconds(12)); // a curve needs time
    }
    return history;
}

/// A view as the window has it, with its picture.
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
        Recorder recorder;
        QPainter painter(&recorder);
        paintDrawing(this->data(), painter);
        painter.end();
        steps = std::move(recorder.steps);
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
        for (const auto &step : steps)
            step(painter);
    }

private:
    History history;
    QImage target;
    Steps steps;
};

/// One scan on a view of each of the four bands, from `setHistory` to `paint`, against the same rectangles,
/// lines and texts, all with smooth edges, by a bare painter.
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
