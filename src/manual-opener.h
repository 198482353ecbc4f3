#pragma once

#include <QObject>
#include <QTemporaryDir>
#include <QUrl>

/// Opens the documents in the program's resources: no viewer can follow an address inside this process, so
/// the desktop is handed a copy. The copies last as long as the object, and so long Qt brings every address
/// of the scheme "qrc" here. One at a time, on the UI thread.
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
