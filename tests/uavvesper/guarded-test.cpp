#include "common/guarded.h"
#include "common/history-list-model.h"
#include "handlers/config-msg-handler.h"
#include "visuals/ranges-list-model.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQmlExpression>
#include <gmock/gmock.h>

using testing::StartsWith;

TEST(Guarded, EndsTheCallOfAScreenThatRaises) {
    struct Case {
        const char *script;
        const char *logged;
    };
    const Case cases[] = {{"model.getHistory(5); 'went on'", "[ERROR] [HistoryListModel] "},
                          {"ranges.setConfig(config); 'went on'", "[ERROR] [RangesListModel] no band has"},
                          {"handler.mode = 17; 'went on'", "[ERROR] [ConfigMsgHandler] no such enumerator"}};
    qRegisterMetaType<History>("History");
    Guarded<HistoryListModel> model;
    Guarded<RangesListModel> ranges;
    Guarded<ConfigMsgHandler> handler;
    const auto config =
        std::make_shared<ConfigMsg>(ConfigMsgBuilder().ranges({FreqModeEnum::CUSTOM}).build());
    QQmlEngine engine;
    QQmlContext &context = *engine.rootContext();
    context.setContextProperty("model", &model);
    context.setContextProperty("ranges", &ranges);
    context.setContextProperty("handler", &handler);
    context.setContextProperty("config", QVariant::fromValue(MsgHolder(config)));
    for (const auto &[script, logged] : cases) {
        testing::internal::CaptureStdout();
        QQmlExpression call(&context, nullptr, script);
        EXPECT_EQ(call.evaluate(), "went on") << call.error().toString().toStdString();
        EXPECT_THAT(testing::internal::GetCapturedStdout(), StartsWith(logged)) << script;
    }
    EXPECT_EQ(handler.getMode(), 0);
    EXPECT_THROW(ranges.setConfig(MsgHolder(config)), std::out_of_range) << "C++ callers see it";
}
