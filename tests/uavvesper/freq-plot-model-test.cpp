#include "visuals/freq-plot-model.h"

#include "messages.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using testing::ElementsAre;

/// The rows, each with its three texts.
static std::vector<std::string> rows(const FreqPlotModel &model) {
    std::vector<std::string> texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        std::string text;
        for (const char *role : {"freq", "rssi", "type"})
            text += model.data(model.index(row), model.roleNames().key(role)).toString().toStdString() + "|";
        texts.push_back(text);
    }
    return texts;
}
static const std::string BLANK = "-----|----dB| ----|";

static MsgHolder scan(const std::string &freqs) {
    return held(R"({"type":"SCAN_RESULT","mask":false,"freqs":[)" + freqs + "]}");
}

TEST(FreqPlotModel, ShowsTheFirstThreeAndFillsUpWithBlanks) {
    FreqPlotModel model;
    EXPECT_THAT(rows(model), ElementsAre(BLANK, BLANK, BLANK));
    const std::string two = R"({"freqMHz":5805.4,"rssi":-80.6,"type":"FPV"},
                               {"freqMHz":2412.5,"rssi":-90.5,"type":"NONE"})";
    model.setScan(scan(two));
    EXPECT_THAT(rows(model), ElementsAre("5805|-81dB|FPV|", "2413|-90dB| ----|", BLANK));
    model.setScan(scan(two + "," + two));
    EXPECT_EQ(rows(model).at(2), "5805|-81dB|FPV|");
    model.setScan(held(R"({"type":"GET_STATE"})"));
    EXPECT_THAT(rows(model), ElementsAre(BLANK, BLANK, BLANK));
    EXPECT_FALSE(model.data(model.index(0), Qt::DisplayRole).isValid());
    EXPECT_FALSE(model.data(QModelIndex(), FreqPlotModel::FreqRole).isValid());
    model.setScan(scan(R"({"freqMHz":1e30,"rssi":-1e30,"type":"DIG"})"));
    EXPECT_EQ(rows(model).at(0), "1000000|-1000000dB|DIG|");
}

TEST(FreqPlotModel, ClearsItselfTenSecondsAfterTheLastScan) {
    FreqPlotModel model;
    auto *timer = model.findChild<QTimer *>();
    EXPECT_FALSE(timer->isActive());
    model.setScan(scan(R"({"freqMHz":5805,"rssi":-80,"type":"FPV"})"));
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000);
    timer->setInterval(0);
    EXPECT_TRUE(QSignalSpy(&model, &FreqPlotModel::modelReset).wait());
    EXPECT_THAT(rows(model), ElementsAre(BLANK, BLANK, BLANK));
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000) << "and again every ten seconds";
}
