#include "visuals/ranges-list-model.h"

#include "msg/config-msg.h"

#include <QSignalSpy>
#include <gmock/gmock.h>

using FM = FreqModeEnum;
using Role = RangesListModel::Role;

namespace {

MsgHolder configOf(ProtoEnum proto, const std::vector<FM> &ranges) {
    return MsgHolder(std::make_shared<ConfigMsg>(ConfigMsgBuilder().proto(proto).ranges(ranges).build()));
}

class RangesListModelTest : public testing::Test {
protected:
    QVariant shown(int row, int role) const { return model.data(model.index(row), role); }
    bool step(int row, int position) {
        return model.setData(model.index(row), position, Role::ValueRangeRole);
    }

    RangesListModel model;
    QSignalSpy edited{&model, &RangesListModel::rangesChanged};
    QSignalSpy resets{&model, &RangesListModel::modelReset};
};

} // namespace

TEST_F(RangesListModelTest, ShowsTheActiveRangesOfAConfig) {
    model.setConfig(configOf(ProtoEnum::K7, {FM::EXT_5800, FM::STD_1200, FM::EXT_1200}));
    ASSERT_EQ(model.rowCount(), 4);
    EXPECT_EQ(edited.count(), 0) << "a CONFIG is not an edit";
    EXPECT_EQ(model.getRanges(), (QList<int>{1, 7})) << "the later of two ranges of a band wins";
    EXPECT_EQ(model.getNumRanges(), 2);

    const QHash<int, QByteArray> names = model.roleNames();
    const std::vector<std::pair<QByteArray, std::pair<QVariant, QVariant>>> roles = {
        // role, of the active band R_1200, of R_2400 that is off
        {"intRange", {1, -1}},
        {"valueRange", {2, 0}},
        {"stringMode", {"1.2+", "2.4"}},
        {"stringRange", {"830-1730", ""}}};
    for (const auto &[name, values] : roles) {
        EXPECT_EQ(shown(0, names.key(name)), values.first) << name.data();
        EXPECT_EQ(shown(1, names.key(name)), values.second) << name.data();
    }
    EXPECT_FALSE(shown(4, Role::IntRangeRole).isValid());
    EXPECT_FALSE(shown(0, Qt::DisplayRole).isValid());
    EXPECT_EQ(model.flags(model.index(0)), Qt::NoItemFlags);
    EXPECT_EQ(model.flags(model.index(1)), Qt::ItemIsEditable);
}

TEST_F(RangesListModelTest, FollowsEachConfigAndItsGeneration) {
    model.setConfig(configOf(ProtoEnum::K6, {FM::EXT_2400}));
    EXPECT_EQ(model.rowCount(), 3);
    model.setConfig(configOf(ProtoEnum::K6, {}));
    EXPECT_EQ(model.getNumRanges(), 0);
    model.setConfig(configOf(ProtoEnum::K7EW, {FM::STD_1200}));
    EXPECT_EQ(model.rowCount(), 4);
    model.setConfig(MsgHolder());
    EXPECT_EQ(model.getRanges(), QList<int>{0});
}

TEST_F(RangesListModelTest, EndsTheResetThatARangeOfNoBandBreaksOff) {
    QSignalSpy begun(&model, &RangesListModel::modelAboutToBeReset);
    EXPECT_THROW(model.setConfig(configOf(ProtoEnum::K1, {FM::STD_2400, FM::STD_1200})), std::out_of_range);
    EXPECT_EQ(begun.count(), 1);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(model.getRanges(), QList<int>{2});
}

TEST_F(RangesListModelTest, KeepsTheLastBandOn) {
    model.setConfig(configOf(ProtoEnum::K6, {FM::EXT_2400, FM::STD_4900}));
    EXPECT_TRUE(step(0, 0));
    EXPECT_EQ(model.getRanges(), QList<int>{4});
    EXPECT_TRUE(step(1, 2));
    EXPECT_EQ(model.getRanges(), QList<int>{5});
    EXPECT_TRUE(step(1, 0));
    EXPECT_EQ(shown(1, Role::ValueRangeRole), 1) << "the last band goes on to its first range";
    EXPECT_EQ(edited.count(), 3);
    EXPECT_EQ(resets.count(), 4) << "one for the CONFIG, one for each edit";
}

TEST_F(RangesListModelTest, TakesARangeAndThenItsNumberAsPosition) {
    model.setConfig(configOf(ProtoEnum::K7, {FM::STD_1200, FM::STD_2400}));
    model.setData(model.index(0), static_cast<int>(FM::EXT_1200), Role::IntRangeRole);
    EXPECT_EQ(shown(0, Role::IntRangeRole), static_cast<int>(FM::STD_1200));
    model.setData(model.index(0), -1, Role::IntRangeRole);
    EXPECT_EQ(shown(0, Role::IntRangeRole), -1);
    EXPECT_EQ(edited.count(), 3);

    model.setData(model.index(0), static_cast<int>(FM::EXT_5800), Role::IntRangeRole);
    EXPECT_EQ(shown(0, Role::IntRangeRole), -1) << "a position beyond the band's ranges";
    EXPECT_EQ(shown(0, Role::StringRangeRole), "");
    EXPECT_THROW(model.getRanges(), std::out_of_range);
}

TEST_F(RangesListModelTest, RefusesWhatIsNoEdit) {
    model.setConfig(configOf(ProtoEnum::K6, {FM::EXT_2400}));
    EXPECT_FALSE(model.setData(model.index(0), QVariant(), Role::ValueRangeRole));
    EXPECT_FALSE(step(3, 1));
    EXPECT_TRUE(model.setData(model.index(0), 1, Qt::EditRole));
    EXPECT_TRUE(step(0, -1));
    EXPECT_EQ(edited.count(), 0);
    EXPECT_EQ(model.getRanges(), QList<int>{3});
}
