#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

/// Opens documents that are in the program's resources. A viewer cannot read those, so the desktop gets a
/// copy as a file. As long as this object lives, Qt passes every address of the scheme "qrc" to it, and the
/// copies stay. At most one object at a time, on the UI thread.
class ManualOpener : public QObject {
    Q_OBJECT

public:
    ManualOpener();
    ~ManualOpener() override;

public slots:
    /// Shows a document in the desktop's viewer. A failure is an error line in the log.
    void open(const QUrl &address);

private:
    QTemporaryDir copies;
};
