#include "visuals/ranges-list-model.h"

#include "messages.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using Role = RangesListModel::Role;

class RangesListModelTest : public testing::Test {
protected:
    void configure(const std::string &proto, const std::string &ranges) {
        model.setConfig(held(R"({"type":"CONFIG","proto":")" + proto + R"(","ranges":[)" + ranges + "]}"));
    }
    bool write(int row, const QVariant &value, int role = Role::ValueRangeRole) {
        return model.setData(model.index(row), value, role);
    }
    QVariant shown(int row, const char *role) const {
        return model.data(model.index(row), model.roleNames().key(role));
    }

    RangesListModel model;
    QSignalSpy edited{&model, &RangesListModel::rangesChanged};
    QSignalSpy resets{&model, &RangesListModel::modelReset};
};

TEST_F(RangesListModelTest, FollowsEachConfigAndItsGeneration) {
    configure("K6", R"("EXT_2400")");
    EXPECT_EQ(model.rowCount(), 3);
    configure("K6", "");
    EXPECT_EQ(model.getNumRanges(), 0);
    configure("K7", R"("EXT_5800", "STD_1200", "EXT_1200")");
    model.setConfig(MsgHolder());
    ASSERT_EQ(model.rowCount(), 4);
    EXPECT_EQ(model.getRanges(), (QList<int>{1, 7})) << "the later of two ranges of a band wins";
    EXPECT_EQ(edited.count(), 0) << "a CONFIG is not an edit";
    const std::vector<std::tuple<const char *, QVariant, QVariant>> roles = {
        {"intRange", 1, -1}, // as 1.2 GHz shows it, which is on, and 2.4 GHz, which is off
        {"valueRange", 2, 0},
        {"stringMode", "1.2+", "2.4"},
        {"stringRange", "830-1730", ""}};
    for (const auto &[role, on, off] : roles) {
        EXPECT_EQ(shown(0, role), on) << role;
        EXPECT_EQ(shown(1, role), off) << role;
        EXPECT_FALSE(shown(4, role).isValid());
    }
    EXPECT_EQ(model.flags(model.index(0)), Qt::NoItemFlags);
    EXPECT_EQ(model.flags(model.index(3)), Qt::ItemIsEditable);
}

TEST_F(RangesListModelTest, EndsTheResetThatARangeOfNoBandBreaksOff) {
    EXPECT_THROW(configure("K1", R"("STD_2400", "STD_1200")"), std::out_of_range);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(model.getRanges(), QList<int>{2});
}

TEST_F(RangesListModelTest, KeepsTheLastBandOn) {
    configure("K6", R"("EXT_2400", "STD_4900")");
    EXPECT_TRUE(write(0, 0));
    EXPECT_EQ(model.getRanges(), QList<int>{4});
    EXPECT_TRUE(write(1, 2));
    EXPECT_EQ(model.getRanges(), QList<int>{5});
    EXPECT_TRUE(write(1, 0));
    EXPECT_EQ(model.getRanges(), QList<int>{4}) << "the last band goes on to its first range";
    EXPECT_EQ(edited.count(), 3);
    EXPECT_EQ(resets.count(), 4) << "one for the CONFIG, one for each edit";

    EXPECT_FALSE(write(0, QVariant()));
    EXPECT_FALSE(write(3, 1));
    EXPECT_TRUE(write(0, 1, Qt::EditRole));
    EXPECT_TRUE(write(0, -1));
    EXPECT_EQ(edited.count(), 3);

    EXPECT_TRUE(write(1, 7, Role::IntRangeRole));
    EXPECT_EQ(shown(1, "stringRange"), "") << "a position beyond the band's ranges";
}
