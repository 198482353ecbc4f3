#include "visuals/ranges-list-model.h"

#include "models.h"

class RangesListModelTest : public testing::Test {
protected:
    void configure(const std::string &proto, const std::string &ranges) {
        model.setConfig(held(R"({"type":"CONFIG","proto":")" + proto + R"(","ranges":[)" + ranges + "]}"));
    }
    /// What the rows show in a role.
    std::string shown(const char *role) const {
        QStringList all;
        for (int row = 0; row < model.rowCount(); ++row)
            all << model.data(model.index(row), model.roleNames().key(role)).toString();
        return all.join(' ').toStdString();
    }
    /// The switches' positions after a write, and how many edits there were.
    std::string write(int row, const QVariant &value, int role = RangesListModel::ValueRangeRole) {
        const std::string refused = model.setData(model.index(row), value, role) ? "" : "refused ";
        return refused + shown("valueRange") + ", " + std::to_string(edited.count()) + " edits, " +
               std::to_string(model.getNumRanges()) + " active";
    }

    RangesListModel model;
    QSignalSpy edited{&model, &RangesListModel::rangesChanged};
    QSignalSpy resets{&model, &RangesListModel::modelReset};
};

TEST_F(RangesListModelTest, FollowsEachConfigAndItsGeneration) {
    configure("K6", R"("EXT_2400")");
    EXPECT_EQ(shown("intRange"), "3 -1 -1");
    configure("K7", R"("EXT_5800", "STD_1200", "EXT_1200")");
    model.setConfig(MsgHolder());
    EXPECT_EQ(shown("intRange"), "1 -1 -1 7") << "the later of two ranges of a band wins";
    EXPECT_EQ(shown("valueRange"), "2 0 0 2");
    EXPECT_EQ(shown("stringMode"), "1.2+ 2.4 4.9 5.8+");
    EXPECT_EQ(shown("stringRange"), "830-1730   5470-6100");
    EXPECT_EQ(model.getRanges(), (QList<int>{1, 7}));
    EXPECT_EQ(model.flags(model.index(0)), Qt::NoItemFlags);
    EXPECT_EQ(model.flags(model.index(3)), Qt::ItemIsEditable);
    EXPECT_THROW(configure("K6", R"("STD_2400", "STD_1200")"), std::out_of_range);
    EXPECT_EQ(resets.count(), 3) << "and each reset was ended";
}

TEST_F(RangesListModelTest, KeepsTheLastBandOn) {
    configure("K6", R"("EXT_2400", "STD_4900")");
    EXPECT_EQ(write(0, 0), "0 1 0, 1 edits, 1 active");
    EXPECT_EQ(write(1, 2), "0 2 0, 2 edits, 1 active");
    EXPECT_EQ(write(1, 0), "0 1 0, 3 edits, 1 active") << "on to its first range";
    EXPECT_EQ(write(0, 1), "1 1 0, 4 edits, 2 active");
    EXPECT_EQ(write(0, -1), "1 1 0, 4 edits, 2 active");
    EXPECT_EQ(write(0, 2, Qt::EditRole), "1 1 0, 4 edits, 2 active");
    EXPECT_EQ(write(0, QVariant()), "refused 1 1 0, 4 edits, 2 active");
    EXPECT_EQ(write(3, 1), "refused 1 1 0, 4 edits, 2 active");
    EXPECT_EQ(write(0, -1, RangesListModel::IntRangeRole), "0 1 0, 5 edits, 1 active");
    EXPECT_EQ(write(2, 7, RangesListModel::IntRangeRole), "0 1 7, 7 edits, 2 active") << "a position too";
    EXPECT_EQ(resets.count(), 9) << "one for the CONFIG, one for each edit";
    EXPECT_EQ(shown("stringRange"), " 5150-5354 ") << "no range at a position beyond them";
}
