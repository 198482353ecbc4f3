#pragma once

#include "common/guarded.h"
#include "common/history-list-model.h"
#include "handlers/ai-prior-handler.h"
#include "handlers/config-k7-handler.h"
#include "handlers/config-msg-handler.h"
#include "manual-opener.h"
#include "service-objects.h"

#include <QMargins>
#include <QQmlApplicationEngine>
#include <QSize>
#include <QString>
#include <QUrl>

/// Has Qt draw windows by what suits the desktop, and scale them by the very factor of the desktop and of its
/// text, or by a whole one that is near. Before the application object, to which the arguments go on.
void followDesktop(int argc, char **argv);

/// Says which program this is: to the desktop, with its icon, and in the names of files. After the
/// application object.
void introduceProgram();

/// Tells Qt of the elements that the documents import and of the values that cross threads and documents.
/// Once for each process, before the first engine.
void registerTypes();

/// The size for a window that asks for one, so that it has room in the free area of its screen with its frame
/// around it; not below its minimum. In logical pixels.
QSize fittingSize(const QSize &asked, const QSize &minimum, const QSize &freeArea, const QMargins &frame);

/// The documents and all that they name: the engine, the settings front-ends and the history model. Lives on
/// the UI thread, and ends before the application object. When the event loop ends, the connection does.
class ScreenEngine {
public:
    explicit ScreenEngine(ServiceObjects &objects);
    /// The documents end first: they go on reading what they name.
    ~ScreenEngine();
    ScreenEngine(const ScreenEngine &) = delete;
    ScreenEngine &operator=(const ScreenEngine &) = delete;

    /// Shows the root document. If it can't be created, the event loop ends with -1 on its next turn.
    void load(const QUrl &document = QUrl("qrc:/qml/MainLinuxWindow.qml"));
    /// Makes the window smaller where its screen has less room than the document asks for. Not on platforms
    /// without a display, whose screens are made up.
    void fitToScreen();

    QQmlApplicationEngine &qmlEngine() { return engine; }

private:
    QQmlApplicationEngine engine;
    Guarded<ConfigMsgHandler> confHndlr;
    Guarded<AiPriorHandler> aiPriorHndlr;
    Guarded<ConfigK7Handler> confK7Hndlr;
    Guarded<HistoryListModel> historyModel;
    QString version;
    ManualOpener manualOpener;
};
