#pragma once

#include "common/guarded.h"
#include "common/history-list-model.h"
#include "handlers/ai-prior-handler.h"
#include "handlers/config-k7-handler.h"
#include "handlers/config-msg-handler.h"
#include "last-gesture.h"
#include "manual-opener.h"
#include "service-objects.h"

#include <QMargins>
#include <QQmlApplicationEngine>
#include <QSize>
#include <QString>
#include <QUrl>

/// Chooses the renderer, and how Qt scales windows. The scale is that of the desktop times that of its text.
/// A scale near a whole number is rounded. Call it before the application object is made; that one gets the
/// same arguments afterwards.
void followDesktop(int argc, char **argv);

/// Sets the program's names and its icon, for the desktop and for folders. Call it after the application
/// object is made.
void introduceProgram();

/// Registers the elements that the documents import, and the values that cross threads and documents. Call it
/// once in a process, before the first engine.
void registerTypes();

/// The size for a window that asks for `asked`. With its frame the window fits into the free area of its
/// screen. The size is never below the minimum. In logical pixels.
QSize fittingSize(const QSize &asked, const QSize &minimum, const QSize &freeArea, const QMargins &frame);

/// The documents and the objects that they use: the engine, the settings front-ends and the history model. It
/// lives on the UI thread and ends before the application object. It ends the connection when the event loop
/// ends.
class ScreenEngine {
public:
    explicit ScreenEngine(ServiceObjects &objects);
    /// The documents end first, because they use the other objects to the end.
    ~ScreenEngine();
    ScreenEngine(const ScreenEngine &) = delete;
    ScreenEngine &operator=(const ScreenEngine &) = delete;

    /// Shows the root document. If it can't be created, the event loop ends with -1 on its next turn.
    void load(const QUrl &document = QUrl("qrc:/qml/MainLinuxWindow.qml"));
    /// Makes the window smaller if its screen has less room than the document asks for. Does nothing on
    /// platforms without a display, since their screens are not real.
    void fitToScreen();

    QQmlApplicationEngine &qmlEngine() { return engine; }

private:
    QQmlApplicationEngine engine;
    Guarded<ConfigMsgHandler> confHndlr;
    Guarded<AiPriorHandler> aiPriorHndlr;
    Guarded<ConfigK7Handler> confK7Hndlr;
    Guarded<HistoryListModel> historyModel;
    LastGesture lastGesture;
    QString version;
    ManualOpener manualOpener;
};
