#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <gmock/gmock.h>

using testing::Gt;
using testing::IsEmpty;

namespace {

QString contentOf(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    return QString::fromUtf8(file.readAll());
}

struct Word {
    QByteArray document;
    QByteArray source;
};

/// The words of the documents that can be translated, in the documents' order.
QVector<Word> wordsOfTheScreens() {
    static const QRegularExpression call(R"(qsTr\((["'])(.*?)(?<!\\)\1\))");
    QVector<Word> words;
    for (QDirIterator it(":/qml", {"*.qml"}, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        const QString document = contentOf(it.next());
        for (auto calls = call.globalMatch(document); calls.hasNext();)
            words.append({it.fileInfo().baseName().toUtf8(), calls.next().captured(2).toUtf8()});
    }
    return words;
}

struct Translation : testing::Test {
    Translation() { EXPECT_TRUE(russian.load("UavVesper-ru", RUSSIAN_DIR, QString(), QString())); }

    QString inRussian(const Word &word) const { return russian.translate(word.document, word.source); }

    QTranslator russian;
};

} // namespace

TEST_F(Translation, HoldsEveryWordOfTheScreens) {
    const auto words = wordsOfTheScreens();
    EXPECT_THAT(words.size(), Gt(0));
    for (const Word &word : words)
        EXPECT_FALSE(inRussian(word).isEmpty()) << word.document.data() << ": " << word.source.data();
}

TEST_F(Translation, AndTheManualsExplainEveryWord) {
    const QString english = contentOf(MANUALS_SOURCE_DIR "/manual.en.md");
    const QString inRussianManual = contentOf(MANUALS_SOURCE_DIR "/manual.ru.md");
    // No word to see, and a word of the mobile platform alone.
    const QByteArrayList exempt{"language", "Share"};
    for (const Word &word : wordsOfTheScreens()) {
        if (exempt.contains(word.source))
            continue;
        EXPECT_TRUE(english.contains(word.source.trimmed())) << word.source.data();
        EXPECT_TRUE(inRussianManual.contains(inRussian(word).trimmed())) << qPrintable(inRussian(word));
    }
}

TEST(Manuals, AreInTheProgram) {
    for (const char *file : {":/manuals/help_K6.pdf", ":/manuals/help_K7.pdf"}) {
        QFile manual(file);
        ASSERT_TRUE(manual.open(QIODevice::ReadOnly)) << file;
        EXPECT_TRUE(manual.readAll().startsWith("%PDF-")) << file;
    }
}
