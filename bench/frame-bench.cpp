// Measures the time from a scan on the line to its picture in the window, which shows four bands, with the
// software renderer.

#include "bench.h"
#include "msg-to-json-parser.h"
#include "msg/scan-result-msg.h"
#include "screens.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <vector>

namespace {

constexpr int SCANS = 300;
constexpr QSize VIEW_SIZE(800, 184);
const std::vector<FreqModeEnum> RANGES{FreqModeEnum::EXT_1200, FreqModeEnum::EXT_2400, FreqModeEnum::EXT_4900,
                                       FreqModeEnum::EXT_5800};

std::string scanText(std::size_t number) {
    return MsgToJsonParser::toJson(std::make_shared<ScanResultMsg>(
               ScanResultMsgBuilder().freqs(wanderingPeaks(number, RANGES)).mask(false).build())) +
           "\n";
}

/// Seconds that all threads have spent on a processor.
double processSeconds() {
    return secondsOf(CLOCK_PROCESS_CPUTIME_ID);
}

class FrameBench : Screens {
public:
    FrameBench() {
        connectTo(ProtoEnum::K7);
        const auto view = [this] { return driver->find("LayeredPlot"); };
        for (int height = 4 * VIEW_SIZE.height(); view()->size() != QSizeF(VIEW_SIZE); ++height)
            driver->resize({VIEW_SIZE.width(), height});
        QObject::connect(window, &QQuickWindow::frameSwapped, &untilFrame, [this] {
            if (taken(MsgTypeEnum::SCAN_RESULT) > known)
                untilFrame.quit();
        });
        QObject::connect(&tooLate, &QTimer::timeout, &untilFrame, &QEventLoop::quit);
    }

    void run() {
        std::vector<double> latencies;
        double spent = 0;
        for (std::size_t i = 0; i < SCANS; ++i) {
            const std::string text = scanText(i);
            const double spentBefore = processSeconds();
            const double begin = secondsOf(CLOCK_MONOTONIC);
            known = taken(MsgTypeEnum::SCAN_RESULT);
            device->sendText(text);
            tooLate.start(1000);
            untilFrame.exec();
            if (taken(MsgTypeEnum::SCAN_RESULT) == known)
                continue; // lost: its end came in one chunk with the reply to a request of the program
            latencies.push_back(secondsOf(CLOCK_MONOTONIC) - begin);
            QTest::qWait(20); // work after the frame counts, too
            spent += processSeconds() - spentBefore;
        }
        std::sort(latencies.begin(), latencies.end());
        report("frame-median", latencies[latencies.size() / 2] * 1e3, "ms");
        report("frame-99th-percentile", latencies[latencies.size() * 99 / 100] * 1e3, "ms");
        report("processor-per-scan", spent / static_cast<double>(latencies.size()) * 1e3, "ms");
    }

private:
    QEventLoop untilFrame;
    QTimer tooLate;
    int known = 0;
};

} // namespace

int main(int argc, char **argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    registerTypes();
    const QGuiApplication app(argc, argv);
    FrameBench().run();
}
