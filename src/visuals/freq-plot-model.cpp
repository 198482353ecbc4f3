#include "visuals/freq-plot-model.h"

#include "common/bounded.h"
#include "msg/scan-result-msg.h"

FreqPlotModel::FreqPlotModel(QObject *parent)
    : QAbstractListModel(parent)
    , timer(new QTimer(this)) {
    connect(
        timer, &QTimer::timeout, this, [this] { setScan(MsgHolder()); });
}

int FreqPlotModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(maxFreqs.size());
}

QVariant FreqPlotModel::data(const QModelIndex &index, int role) const {
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const PlotPoint &point = maxFreqs[static_cast<std::size_t>(index.row())];
    switch (role) {
    case FreqRole:
        return point.freq == 0 ? QString("-----") : QString::number(point.freq);
    case RssiRole:
        return (point.rssi == 0 ? QString("----") : QString::number(point.rssi)) + "dB";
    case TypeRole:
        return point.type == SigTypeEnum::NONE ? QString(" ----")
                                               : QString::fromStdString(SigType(point.type).name());
    default:
        return {};
    }
}

QHash<int, QByteArray> FreqPlotModel::roleNames() const {
    auto names = QAbstractListModel::roleNames();
    names.insert(FreqRole, "freq");
    names.insert(RssiRole, "rssi");
    names.insert(TypeRole, "type");
    return names;
}

void FreqPlotModel::setScan(MsgHolder holder) {
    timer->start(CLEAR_AFTER_MS);
    beginResetModel();
    maxFreqs.clear();
    if (const auto scan = holder.getAs<ScanResultMsg>()) {
        for (const auto &result : scan->getFreqs()) {
            if (maxFreqs.size() == MAX_FREQS_DISPLAYED)
                break;
            maxFreqs.push_back({qRound(bounded(result->getFreqMHz())), qRound(bounded(result->getRssi())),
                                result->getType()});
        }
    }
    maxFreqs.resize(MAX_FREQS_DISPLAYED);
    endResetModel();
}
