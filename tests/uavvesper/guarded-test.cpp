#include "common/guarded.h"

#include "common/history-list-model.h"
#include "handlers/config-msg-handler.h"
#include "messages.h"
#include "visuals/ranges-list-model.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <gmock/gmock.h>

TEST(Guarded, EndsTheCallOfAScreenThatRaises) {
    qRegisterMetaType<History>("History");
    Guarded<HistoryListModel> model;
    Guarded<RangesListModel> ranges;
    Guarded<ConfigMsgHandler> handler;
    const MsgHolder foreignRange = held(R"({"type":"CONFIG","ranges":["CUSTOM"]})");
    QQmlEngine engine;
    QQmlContext &context = *engine.rootContext();
    context.setContextProperty("model", &model);
    context.setContextProperty("ranges", &ranges);
    context.setContextProperty("handler", &handler);
    context.setContextProperty("config", QVariant::fromValue(foreignRange));
    for (const auto &[call, logged] : {std::pair("model.getHistory(5)", "[ERROR] [HistoryListModel] "),
                                       {"ranges.setConfig(config)", "[ERROR] [RangesListModel] no band has"},
                                       {"handler.mode = 17", "[ERROR] [ConfigMsgHandler] no such"}}) {
        testing::internal::CaptureStdout();
        const QVariant result = QQmlExpression(&context, nullptr, call + QString("; 'went on'")).evaluate();
        EXPECT_THAT(testing::internal::GetCapturedStdout(), testing::StartsWith(logged)) << call;
        EXPECT_EQ(result, "went on") << call;
    }
    EXPECT_THROW(ranges.setConfig(foreignRange), std::out_of_range) << "C++ callers see it";
}
