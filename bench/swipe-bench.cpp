// How long a frame takes while a band is swiped on and on and while the settings scroll, on a display,
// against the frames of an empty window of the same size in which a square moves. swipe-bench [WIDTH HEIGHT],
// in logical pixels.

#include "bench.h"
#include "log.h"
#include "screens.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>
#include <mutex>

namespace {

constexpr int SWIPES = 60, FLICKS = 2;
constexpr double FLICK_VELOCITY = 2500; // logical pixels a second

constexpr const char *EMPTY_WINDOW = "import QtQuick 2.7\n"
                                     "import QtQuick.Controls 2.0\n"
                                     "ApplicationWindow {\n"
                                     "    visible: true\n"
                                     "    Rectangle {\n"
                                     "        width: 100; height: 100; color: 'gray'\n"
                                     "        NumberAnimation on x { to: 300; duration: 1000; loops: -1 }\n"
                                     "    }\n"
                                     "}\n";

/// The frames that a window shows while something moves in it.
class Motion {
public:
    explicit Motion(QQuickWindow &window) {
        // Whichever thread shows it.
        QObject::connect(
            &window, &QQuickWindow::frameSwapped, &context,
            [this] {
                const std::lock_guard<std::mutex> lock(mutex);
                shown.push_back(secondsOf(CLOCK_MONOTONIC));
            },
            Qt::DirectConnection);
    }

    template <typename Move>
    void take(Move move) {
        clear();
        const double spentBefore = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
        move();
        spent += secondsOf(CLOCK_PROCESS_CPUTIME_ID) - spentBefore;
        const std::lock_guard<std::mutex> lock(mutex);
        if (shown.size() < 2)
            throw std::runtime_error("Nothing moves.");
        seconds += shown.back() - shown.front();
        frames += static_cast<double>(shown.size() - 1);
    }

    double secondsPerFrame() const { return seconds / frames; }
    /// Of all threads, the virtual device included.
    double processorPerFrame() const { return spent / frames; }

private:
    void clear() {
        const std::lock_guard<std::mutex> lock(mutex);
        shown.clear();
    }

    QObject context;
    std::mutex mutex;
    std::vector<double> shown;
    double seconds = 0, spent = 0, frames = 0;
};

class MovedScreens : Screens {
public:
    explicit MovedScreens(const QSize &size) {
        connectTo(ProtoEnum::K7);
        device->setScanPeriod(std::chrono::milliseconds(500));
        device->startStreaming();
        driver->resize(size);
    }

    void swipe(const std::function<void(const Motion &)> &then) {
        Motion motion(*window);
        motion.take([this] {
            for (int i = 0; i < SWIPES; ++i)
                swipeOnce(i % 4 < 2 ? 60 : -60);
        });
        then(motion);
    }

    void scroll(const std::function<void(const Motion &)> &then) {
        click("cfg");
        driver->picture();
        auto *flickable = driver->find("QQuickFlickable", {}, driver->find("DrawerFrame"));
        Motion motion(*window);
        for (int i = 0; i < FLICKS; ++i)
            motion.take([&] {
                QMetaObject::invokeMethod(flickable, "flick", Q_ARG(qreal, 0),
                                          Q_ARG(qreal, i % 2 ? FLICK_VELOCITY : -FLICK_VELOCITY));
                ScreenDriver::waitFor([&] { return !flickable->property("moving").toBool(); });
            });
        then(motion);
    }

private:
    /// Until another view of the last band is shown. The way is half of the gesture's, to the left.
    void swipeOnce(int way) {
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
        if (untilShown.exec() != 0)
            throw std::runtime_error("A band does not follow the swipe.");
    }
};

double emptyFrameSeconds(const QSize &size) {
    QQmlApplicationEngine engine;
    engine.loadData(EMPTY_WINDOW);
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    window->resize(size);
    if (!QTest::qWaitForWindowExposed(window))
        throw std::runtime_error("The empty window does not show.");
    Motion motion(*window);
    motion.take([] { QTest::qWait(2000); });
    return motion.secondsPerFrame();
}

} // namespace

int main(int argc, char **argv) {
    followDesktop(argc, argv);
    registerTypes();
    const QGuiApplication app(argc, argv);
    Log::setSink([](const std::string &) {}); // its lines would stand among the figures
    const QSize size = argc > 2 ? QSize(std::atoi(argv[1]), std::atoi(argv[2])) : QSize(3840, 2160);
    const double empty = emptyFrameSeconds(size);
    const auto reportAs = [empty](const std::string &motion) {
        return [motion, empty](const Motion &seen) {
            report((motion + "-frames").c_str(), seen.secondsPerFrame() / empty, "empty windows");
            report((motion + "-frame").c_str(), seen.secondsPerFrame() * 1e3, "ms");
            report((motion + "-processor").c_str(), seen.processorPerFrame() * 1e3, "ms");
        };
    };
    MovedScreens screens(size);
    screens.swipe(reportAs("swipe"));
    screens.scroll(reportAs("scroll"));
}
