#include "manual-opener.h"

#include "screen-driver.h"

#include <QDesktopServices>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

QByteArray bytesOf(const QString &file) {
    QFile opened(file);
    return opened.open(QIODevice::ReadOnly) ? opened.readAll() : QByteArray();
}

} // namespace

/// The offscreen platform has no desktop, so the test runs once more with one: on a display that nobody sees.
TEST(ManualOpener, HandsACopyToTheDesktopsViewer) {
    if (QGuiApplication::platformName() == "offscreen") {
        QProcess onDisplay;
        onDisplay.setProcessChannelMode(QProcess::ForwardedChannels);
        onDisplay.start("xvfb-run", {"-a", QCoreApplication::applicationFilePath(), "-platform", "xcb",
                                     "--gtest_filter=ManualOpener.HandsACopyToTheDesktopsViewer"});
        ASSERT_TRUE(onDisplay.waitForFinished(-1)) << qPrintable(onDisplay.errorString());
        EXPECT_EQ(onDisplay.exitCode(), 0);
        return;
    }
    const QTemporaryDir directory;
    const QString viewed = directory.filePath("viewed");
    QFile viewer(directory.filePath("xdg-open"));
    ASSERT_TRUE(viewer.open(QIODevice::WriteOnly));
    viewer.write("#!/bin/sh\necho \"$1\" >\"$0.part\"\nmv \"$0.part\" \"${0%/*}/viewed\"\n");
    viewer.close();
    viewer.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("PATH", directory.path().toLocal8Bit() + ':' + qgetenv("PATH"));

    QString copy;
    {
        const ManualOpener opener;
        for (const char *again : {"", " once more"}) {
            EXPECT_TRUE(QDesktopServices::openUrl(QUrl("qrc:/icons/usb")));
            ASSERT_TRUE(ScreenDriver::waitFor([&] { return QFile::exists(viewed); })) << again;
            copy = QUrl(bytesOf(viewed).trimmed()).toLocalFile();
            EXPECT_EQ(bytesOf(copy), bytesOf(":/icons/usb")) << again;
            EXPECT_FALSE(bytesOf(copy).isEmpty());
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
    const auto log = testing::internal::GetCapturedStdout();
    EXPECT_THAT(log, HasSubstr("[ERROR] [ManualOpener] can't copy qrc:/manuals/none.pdf"));
    EXPECT_THAT(log, HasSubstr("[ERROR] [ManualOpener] no viewer opens "));
}
