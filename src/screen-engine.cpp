#include "screen-engine.h"

#include "common/history-metatype.h"
#include "common/qt-versions.h"
#include "msg-holder.h"
#include "renderer.h"
#include "version.h"
#include "visuals/bar-scan-result-plot.h"
#include "visuals/freq-plot.h"
#include "visuals/hist-view.h"
#include "visuals/plots-list-model.h"
#include "visuals/uav-switch.h"
#include "visuals/uav-three-switch.h"

#include <QGuiApplication>
#include <QIcon>
#include <QPointer>
#include <QQmlContext>
#include <QQuickWindow>
#include <QScreen>
#include <QTranslator>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

/// Qt waits 5 ms after a change before it draws, to draw several changes at once. All changes of a scan come
/// together, so 3 ms are enough. Qt reads this time once from the environment, when a first window asks to be
/// drawn again. Here that is a window that never shows, and no other thread runs yet that draws. Then the
/// variable is removed, so that the viewers that the program starts do not inherit it.
void drawSoon() {
    constexpr const char *variable = "QT_QPA_UPDATE_IDLE_TIME";
    if (qEnvironmentVariableIsSet(variable))
        return;
    qputenv(variable, "3");
    QWindow window;
    window.create();
    window.requestUpdate();
    qunsetenv(variable);
}

/// Whether the scale of the desktop's text differs from a whole number by less than 0.05. Such a difference
/// is no wish of the user: displays give their size in whole millimetres, so 96 dpi can read as 96.1, and
/// virtual screens have 100.
bool isAboutWhole(const QScreen *screen) {
    const double factor = screen->logicalDotsPerInch() / 96;
    return qAbs(factor - qRound(factor)) < 0.05;
}

} // namespace

void followDesktop(int argc, char **argv) {
    using Policy = Qt::HighDpiScaleFactorRoundingPolicy;
    // The rounding must be set before there is an application object, but only an application object knows
    // the screens. So a first one is made to ask it.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Policy::PassThrough);
    std::vector<char *> arguments(argv, argv + argc + 1);
    // Qt 6 always scales, and then every desktop seems to have text of the usual size. So the first one does
    // not scale.
    constexpr const char *variable = "QT_ENABLE_HIGHDPI_SCALING";
    const QByteArray asked = qgetenv(variable);
    qputenv(variable, "0");
    auto probe = std::make_unique<QGuiApplication>(argc, arguments.data());
    const auto screens = QGuiApplication::screens();
    const bool isRounded = std::all_of(screens.begin(), screens.end(), isAboutWhole);
    chooseRenderer();
    probe.reset();
    showItemsToScreenReaders();
    asked.isNull() ? qunsetenv(variable) : qputenv(variable, asked);
    if (isRounded)
        QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Policy::Round);
    enableHighDpiScaling();
    // The places of texts are given in pixels. So a larger text of the desktop enlarges the whole window.
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
}

void introduceProgram() {
    QCoreApplication::setOrganizationName(QStringLiteral("com.kelvane"));
    QCoreApplication::setApplicationName(QStringLiteral("UavVesper"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.kelvane.UavVesper"));
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/program")));
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
    context.setContextProperty("lastGesture", &lastGesture);
    context.setContextProperty("version", version);
    QObject::connect(&engine, &QQmlApplicationEngine::quit, qApp, &QCoreApplication::quit);
    // The documents' own handlers run when the engine ends, after the event loop.
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &engine,
                     [&service = objects.usbService] { service.shutDown(); });
    // If the display goes away, Qt calls exit(), which skips all of that. The device must not go on scanning.
    static QPointer<UsbService> serviceAtExit;
    serviceAtExit = &objects.usbService;
    static const int registered = std::atexit([] {
        if (serviceAtExit) {
            serviceAtExit->blockSignals(true); // the screens can't be trusted any more
            serviceAtExit->shutDown();
        }
    });
    Q_UNUSED(registered)
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
    // The translation is in the working directory if the user reads Russian. Without it the screens keep
    // their source texts. A null suffix means Qt's own; an empty one would mean none.
    static auto *const translator = new QTranslator; // in use until the process ends
    if (translator->load("UavVesper-ru", ".", QString(), QString()))
        QCoreApplication::installTranslator(translator);
    drawSoon();
    engine.load(document);
    for (QObject *window : engine.rootObjects())
        window->installEventFilter(&lastGesture);
}

void ScreenEngine::fitToScreen() {
    auto *window = qobject_cast<QQuickWindow *>(engine.rootObjects().value(0));
    const QString platform = QGuiApplication::platformName();
    if (!window || platform == "offscreen" || platform == "minimal")
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
