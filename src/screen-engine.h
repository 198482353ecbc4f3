#pragma once

#include "common/guarded.h"
#include "common/history-list-model.h"
#include "handlers/ai-prior-handler.h"
#include "handlers/config-k7-handler.h"
#include "handlers/config-msg-handler.h"
#include "manual-opener.h"
#include "service-objects.h"

#include <QQmlApplicationEngine>
#include <QString>
#include <QUrl>

/// Tells Qt of the elements that the documents import and of the values that cross threads and documents.
/// Once for each process, before the first engine.
void registerTypes();

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
