#pragma once

#include "common/history-metatype.h"
#include "msg-holder.h"

#include <QAbstractListModel>
#include <QVariantMap>
#include <vector>

/// The histories of the device's frequency bands, one row per band in the order of its protocol generation.
/// Divides each scan by band. Empty until the first CONFIG. Lives on the UI thread.
class HistoryListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { MasterModeRole = Qt::UserRole, HistoryRole }; // No caller today.

    explicit HistoryListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Lays out the bands anew with empty histories; messages of another type are ignored.
    /// On purpose: each CONFIG does, also one of the same generation. The screens start anew with what the
    /// device now says it scans.
    Q_INVOKABLE void setConfig(MsgHolder holder);
    /// Files a scan. A result goes to every band whose widest range holds it, limits included. Messages of
    /// another type and scans without results are ignored.
    /// On purpose: a band without results is given an empty scan, so that its views do not go on showing a
    /// scan that is over.
    Q_INVOKABLE void acceptScanResult(MsgHolder holder);
    /// A copy; throws std::out_of_range for a row that is none.
    Q_INVOKABLE History getHistory(int row) const;
    /// What a row has to tell in words: "band", its name in GHz, and of the strongest signal of known class
    /// in its newest scan "freq" in MHz, "rssi" in dB and "type", where there is one. Throws as getHistory()
    /// does.
    Q_INVOKABLE QVariantMap getNewest(int row) const;

signals:
    void gotHistory();

private:
    struct _listData {
        MasterFreqModeEnum masterMode;
        History history;
    };

    std::vector<_listData> m_data;
};
