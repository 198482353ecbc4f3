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
            EXPECT_TRUE(english.contains(word.trimmed())) << qPrintable(word);
            EXPECT_TRUE(inRussian.contains(translated.trimmed())) << qPrintable(translated);
        }
    }
    EXPECT_GT(words, 50);
    for (const char *manual : {":/manuals/help_K6.pdf", ":/manuals/help_K7.pdf"})
        EXPECT_TRUE(contentOf(manual).startsWith("%PDF-")) << manual;
}

/// The screens as somebody sees them who starts them where the Russian words lie.
class RussianScreensTest : public ScreenFixture {
protected:
    RussianScreensTest()
        : ScreenFixture(RUSSIAN_DIR) {}

    void look() {
        driver->picture();
        for (const QQuickItem *item : driver->findAll({}))
            seen.insert(item->property("text").toString());
    }
    std::set<QString> seen;
};

TEST_F(RussianScreensTest, SpeakRussian) {
    driver->resize({800, 2200});
    connectTo(ProtoEnum::K7);
    look();
    for (const char *step :
         {"Маска", "info", "Руководство", "Режим: ", "cfg"}) { // a dialog is left by the fourth
        click(step);
        look();
    }
    for (const QQuickItem *dialog : driver->findAll("ConfigPreference")) {
        driver->click(*dialog);
        look();
        driver->clickAt({1, 1});
        EXPECT_TRUE(ScreenDriver::waitFor([this] { return !driver->find("ListButtonDialog"); }));
    }
    for (const char *word :
         {"Ждите", "Заводские настройки", "ЦИФРА", "Цифра", "Чувств: Выс", "ИИ: Оптим", "Базовый", "Вкл",
          "Прошивка: 2.30", "Обнаружение", "Режим «Город»", "Поздний (-88)", "Управление РЭБ"})
        EXPECT_EQ(seen.count(word), 1U) << word;
    for (const QString &word : seen)
        EXPECT_TRUE(word.contains(QRegularExpression("[а-яА-Я]|^(Wi-Fi|FPV|Kelvane [67]|[0-9.+%-]*)$")))
            << qPrintable(word);
    EXPECT_EQ(driver->find("BarScanResultPlot")->parentItem()->childItems()[1]->property("lang"), "ru");
}
