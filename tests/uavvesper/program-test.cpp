#include "screen-driver.h"
#include "screen-fixture.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <csignal>

using namespace testing;

/// The built program, started as a user starts it. The platform writes each picture of the window into the
/// working directory and says so.
TEST(Program, ShowsItsWindowInTheLanguageOfTheDirectoryAndEndsWhenToldTo) {
    struct {
        QStringList command; // in front of the program
        int signal;
        unsigned long ignored; // signals by bit
        const char *dpi;
        bool russian;
        QSize size;
    } const starts[] = {
        {{}, SIGINT, 0, "96", false, {800, 1000}},
        {{}, SIGTERM, 0, "96", true, {800, 1000}},
        {{}, SIGHUP, 0, "192", false, {1600, 2000}},
        // A session without a terminal takes the device for one; what a script ignores stays ignored.
        {{"setsid"}, SIGTERM, 1UL << (SIGHUP - 1), "96", false, {800, 1000}},
        {{"sh", "-c", "trap '' INT; exec \"$@\"", "sh"},
         SIGTERM,
         1UL << (SIGINT - 1),
         "96",
         false,
         {800, 1000}}};
    QImage english, russian;
    for (const auto &[command, signal, ignored, dpi, inRussian, size] : starts) {
        SCOPED_TRACE(signal);
        const QTemporaryDir directory;
        if (inRussian)
            QFile::copy(RUSSIAN_DIR "/UavVesper-ru.qm", directory.filePath("UavVesper-ru.qm"));
        for (const int number : {SIGINT, SIGTERM, SIGHUP})
            std::signal(number, SIG_DFL); // whatever the tests were started with
        QProcess program;
        auto environment = QProcessEnvironment::systemEnvironment();
        for (const auto &[name, value] : {std::pair("QT_DEBUG_BACKINGSTORE", "1"),
                                          {"QT_FONT_DPI", dpi},
                                          {"ASAN_OPTIONS", "detect_leaks=0"}})
            environment.insert(name, value);
        environment.insert("XDG_CACHE_HOME", directory.path());
        program.setProcessEnvironment(environment);
        program.setWorkingDirectory(directory.path());
        program.setProcessChannelMode(QProcess::MergedChannels);
        const QStringList line = command + QStringList{PROGRAM, "-platform", "minimal:enable_fonts"};
        program.start(line[0], line.mid(1));
        QByteArray output;
        while (!output.contains("output0000.png") && program.waitForReadyRead(60000))
            output += program.readAll();
        QFile status(QString("/proc/%1/status").arg(program.processId()));
        ASSERT_TRUE(status.open(QIODevice::ReadOnly)) << output.data();
        const QString signalLine = QString(status.readAll()).section("SigIgn:", 1).section('\n', 0, 0);
        EXPECT_EQ(signalLine.trimmed().toULong(nullptr, 16) &
                      (1UL << (SIGHUP - 1) | 1UL << (SIGINT - 1) | 1UL << (SIGTERM - 1)),
                  ignored);
        ::kill(static_cast<pid_t>(program.processId()), signal);
        EXPECT_TRUE(program.waitForFinished());
        EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(program.exitCode(), 0);
        const QImage picture(directory.filePath("output0000.png"));
        EXPECT_EQ(picture.size(), size);
        (inRussian ? russian : english) = picture.size() == QSize(800, 1000) ? picture : english;
        EXPECT_TRUE(QFile::exists(directory.filePath("com.kelvane/UavVesper")));
    }
    EXPECT_FALSE(english == russian);
}

TEST(Program, EndsWithAnErrorWithoutItsRootDocument) {
    const QtWarnings warnings;
    ServiceObjects objects;
    ScreenEngine screens(objects);
    screens.load(QUrl("qrc:/qml/damaged.qml"));
    QTimer::singleShot(10000, qApp, &QCoreApplication::quit);
    EXPECT_EQ(QCoreApplication::exec(), -1);
    EXPECT_THAT(QtWarnings::take(), Not(IsEmpty()));
}
