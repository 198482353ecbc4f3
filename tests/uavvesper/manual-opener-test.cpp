#include "manual-opener.h"

#include "screen-driver.h"

#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <gmock/gmock.h>

static QByteArray bytesOf(const QString &name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The offscreen platform has no desktop, so the test runs once more with one, on a display that nobody sees.
TEST(ManualOpener, HandsACopyToTheDesktopsViewer) {
    if (QGuiApplication::platformName() == "offscreen") {
        EXPECT_EQ(
            QProcess::execute("xvfb-run", {"-a", QCoreApplication::applicationFilePath(), "-platform", "xcb",
                                           "--gtest_filter=ManualOpener.HandsACopyToTheDesktopsViewer"}),
            0);
        return;
    }
    const QTemporaryDir directory;
    const QString viewed = directory.filePath("viewed"), viewer = directory.filePath("xdg-open");
    QFile script(viewer);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\necho \"$1\" >\"$0.part\"\nmv \"$0.part\" \"${0%/*}/viewed\"\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    qputenv("PATH", directory.path().toLocal8Bit() + ':' + qgetenv("PATH"));

    QString copy;
    {
        const ManualOpener opener;
        for (const char *again : {"", "again"}) {
            QDesktopServices::openUrl(QUrl("qrc:/icons/usb"));
            ASSERT_TRUE(ScreenDriver::waitFor([&] { return QFile::exists(viewed); })) << again;
            copy = QUrl(bytesOf(viewed).trimmed()).toLocalFile();
            EXPECT_EQ(bytesOf(copy), bytesOf(":/icons/usb")) << again;
            QFile::remove(viewed);
        }
    }
    EXPECT_FALSE(QFile::exists(copy)) << "left behind";
}

TEST(ManualOpener, LogsWhatCanNotBeOpened) {
    const ManualOpener opener;
    testing::internal::CaptureStdout();
    QDesktopServices::openUrl(QUrl("qrc:/manuals/none.pdf"));
    QDesktopServices::openUrl(QUrl("qrc:/icons/usb")); // no desktop on the offscreen platform
    const std::string log = testing::internal::GetCapturedStdout();
    EXPECT_THAT(log, testing::HasSubstr("[ERROR] [ManualOpener] can't copy qrc:/manuals/none.pdf"));
    EXPECT_THAT(log, testing::HasSubstr("[ERROR] [ManualOpener] no viewer opens "));
}
