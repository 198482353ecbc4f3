#include "screen-fixture.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>

using namespace testing;

static QString contentOf(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

TEST(Translation, HasEveryWordOfTheScreensAndTheManualsExplainThem) {
    QTranslator russian;
    ASSERT_TRUE(russian.load("UavVesper-ru", RUSSIAN_DIR, QString(), QString()));
    const QString english = contentOf(MANUALS_SOURCE_DIR "/manual.en.md");
    const QString inRussian = contentOf(MANUALS_SOURCE_DIR "/manual.ru.md");
    const QRegularExpression call(R"(qsTr\((["'])(.*?)(?<!\\)\1\))");
    int words = 0;
    for (QDirIterator it(":/qml", {"*.qml"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString document = contentOf(it.next());
        for (auto calls = call.globalMatch(document); calls.hasNext(); ++words) {
            const QString word = calls.next().captured(2);
            const QString translated = russian.translate(it.fileInfo().baseName().toUtf8(), word.toUtf8());
            EXPECT_FALSE(translated.isEmpty()) << qPrintable(word);
            // No word to see, and a word of the mobile platform alone.
            if (word == "language" || word == "Share")
                continue;
            const auto isIn = [](const QString &manual, QString phrase) {
                return manual.contains(phrase.replace("%1", "15").trimmed());
            };
            EXPECT_TRUE(isIn(english, word)) << qPrintable(word);
            EXPECT_TRUE(isIn(inRussian, translated)) << qPrintable(translated);
        }
    }
    EXPECT_GT(words, 50);
    for (const char *manual : {":/manuals/help_K6.pdf", ":/manuals/help_K7.pdf"}) {
        QFile pdf(manual);
        EXPECT_TRUE(pdf.open(QIODevice::ReadOnly));
        EXPECT_THAT(pdf.readAll().toStdString(),
                    AllOf(StartsWith("%PDF-"), HasSubstr("/Title "), HasSubstr("/Lang (en)"),
                          HasSubstr("(en, ru)"), HasSubstr("/Dest (en)"), HasSubstr("/Dest (ru)")))
            << manual;
    }
}

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
    for (const char *word :
         {"Маска", "Ждите", "Заводские настройки", "Цифра", "Чувств: Выс", "ИИ: Оптим", "Базовый", "Вкл",
          "Прошивка: 2.30", "Обнаружение", "Режим «Город»", "Поздний (-88)", "Управление РЭБ"})
        EXPECT_EQ(seen.count(word), 1U) << word;
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
