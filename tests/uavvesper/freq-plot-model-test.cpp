#include "visuals/freq-plot-model.h"

#include "scans.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

// The test of the cover page checks the content of the rows.
TEST(FreqPlotModel, ClearsItselfTenSecondsAfterTheLastScan) {
    FreqPlotModel model;
    auto *timer = model.findChild<QTimer *>();
    EXPECT_FALSE(timer->isActive());
    model.setScan(MsgHolder(scanOf({{1e30f, -1e30f}})));
    const auto first = [&](int role) { return model.data(model.index(0), role); };
    EXPECT_EQ(first(256), "1000000");
    EXPECT_EQ(first(257), "-1000000dB");
    EXPECT_FALSE(first(Qt::DisplayRole).isValid() || first(Qt::DecorationRole).isValid() ||
                 model.data(QModelIndex(), 256).isValid());
    EXPECT_EQ(timer->interval(), 10000);
    timer->setInterval(0);
    EXPECT_TRUE(QSignalSpy(&model, &FreqPlotModel::modelReset).wait());
    EXPECT_EQ(first(256), "-----");
    EXPECT_TRUE(timer->isActive());
    EXPECT_EQ(timer->interval(), 10000) << "and again every ten seconds";
}
