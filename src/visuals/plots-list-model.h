#pragma once

#include "msg-holder.h"
#include "msg/config-msg.h"
#include "visuals/plot-data.h"

#include <QAbstractListModel>
#include <QList>
#include <QSharedPointer>

/// The frequency axes of a generation's bands, one row each. Lives on the UI thread. No caller today.
class PlotListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        PlotDataRole = Qt::UserRole, ///< the row's `PlotData` as QObject*, owned by the model
        ConfigMsgRole                ///< write only: a CONFIG that sets the rows
    };

    explicit PlotListModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /// With `PlotDataRole` it inserts a copy of a `PlotData` before the row. With `ConfigMsgRole` it takes a
    /// `MsgHolder`: a CONFIG sets the rows, anything else clears them.
    bool setData(const QModelIndex &index, const QVariant &value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QHash<int, QByteArray> roleNames() const override;
    int count() const { return freqs.size(); }

    /// Makes one row for each band of a CONFIG's generation. Other messages are ignored.
    Q_INVOKABLE void setConfig(MsgHolder msg);

private:
    using Plots = QList<QSharedPointer<PlotData>>;

    bool isRow(const QModelIndex &index) const { return index.row() >= 0 && index.row() < freqs.size(); }
    bool insert(int row, const PlotData *plot);
    void setConfigMsg(const ConfigMsg &config);
    void set(const Plots &plots);

    Plots freqs;
};
