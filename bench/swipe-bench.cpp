// swipe-bench [WIDTH HEIGHT], in logical pixels: measures the frames on a display while a band is swiped
// again and again, and while the settings scroll. The yardstick is an empty window of the same size in which
// a square moves.

#include "bench.h"
#include "log.h"
#include "screens.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QPropertyAnimation>
#include <QTest>
#include <QTimer>
#include <atomic>

namespace {

constexpr int SWIPES = 60;
constexpr int SCROLLING_MS = 2000;

constexpr const char *EMPTY_WINDOW = "import QtQuick 2.7\n"
                                     "import QtQuick.Controls 2.0\n"
                                     "ApplicationWindow {\n"
                                     "    visible: true\n"
                                     "    Rectangle {\n"
                                     "        width: 100; height: 100; color: 'gray'\n"
                                     "        NumberAnimation on x { to: 300; duration: 1000; loops: -1 }\n"
                                     "    }\n"
                                     "}\n";

/// The mean cost of a frame of a window while something moves in it.
struct FrameCost {
    double seconds;
    double processor; ///< seconds of all threads, the virtual detector included
};

double secondsSince(double begin) {
    return secondsOf(CLOCK_MONOTONIC) - begin;
}

/// `move` moves something and returns for how many seconds it moved.
template <typename Move>
FrameCost costOfFrames(const QQuickWindow &window, Move move) {
    std::atomic<int> frames{0}; // counted on the thread that shows them
    const double spentBefore = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
    const auto counting = QObject::connect(&window, &QQuickWindow::frameSwapped, [&] { ++frames; });
    const double seconds = move();
    QObject::disconnect(counting);
    if (frames == 0)
        throw std::runtime_error("Nothing moves.");
    return {seconds / frames, (secondsOf(CLOCK_PROCESS_CPUTIME_ID) - spentBefore) / frames};
}

class MovedScreens : Screens {
public:
    explicit MovedScreens(const QSize &size) {
        connectTo(ProtoEnum::K7);
        device->setScanPeriod(std::chrono::milliseconds(500));
        device->startStreaming();
        driver->resize(size);
    }

    FrameCost swipe() {
        return costOfFrames(
            *window,
            [this] {
                double seconds = 0;
                for (int i = 0; i < SWIPES; ++i)
                    seconds += swipeOnce(i % 4 < 2 ? 60 : -60);
                return seconds;
            });
    }

    FrameCost scroll() {
        click("cfg");
        driver->picture();
        auto *flickable = driver->find("QQuickFlickable", {}, driver->find("DrawerFrame"));
        return costOfFrames(*window, [flickable] {
            QPropertyAnimation toEnd(flickable, "contentY");
            toEnd.setEndValue(flickable->property("contentHeight").toDouble() - flickable->height());
            toEnd.setDuration(SCROLLING_MS);
            QEventLoop untilEnd;
            QObject::connect(&toEnd, &QPropertyAnimation::finished, &untilEnd, &QEventLoop::quit);
            const double begin = secondsOf(CLOCK_MONOTONIC);
            toEnd.start();
            untilEnd.exec();
            return secondsSince(begin);
        });
    }

private:
    /// Returns the seconds from the end of the gesture until the last band shows another view. `way` is half
    /// of the gesture's length in pixels; a positive one goes to the left.
    double swipeOnce(int way) {
        const QQuickItem *view = driver->findAll("LayeredPlot").last();
        const QPoint middle = ScreenDriver::middleOf(*view);
        QEventLoop untilShown;
        QObject::connect(
            window, &QQuickWindow::frameSwapped, &untilShown,
            [&] {
                if (!view->isVisible())
                    untilShown.quit();
            });
        QTimer::singleShot(5000, &untilShown, [&] { untilShown.exit(1); });
        driver->drag(middle + QPoint(way, 0), middle - QPoint(way, 0));
        const double begin = secondsOf(CLOCK_MONOTONIC);
        if (untilShown.exec() != 0)
            throw std::runtime_error("A band does not follow the swipe.");
        return secondsSince(begin);
    }
};

FrameCost moveInEmptyWindow(const QSize &size) {
    QQmlApplicationEngine engine;
    engine.loadData(EMPTY_WINDOW);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    window->resize(size);
    if (!QTest::qWaitForWindowExposed(window))
        throw std::runtime_error("The empty window does not show.");
    return costOfFrames(*window, [] {
        const double begin = secondsOf(CLOCK_MONOTONIC);
        QTest::qWait(2000);
        return secondsSince(begin);
    });
}

void reportFrames(const std::string &motion, const FrameCost &frame, const FrameCost &empty) {
    report((motion + "-frames").c_str(), frame.seconds / empty.seconds, "empty windows");
    report((motion + "-frame-time").c_str(), frame.seconds * 1e3, "ms");
    report((motion + "-frame-processor").c_str(), frame.processor * 1e3, "ms");
}

} // namespace

int main(int argc, char **argv) {
    followDesktop(argc, argv);
    registerTypes();
    const QGuiApplication app(argc, argv);
    Log::setSink([](const std::string &) {}); // its lines would be printed between the figures
    const QSize size = argc > 2 ? QSize(std::atoi(argv[1]), std::atoi(argv[2])) : QSize(3840, 2160);
    MovedScreens screens(size);
    const FrameCost swipe = screens.swipe(), scroll = screens.scroll(), empty = moveInEmptyWindow(size);
    reportFrames("swipe", swipe, empty);
    reportFrames("scroll", scroll, empty);
}
