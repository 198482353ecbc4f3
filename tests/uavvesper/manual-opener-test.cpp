#include "manual-opener.h"

#include "screen-driver.h"
#include "testing.h"

#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>

static QByteArray bytesOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The offscreen platform has no desktop, so the test runs once more with one, on a display that nobody sees.
TEST(ManualOpener, HandsACopyToTheDesktopsViewerOrLogsWhy) {
    const QString viewerless = "[ERROR] [ManualOpener] no viewer opens ";
    const QTemporaryDir directory;
    const QString viewed = directory.filePath("viewed");
    std::optional<ManualOpener> opener(std::in_place);
    if (QGuiApplication::platformName() == "offscreen") {
        internal::CaptureStdout();
        QDesktopServices::openUrl(QUrl("qrc:/manuals/none.pdf"));
        QDesktopServices::openUrl(QUrl("qrc:/icons/usb"));
        EXPECT_THAT(internal::GetCapturedStdout(),
                    MatchesRegex(".ERROR. .ManualOpener. can't copy qrc:/manuals/none.pdf.+\n"
                                 ".ERROR. .ManualOpener. no viewer opens .+/usb\n"));
        EXPECT_EQ(QProcess::execute("xvfb-run", {"-a", QCoreApplication::applicationFilePath(), "-platform",
                                                 "xcb", "--gtest_filter=ManualOpener.*"}),
                  0);
        return;
    }
    QFile script(directory.filePath("xdg-open"));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho \"$1\" >\"$0.part\"\nmv \"$0.part\" \"${0%/*}/viewed\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", directory.path().toLocal8Bit() + ':' + qgetenv("PATH"));
    QString copy;
    for (const char *address : {"qrc:/icons/usb", "qrc:/icons/usb", "qrc:/icons/cfg"}) {
        QDesktopServices::openUrl(QUrl(address));
        ASSERT_TRUE(ScreenDriver::waitFor([&] { return QFile::exists(viewed); })) << address;
        copy = QUrl(bytesOf(viewed).trimmed()).toLocalFile();
        EXPECT_EQ(bytesOf(copy), bytesOf(address + 3)) << address;
        QFile::remove(viewed);
    }
    opener.reset();
    EXPECT_FALSE(QFile::exists(copy)) << "left behind";
}
