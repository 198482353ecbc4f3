#include "plots-list-model.h"

#include <QQmlEngine>

namespace {

QSharedPointer<PlotData> makePlot(float minFreq, float maxFreq, float barWidth) {
    auto plot = QSharedPointer<PlotData>::create(minFreq, maxFreq, barWidth);
    // The engine gets rows by pointer. Without this it would delete them.
    QQmlEngine::setObjectOwnership(plot.data(), QQmlEngine::CppOwnership);
    return plot;
}

} // namespace

PlotListModel::PlotListModel(QObject *parent)
    : QAbstractListModel(parent) {}

int PlotListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : count();
}

QVariant PlotListModel::data(const QModelIndex &index, int role) const {
    if (!isRow(index) || role != PlotDataRole)
        return {};
    return QVariant::fromValue<QObject *>(freqs[index.row()].data());
}

bool PlotListModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (value.isNull())
        return false;
    switch (role) {
    case PlotDataRole:
        return insert(index.row(), qobject_cast<PlotData *>(value.value<QObject *>()));
    case ConfigMsgRole:
        if (const auto config = value.value<MsgHolder>().getAs<ConfigMsg>())
            setConfigMsg(*config);
        else
            set({});
        return true;
    default:
        return false;
    }
}

bool PlotListModel::insert(int row, const PlotData *plot) {
    if (!plot || row < 0 || row > freqs.size())
        return false;
    beginInsertRows(QModelIndex(), row, row);
    freqs.insert(row, makePlot(plot->getMinFreq(), plot->getMaxFreq(), plot->getBarWidth()));
    endInsertRows();
    return true;
}

Qt::ItemFlags PlotListModel::flags(const QModelIndex &index) const {
    return index.row() > 0 && isRow(index) ? Qt::ItemIsEditable : Qt::NoItemFlags;
}

QHash<int, QByteArray> PlotListModel::roleNames() const {
    auto names = QAbstractListModel::roleNames();
    names.insert(PlotDataRole, "plotData");
    names.insert(ConfigMsgRole, "configMsg");
    return names;
}

void PlotListModel::setConfig(MsgHolder msg) {
    if (const auto config = msg.getAs<ConfigMsg>())
        setConfigMsg(*config);
}

void PlotListModel::setConfigMsg(const ConfigMsg &config) {
    Plots plots;
    for (const MasterFreqModeEnum band : Proto(config.getProto()).getMasterModes()) {
        const FreqMode widest = MasterFreqMode(band).getWidestRange();
        const auto plan = widest.getFreqList()->getFreqs();
        plots.append(makePlot(widest.getMinFreq(), widest.getMaxFreq(), plan.at(1) - plan.at(0)));
    }
    set(plots);
}

void PlotListModel::set(const Plots &plots) {
    beginResetModel();
    freqs = plots;
    endResetModel();
}
