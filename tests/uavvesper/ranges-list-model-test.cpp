#include "visuals/ranges-list-model.h"

#include "messages.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

static MsgHolder config(const std::string &proto, const std::string &ranges) {
    return held(R"({"type":"CONFIG","proto":")" + proto + R"(","ranges":[)" + ranges + "]}");
}

/// What the rows show in one role, or, without a name, which ranges are active.
static QString shown(const RangesListModel &model, const char *role = nullptr) {
    QStringList all;
    if (!role)
        for (const int range : model.getRanges())
            all.append(QString::number(range));
    for (int row = 0; role && row < model.rowCount(); ++row)
        all.append(model.data(model.index(row), model.roleNames().key(role)).toString());
    return all.join(' ');
}

TEST(RangesListModel, FollowsEachConfigAndItsGeneration) {
    RangesListModel model;
    model.setConfig(config("K6", R"("EXT_2400")"));
    EXPECT_EQ(shown(model, "intRange"), "3 -1 -1");
    model.setConfig(config("K7", R"("EXT_5800", "STD_1200", "EXT_1200")"));
    model.setConfig(MsgHolder());
    EXPECT_EQ(shown(model, "intRange"), "1 -1 -1 7") << "the later of two ranges of a band wins";
    EXPECT_EQ(shown(model, "valueRange"), "2 0 0 2");
    EXPECT_EQ(shown(model, "stringMode"), "1.2+ 2.4 4.9 5.8+");
    EXPECT_EQ(shown(model, "stringRange"), "830-1730   5470-6100");
    EXPECT_EQ(shown(model), "1 7");
    EXPECT_EQ(model.getNumRanges(), 2);
    EXPECT_EQ(model.flags(model.index(0)), Qt::NoItemFlags);
    EXPECT_EQ(model.flags(model.index(3)), Qt::ItemIsEditable);
    EXPECT_THROW(model.setConfig(config("K6", R"("STD_2400", "STD_1200")")), std::out_of_range);
}

TEST(RangesListModel, KeepsTheLastBandOn) {
    RangesListModel model;
    QSignalSpy edited(&model, &RangesListModel::rangesChanged), resets(&model, &RangesListModel::modelReset);
    model.setConfig(config("K6", R"("EXT_2400", "STD_4900")"));
    using Model = RangesListModel;
    struct {
        int row;
        QVariant value;
        int role;
        bool taken;
        const char *ranges;
        int edits;
    } const cases[] = {{0, 0, Model::ValueRangeRole, true, "4", 1},
                       {1, 2, Model::ValueRangeRole, true, "5", 2},
                       {1, 0, Model::ValueRangeRole, true, "4", 3}, // on to its first range
                       {0, 1, Model::ValueRangeRole, true, "2 4", 4},
                       {0, -1, Model::ValueRangeRole, true, "2 4", 4},
                       {0, 2, Qt::EditRole, true, "2 4", 4},
                       {0, QVariant(), Model::ValueRangeRole, false, "2 4", 4},
                       {3, 1, Model::ValueRangeRole, false, "2 4", 4},
                       {0, -1, Model::IntRangeRole, true, "4", 5}};
    for (const auto &[row, value, role, taken, ranges, edits] : cases) {
        EXPECT_EQ(model.setData(model.index(row), value, role), taken);
        EXPECT_EQ(shown(model).left(3), ranges) << row;
        EXPECT_EQ(edited.count(), edits);
    }
    model.setData(model.index(2), 7, Model::IntRangeRole); // is taken for a position too
    EXPECT_EQ(edited.count(), 7);
    EXPECT_EQ(shown(model, "stringRange"), " 5150-5354 ") << "no range at a position beyond them";
    EXPECT_EQ(resets.count(), 9) << "one for the CONFIG, one for each edit";
}
