#pragma once

#include "master-freq-mode.h"
#include "msg-holder.h"

#include <QAbstractListModel>
#include <QList>
#include <vector>

/// The device's bands, one row each, with their sweep ranges. A band is off or sweeps one of its ranges.
/// Lives on the UI thread.
class RangesListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IntRangeRole = Qt::UserRole, ///< the active `FreqModeEnum`, -1 when off
        ValueRangeRole,              ///< position of the band's switch: 0 is off, 1 the first range
        StringModeRole,              ///< name of the active range; of the first one when off
        StringRangeRole              ///< limits of the active range in MHz, "2400-2484"; empty when off
    };

    explicit RangesListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Accepts the first two roles. On purpose: the last active band cannot be switched off, because a device
    /// needs a band to scan. Its first range becomes active instead.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// On purpose: the first row has no flags and can be edited nevertheless. The screens do not ask for
    /// flags.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Makes one row for each band of a CONFIG's generation, with the active ranges. Other messages are
    /// ignored. Throws std::out_of_range for a range that belongs to none of these bands. On purpose: of two
    /// active ranges of a band the later one counts, because a switch can show only one.
    Q_INVOKABLE void setConfig(MsgHolder msg);
    /// The active ranges as `FreqModeEnum` in the order of the bands.
    Q_INVOKABLE QList<int> getRanges() const;
    Q_INVOKABLE int getNumRanges() const;

signals:
    /// The user has switched a band. On purpose: a CONFIG does not emit it. Otherwise the ranges would be
    /// sent back to the device.
    void rangesChanged();

private:
    struct Mode {
        MasterFreqMode mm;
        std::vector<FreqModeEnum> ranges; ///< ascending
        int active;                       ///< index into `ranges`, -1 for off

        bool isActive() const { return active != -1; }
        int indexOf(FreqModeEnum range) const; ///< -1 for a range of another band
    };

    const Mode *rowAt(const QModelIndex &index) const;
    void layOutBands(std::vector<MasterFreqModeEnum> bands);
    void setRange(Mode &row, int range);
    void setPosition(Mode &row, int position);

    int proto = -1;
    std::vector<Mode> m_data;
};
