#include "screen-fixture.h"

class SettingsRowTest : public ScreenFixture {
protected:
    const QQuickItem &control(const QString &word) const {
        return *driver->find({}, word, driver->find("SettingsLayout"));
    }
    std::string row() const {
        return driver->looks("UavThreeSwitch", "SettingsLayout") +
               driver->looks("UavSwitch", "SettingsLayout") + driver->looks("Button", "SettingsLayout");
    }
    /// The words of bands and buttons, and the positions of the bands.
    std::string words() const {
        QString bands;
        for (const QQuickItem *band : driver->findAll("UavThreeSwitch"))
            bands += QString("%1:%2 ")
                         .arg(band->property("text").toString())
                         .arg(band->property("position").toInt());
        return bands.toStdString() + driver->words("SettingsLayout");
    }
};

TEST_F(SettingsRowTest, ShowsWhatWorksAndSendsEachEdit) {
    EXPECT_EQ(row(), R"(
160x40+7.5+810 'Sound' 20/1 #81909f 0 dead
160x40+7.5+857.5 'Vibro' 20/1 #81909f 0 dead
160x40+7.5+905 'Wi-Fi' 20/1 #81909f 0 dead
160x40+7.5+952.5 'Dig' 20/1 #81909f 0 dead
160x64+175+810 #81909f/#808080:2 r12.8, 'Sens: ?)"
                     R"(??' #808080 15
160x64+175+889 #81909f/#808080:2 r12.8, 'AI: None' #808080 15)");
    connectTo(ProtoEnum::K7);
    const std::string connected = R"(
160x40+7.5+810 '1.2' 15/1 #81909f 1
160x40+7.5+857.5 '2.4+' 15/1 #81909f 2
160x40+7.5+905 '4.9+' 15/1 #81909f 2
160x40+7.5+952.5 '5.8+' 15/1 #81909f 2
160x40+175+810 'Sound' 20/1 #81909f 1
160x40+175+857.5 'Vibro' 20/1 #81909f 0
160x40+175+905 'Wi-Fi' 20/1 #81909f 0
160x40+175+952.5 'Dig' 20/1 #81909f 1
160x64+342.5+810 #81909f/#000000:2 r12.8, 'Sens: High' #ffffff 15
160x64+342.5+889 #81909f/#000000:2 r12.8, 'AI: Default' #ffffff 15)";
    EXPECT_EQ(row(), connected);

    struct {
        const char *control, *setting, *value, *look;
    } const clicks[] = {
        {"1.2*", "CONFIG ranges", R"(["EXT_1200","EXT_2400","EXT_4900","EXT_5800"])",
         "'1.2+' 15/1 #81909f 2"},
        {"1.2*", "CONFIG ranges", R"(["EXT_2400","EXT_4900","EXT_5800"])", "'1.2' 15/1 #81909f 0"},
        {"2.4*", "CONFIG ranges", R"(["EXT_4900","EXT_5800"])", "'2.4' 15/1 #81909f 0"},
        {"5.8*", "CONFIG ranges", R"(["EXT_4900"])", "'5.8' 15/1 #81909f 0"},
        {"4.9*", "CONFIG ranges", R"(["STD_4900"])", "'4.9' 15/1 #81909f 1"}, // the last band stays on
        {"1.2*", "CONFIG ranges", R"(["STD_1200","STD_4900"])", "'1.2' 15/1 #81909f 1"},
        {"Sound", "CONFIG indSnd", "false", "'Sound' 20/1 #81909f 0"},
        {"Vibro", "CONFIG indVibro", "true", "'Vibro' 20/1 #81909f 1"},
        {"Wi-Fi", "CONFIG wifiDet", "true", "'Wi-Fi' 20/1 #81909f 1"},
        {"Dig", "CONFIG uavDet", "false", "'Dig' 20/1 #81909f 0"},
        {"Dig", "CONFIG uavDet", "true", "'Dig' 20/1 #81909f 1"},
        {"Sens: *", "CONFIG atten", "6", "'Sens: Low' #ffffff 15"},
        {"Sens: *", "CONFIG atten", "3", "'Sens: Mid' #ffffff 15"},
        {"Sens: *", "CONFIG atten", "0", "'Sens: High' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("FIELD")", "'AI: Field' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("CITY")", "'AI: City' #ffffff 15"},
        {"AI: *", "AI_PRIOR aiPrior", R"("DEFAULT")", "'AI: Default' #ffffff 15"}};
    for (const auto &[word, setting, value, look] : clicks) {
        const auto expected = edits(setting, value);
        EXPECT_THAT(sentBy([&, w = word] { driver->click(control(w)); }), ElementsAreArray(expected));
        EXPECT_THAT(driver->look(control(word)), EndsWith(look)) << value;
    }
    deviceSays(R"({"type":"AI_PRIOR","aiPrior":"CITY"})");
    deviceSays(R"({"type":"CONFIG","proto":"K7","ranges":["STD_1200","EXT_2400","EXT_4900","EXT_5800"],)"
               R"("indSnd":true,"uavDet":true})");
    EXPECT_EQ(row(), connected) << "controls that were touched follow the device again";

    disconnect();
    const std::string dead = row();
    EXPECT_EQ(QString::fromStdString(dead).count(" dead"), 8);
    for (const char *word : {"1.2", "Sound", "Vibro", "Wi-Fi", "Dig", "Sens: *", "AI: *"})
        driver->click(control(word));
    EXPECT_EQ(row(), dead);
}

TEST_F(SettingsRowTest, FollowsTheGenerationAndOutlivesRangesOfNoBand) {
    connectTo(ProtoEnum::K1);
    const auto none = edits("AI_PRIOR aiPrior", R"("NONE")");
    EXPECT_THAT(sentBy([this] { click("AI: None"); }), ElementsAreArray(none));
    struct {
        const char *config, *words, *logged;
    } const configs[] = {
        {R"("K6","ranges":["STD_2400","EXT_5800"])", "2.4:1 4.9:0 5.8+:2 Sens: High|AI: Default|", ""},
        {R"("K6","ranges":["EXT_2400","CUSTOM"])", "2.4+:2 4.9:0 5.8:0 Sens: High|AI: Default|",
         "range CUSTOM"},
        {R"("K6","ranges":["STD_1200"],"atten":5)", "2.4:0 4.9:0 5.8:0 Sens: ?\?\?|AI: Default|",
         "range STD_1200"},
        {R"("K7EW","ranges":["EXT_1200"])", "1.2+:2 2.4:0 4.9:0 5.8:0 Sens: High|AI: Default|", ""},
        {R"("K1","ranges":["STD_4900"])", "2.4:0 4.9:1 5.8:0 Sens: High|AI: None|", ""},
        {R"("K7","ranges":[])", "1.2:0 2.4:0 4.9:0 5.8:0 Sens: High|AI: Default|", ""}};
    for (const auto &[config, shown, logged] : configs) {
        const std::string text = R"({"type":"CONFIG","proto":)" + std::string(config) + "}";
        EXPECT_THAT(printedBy([&] { deviceSays(text); }), HasSubstr(logged));
        EXPECT_EQ(words(), shown);
    }
    const MsgHolder config(Msg::parseJson(R"({"type":"CONFIG","ranges":["STD_5800"]})"));
    QQuickItem *list = driver->find("QQuickListView", {}, driver->find("SettingsLayout"));
    QMetaObject::invokeMethod(list, "setConf", Q_ARG(QVariant, QVariant::fromValue(config)));
    EXPECT_THAT(words(), StartsWith("2.4:0 4.9:0 5.8:1 "));
    for (const QSize size : {QSize(300, 400), QSize(2560, 1440), QSize(300, 1440), QSize(1440, 400)}) {
        driver->resize(size);
        for (const char *word : {"2.4", "5.8", "Sound", "Dig", "Sens: *", "AI: *"})
            EXPECT_TRUE(ScreenDriver::isInView(control(word), *window->contentItem()))
                << word << size.width();
    }
}
