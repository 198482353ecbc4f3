#include "history-list-model.h"

#include "common/strongest-signals.h"
#include "freq-mode.h"
#include "msg/config-msg.h"
#include "msg/scan-result-msg.h"
#include "proto.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

HistoryListModel::HistoryListModel(QObject *parent)
    : QAbstractListModel(parent) {}

int HistoryListModel::rowCount(const QModelIndex &) const {
    return static_cast<int>(m_data.size());
}

QVariant HistoryListModel::data(const QModelIndex &index, int role) const {
    const int row = index.row();
    if (row < 0 || row >= rowCount())
        return {};
    const _listData &band = m_data[static_cast<std::size_t>(row)];
    switch (role) {
    case MasterModeRole:
        return static_cast<int>(band.masterMode);
    case HistoryRole:
        return QVariant::fromValue(band.history);
    default:
        return {};
    }
}

QHash<int, QByteArray> HistoryListModel::roleNames() const {
    auto names = QAbstractListModel::roleNames();
    names.insert(MasterModeRole, "masterMode");
    names.insert(HistoryRole, "history");
    return names;
}

void HistoryListModel::setConfig(MsgHolder holder) {
    const auto config = holder.getAs<ConfigMsg>();
    if (!config)
        return;
    const auto bands = Proto(config->getProto()).getMasterModes();
    beginResetModel();
    m_data.clear();
    for (const MasterFreqModeEnum band : bands)
        m_data.push_back({band, History(band, History::DEFAULT_HISTORY_LEN)});
    endResetModel();
    emit gotHistory();
}

void HistoryListModel::acceptScanResult(MsgHolder holder) {
    const auto scan = holder.getAs<ScanResultMsg>();
    if (!scan)
        return;
    const auto freqs = scan->getFreqs();
    if (freqs.empty())
        return;
    for (_listData &band : m_data) {
        const FreqMode widest = MasterFreqMode(band.masterMode).getWidestRange();
        History::Scan ofBand;
        std::copy_if(freqs.begin(), freqs.end(), std::back_inserter(ofBand), [&](const auto &result) {
            return result && result->getFreqMHz() >= widest.getMinFreq() &&
                   result->getFreqMHz() <= widest.getMaxFreq();
        });
        band.history.acceptScan(std::move(ofBand));
    }
    emit gotHistory();
}

History HistoryListModel::getHistory(int row) const {
    return m_data.at(static_cast<std::size_t>(row)).history;
}

QVariantMap HistoryListModel::getNewest(int row) const {
    const History &history = m_data.at(static_cast<std::size_t>(row)).history;
    const auto modes = MasterFreqMode(history.getMasterMode()).getModes();
    const FreqMode standard(*std::min_element(modes.begin(), modes.end()));
    QVariantMap newest{{"band", QString::fromStdString(standard.getViewName())}};
    const auto strongest =
        strongestSignals(history.getFreqScanResults(), 1, std::numeric_limits<float>::lowest());
    if (!strongest.empty()) {
        newest["freq"] = qRound(strongest.front()->getFreqMHz());
        newest["rssi"] = qRound(strongest.front()->getRssi());
        newest["type"] = QString::fromStdString(SigType(strongest.front()->getType()).name());
    }
    return newest;
}
