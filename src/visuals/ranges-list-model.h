#pragma once

#include "master-freq-mode.h"
#include "msg-holder.h"

#include <QAbstractListModel>
#include <QList>
#include <vector>

/// The device's frequency bands, one row each, for switching their ranges. A band is off or sweeps one of its
/// ranges. Lives on the UI thread.
class RangesListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        IntRangeRole = Qt::UserRole, ///< the active `FreqModeEnum`, -1 when off
        ValueRangeRole,              ///< position of the band's switch: 0 off, then its ranges from 1 on
        StringModeRole,              ///< name of the active range, of the first one when off
        StringRangeRole              ///< limits of the active range in MHz, "2400-2484"; empty when off
    };

    explicit RangesListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// Takes the first two roles.
    /// On purpose: the last active band cannot be switched off, since a device needs one to scan. Its first
    /// range is taken instead.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    /// On purpose: the first row has no flags and is edited all the same. The screens write without asking.
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows the bands of a CONFIG's generation and its active ranges; other messages are ignored. Throws
    /// std::out_of_range for a range that is none of these bands'.
    /// On purpose: the later of two ranges of one band wins, since a switch can show but one.
    Q_INVOKABLE void setConfig(MsgHolder msg);
    /// The active ranges as `FreqModeEnum` in the order of the bands.
    Q_INVOKABLE QList<int> getRanges() const;
    Q_INVOKABLE int getNumRanges() const;

signals:
    /// The user has switched a band.
    /// On purpose: a CONFIG does not emit it, or it would be sent back.
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
