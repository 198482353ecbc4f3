#include "manual-opener.h"

#include "log.h"

#include <QDesktopServices>
#include <QFile>

namespace {

constexpr const char *SCHEME = "qrc";

void report(const QString &text) {
    Log::error("ManualOpener", text.toStdString());
}

} // namespace

ManualOpener::ManualOpener() {
    QDesktopServices::setUrlHandler(SCHEME, this, "open");
}

ManualOpener::~ManualOpener() {
    QDesktopServices::unsetUrlHandler(SCHEME);
}

void ManualOpener::open(const QUrl &address) {
    QFile resource(':' + address.path());
    const QString copy = copies.filePath(address.fileName());
    if (!QFile::exists(copy) && !resource.copy(copy))
        report("can't copy " + address.toString() + " to " + copy + ": " + resource.errorString());
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(copy)))
        report("no viewer opens " + copy);
}
