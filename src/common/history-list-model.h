#pragma once

#include "common/history-metatype.h"
#include "msg-holder.h"

#include <QAbstractListModel>
#include <vector>

/// The histories of the device's frequency bands, one row per band in the order of its protocol generation.
/// Divides each scan by band. Empty until the first CONFIG. Lives on the UI thread.
class HistoryListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { MasterModeRole = Qt::UserRole, HistoryRole };

    explicit HistoryListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Lays out the bands anew with empty histories; messages of another type are ignored.
    Q_INVOKABLE void setConfig(MsgHolder holder);
    /// Files a scan. A result goes to every band whose widest range holds it, limits included; a band without
    /// results is given an empty scan. Messages of another type and scans without results are ignored.
    Q_INVOKABLE void acceptScanResult(MsgHolder holder);
    /// A copy; raises std::out_of_range for a row that is none.
    Q_INVOKABLE History getHistory(int row) const;

signals:
    void gotHistory();

private:
    struct _listData {
        MasterFreqModeEnum masterMode;
        History history;
    };

    std::vector<_listData> m_data;
    /// Equal to no generation, always: each CONFIG starts the histories and the screen's rows anew.
    const int proto = -1;
};
