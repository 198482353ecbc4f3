#include "screen-fixture.h"

struct RussianScreensTest : ScreenFixture {
    RussianScreensTest()
        : ScreenFixture(RUSSIAN_DIR) {}
};

TEST_F(RussianScreensTest, SpeakRussianInTheDirectoryOfTheRussianWords) {
    std::set<QString> seen;
    const auto clickAndLook = [&](const QQuickItem &item) {
        driver->click(item);
        driver->picture();
        for (const QQuickItem *each : driver->findAll({}))
            seen.insert(each->property("text").toString());
    };
    driver->resize({800, 2200});
    connectTo(ProtoEnum::K7);
    for (const char *word :
         {"ЦИФРА", "Маска", "info", "Руководство", "Режим: ", "cfg"}) // "Режим: " leaves a dialog
        clickAndLook(*driver->control(word));
    for (const QQuickItem *dialog : driver->findAll("ConfigPreference")) {
        clickAndLook(*dialog);
        choose("Обнаружение");
    }
    EXPECT_GT(seen.size(), 75U);
    for (const QString &word : seen)
        EXPECT_TRUE(word.contains(QRegularExpression("[а-яА-Я]|^(Wi-Fi|FPV|Kelvane [67]|[0-9.+%-]*)$")))
            << qPrintable(word);
    driver->resize(window->minimumSize());
    for (const QQuickItem *button : driver->findAll("Button")) {
        const QQuickItem &label = *driver->find("FittedText", {}, button);
        EXPECT_TRUE(label.property("contentWidth").toDouble() <= label.width() &&
                    label.property("contentHeight").toDouble() <= label.height())
            << qPrintable(label.property("text").toString());
    }
    EXPECT_EQ(driver->find("BarScanResultPlot")->parentItem()->childItems()[1]->property("lang"), "ru");
}
