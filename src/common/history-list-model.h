#pragma once

#include "common/history-metatype.h"
#include "msg-holder.h"

#include <QAbstractListModel>
#include <QVariantMap>
#include <vector>

/// The histories of the device's bands, one row for each band in the order of the generation. The model
/// divides each scan by band. It is empty until the first CONFIG. It lives on the UI thread.
class HistoryListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { MasterModeRole = Qt::UserRole, HistoryRole }; // No caller today.

    explicit HistoryListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Replaces all rows: one empty history for each band of the generation. Messages of another type are
    /// ignored. On purpose: a CONFIG of the same generation also empties the histories. The screens then show
    /// only what the device scans now.
    Q_INVOKABLE void setConfig(MsgHolder holder);
    /// Adds a scan. A result goes to every band whose widest sweep range contains it, limits included.
    /// Messages of another type and scans without results are ignored.
    /// On purpose: a band without results gets an empty scan. Otherwise its views would still show an old
    /// one.
    Q_INVOKABLE void acceptScanResult(MsgHolder holder);
    /// Returns a copy. Throws std::out_of_range for a row that does not exist.
    Q_INVOKABLE History getHistory(int row) const;
    /// The newest scan of a row in words. "band" is the band's name in GHz. "freq" in MHz, "rssi" in dB and
    /// "type" describe its strongest signal of a known class; without such a signal they are missing. Throws
    /// like getHistory().
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
