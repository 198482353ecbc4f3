#include "screen-engine.h"

#include "common/history-metatype.h"
#include "msg-holder.h"
#include "version.h"
#include "visuals/bar-scan-result-plot.h"
#include "visuals/freq-plot.h"
#include "visuals/hist-view.h"
#include "visuals/plots-list-model.h"
#include "visuals/uav-switch.h"
#include "visuals/uav-three-switch.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QQmlContext>
#include <QQuickWindow>
#include <QScreen>
#include <QTranslator>
#include <algorithm>

namespace {

/// Tells a window whether the user's last gesture was one of the keyboard, also where a control takes the
/// event.
class LastGesture : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject *window, QEvent *event) override {
        constexpr int keys[] = {Qt::Key_Tab,  Qt::Key_Backtab, Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,
                                Qt::Key_Down, Qt::Key_Space,   Qt::Key_Enter, Qt::Key_Return, Qt::Key_Escape};
        if (event->type() == QEvent::KeyPress) {
            const int key = static_cast<QKeyEvent *>(event)->key();
            if (std::find(std::begin(keys), std::end(keys), key) != std::end(keys))
                window->setProperty("isKeyboardUsed", true);
        } else if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::TouchBegin) {
            window->setProperty("isKeyboardUsed", false);
        }
        return false;
    }
};

/// Whether a platform has no display.
bool isMadeUp(const QString &platform) {
    return platform.startsWith("offscreen") || platform.startsWith("minimal");
}

} // namespace

void followDesktopScale(int argc, char **argv) {
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    // Words have their places in pixels, so a larger text of the desktop enlarges the window as a whole.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    // Screens that are made up have a text of 100 dpi, which nobody has asked for.
    QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    for (int i = 1; i + 1 < argc; ++i)
        if (QByteArray(argv[i]).endsWith("-platform"))
            platform = argv[i + 1];
    if (isMadeUp(platform) && qEnvironmentVariableIntValue("QT_FONT_DPI") <= 0)
        qputenv("QT_FONT_DPI", "96");
}

void registerTypes() {
    qmlRegisterType<Guarded<BarScanResultPlot>>("barScanResultPlot", 1, 0, "BarScanResultPlot");
    qmlRegisterType<Guarded<PlotListModel>>("plotListModel", 1, 0, "PlotListModel");
    qmlRegisterType<Guarded<UavSwitch>>("uavSwitch", 1, 0, "UavSwitch");
    qmlRegisterType<Guarded<UavThreeSwitch>>("uavThreeSwitch", 1, 0, "UavThreeSwitch");
    qmlRegisterType<Guarded<HistView>>("histView", 1, 0, "HistView");
    qmlRegisterType<Guarded<FreqPlot>>("freqPlot", 1, 0, "FreqPlot");
    qRegisterMetaType<History>("History");
    qRegisterMetaType<MsgHolder>("MsgHolder");
}

ScreenEngine::ScreenEngine(ServiceObjects &objects)
    : version(QString::fromStdString(version::getVersion())) {
    QQmlContext &context = *engine.rootContext();
    context.setContextProperty("usbService", &objects.usbService);
    context.setContextProperty("themeData", &objects.themeData);
    context.setContextProperty("masterModes", &objects.masterModes);
    context.setContextProperty("freqPlotModel", &objects.freqPlotModel);
    context.setContextProperty("confHndlr", &confHndlr);
    context.setContextProperty("aiPriorHndlr", &aiPriorHndlr);
    context.setContextProperty("confK7Hndlr", &confK7Hndlr);
    context.setContextProperty("historyModel", &historyModel);
    context.setContextProperty("version", version);
    QObject::connect(&engine, &QQmlApplicationEngine::quit, qApp, &QCoreApplication::quit);
    // The documents' own handlers run when the engine ends, after the event loop.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &engine,
                     [&service = objects.usbService] { service.shutDown(); });
}

ScreenEngine::~ScreenEngine() {
    qDeleteAll(engine.rootObjects());
}

void ScreenEngine::load(const QUrl &document) {
    QObject::connect(
        &engine, &QQmlApplicationEngine::objectCreated, qApp,
        [document](const QObject *created, const QUrl &address) {
            if (!created && address == document)
                QCoreApplication::exit(-1);
        },
        Qt::QueuedConnection);
    // The translation lies in the working directory of a user who reads Russian and nowhere else; without it
    // the screens keep their source texts. A null suffix stands for Qt's own, an empty one would be none.
    static auto *const translator = new QTranslator; // in use until the process ends
    translator->load("UavVesper-ru", ".", QString(), QString());
    QCoreApplication::installTranslator(translator);
    engine.load(document);
    for (QObject *window : engine.rootObjects())
        window->installEventFilter(new LastGesture(window));
}

void ScreenEngine::fitToScreen() {
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    if (!window || isMadeUp(QGuiApplication::platformName()))
        return;
    const auto fit = [window] {
        window->resize(fittingSize(window->size(), window->minimumSize(), window->screen()->availableSize(),
                                   window->frameMargins()));
    };
    fit();
    // The frame is known once the window shows.
    auto *firstFrame = new QObject(window);
    QObject::connect(window, &QQuickWindow::frameSwapped, firstFrame, [fit, firstFrame] {
        fit();
        firstFrame->deleteLater();
    });
}

QSize fittingSize(const QSize &asked, const QSize &minimum, const QSize &freeArea, const QMargins &frame) {
    const QSize room = freeArea - QSize(frame.left() + frame.right(), frame.top() + frame.bottom());
    return asked.boundedTo(room).expandedTo(minimum);
}
