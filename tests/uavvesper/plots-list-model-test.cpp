#include "visuals/plots-list-model.h"

#include <gmock/gmock.h>

namespace {

MsgHolder configOf(ProtoEnum proto) {
    return MsgHolder(std::make_shared<ConfigMsg>(ConfigMsgBuilder().proto(proto).build()));
}

const PlotData *plotOf(const PlotListModel &model, int row) {
    return qobject_cast<PlotData *>(model.data(model.index(row), 256).value<QObject *>());
}

} // namespace

TEST(PlotListModel, HasTheAxisOfEachBand) {
    PlotListModel model;
    model.setConfig(configOf(ProtoEnum::K6));
    ASSERT_EQ(model.count(), 3);
    const PlotData *plot = plotOf(model, 0);
    ASSERT_TRUE(plot);
    EXPECT_TRUE(plot->hasData());
    EXPECT_EQ(plot->getMinFreq(), 2350);
    EXPECT_EQ(plot->getMaxFreq(), 2550);
    EXPECT_EQ(plot->getBarWidth(), 10);
    model.setConfig(MsgHolder());
    EXPECT_EQ(model.rowCount(), 3);
}

TEST(PlotListModel, TakesAPlotOrAConfigAsData) {
    PlotListModel model;
    model.setConfig(configOf(ProtoEnum::K6));
    PlotData extra(100, 200, 5);
    const auto plot = QVariant::fromValue<QObject *>(&extra);
    EXPECT_TRUE(model.setData(model.index(1), plot, 256));
    ASSERT_EQ(model.count(), 4);
    EXPECT_EQ(plotOf(model, 1)->getMaxFreq(), 200);
    EXPECT_EQ(plotOf(model, 2)->getMaxFreq(), 5460);
    EXPECT_FALSE(model.setData(model.index(9), plot, 256));

    EXPECT_TRUE(model.setData(model.index(0), QVariant::fromValue(configOf(ProtoEnum::K7)), 257));
    EXPECT_EQ(plotOf(model, 0)->getMinFreq(), 830);
    EXPECT_TRUE(model.setData(model.index(0), QVariant::fromValue(MsgHolder()), 257));
    EXPECT_EQ(model.count(), 0);
}
