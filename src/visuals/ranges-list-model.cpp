#include "ranges-list-model.h"

#include "msg/config-msg.h"
#include "scope-guard.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace {

QString limitsOf(const FreqMode &range) {
    return QString::number(qRound(range.getMinFreq())) + "-" + QString::number(qRound(range.getMaxFreq()));
}

} // namespace

int RangesListModel::Mode::indexOf(FreqModeEnum range) const {
    const auto found = std::find(ranges.begin(), ranges.end(), range);
    return found != ranges.end() ? static_cast<int>(found - ranges.begin()) : -1;
}

RangesListModel::RangesListModel(QObject *parent)
    : QAbstractListModel(parent) {}

int RangesListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_data.size());
}

const RangesListModel::Mode *RangesListModel::rowAt(const QModelIndex &index) const {
    const int row = index.row();
    return row >= 0 && row < rowCount() ? &m_data[static_cast<std::size_t>(row)] : nullptr;
}

QVariant RangesListModel::data(const QModelIndex &index, int role) const {
    const Mode *row = rowAt(index);
    if (!row)
        return {};
    // A position behind the last range of the band means off.
    const bool off = row->active < 0 || row->active >= static_cast<int>(row->ranges.size());
    const FreqMode range(row->ranges[off ? 0 : static_cast<std::size_t>(row->active)]);
    switch (role) {
    case IntRangeRole:
        return off ? -1 : range.ordinal();
    case ValueRangeRole:
        return row->active + 1;
    case StringModeRole:
        return QString::fromStdString(range.getViewName());
    case StringRangeRole:
        return off ? QString("") : limitsOf(range);
    default:
        return {};
    }
}

bool RangesListModel::setData(const QModelIndex &index, const QVariant &value, int role) {
    if (value.isNull() || !rowAt(index))
        return false;
    Mode &row = m_data[static_cast<std::size_t>(index.row())];
    beginResetModel();
    const ScopeGuard end([this] { endResetModel(); });
    if (role == IntRangeRole)
        setRange(row, value.toInt());
    // On purpose: a written range is then also read as a position. No screen writes a range.
    if (role == IntRangeRole || role == ValueRangeRole)
        setPosition(row, value.toInt());
    return true;
}

void RangesListModel::setRange(Mode &row, int range) {
    const int index = row.indexOf(static_cast<FreqModeEnum>(range));
    if (range == -1 || index != -1)
        row.active = index;
    emit rangesChanged();
}

void RangesListModel::setPosition(Mode &row, int position) {
    if (position < 0)
        return;
    row.active = getNumRanges() == 1 && position == 0 ? 0 : position - 1;
    emit rangesChanged();
}

Qt::ItemFlags RangesListModel::flags(const QModelIndex &index) const {
    return index.row() > 0 && rowAt(index) ? Qt::ItemIsEditable : Qt::NoItemFlags;
}

QHash<int, QByteArray> RangesListModel::roleNames() const {
    auto names = QAbstractListModel::roleNames();
    names.insert(IntRangeRole, "intRange");
    names.insert(ValueRangeRole, "valueRange");
    names.insert(StringModeRole, "stringMode");
    names.insert(StringRangeRole, "stringRange");
    return names;
}

void RangesListModel::setConfig(MsgHolder msg) {
    const auto config = msg.getAs<ConfigMsg>();
    if (!config)
        return;
    beginResetModel();
    const ScopeGuard end([this] { endResetModel(); });
    const Proto generation(config->getProto());
    if (proto != generation.ordinal() || m_data.empty()) {
        proto = generation.ordinal();
        layOutBands(generation.getMasterModes());
    }
    for (Mode &row : m_data)
        row.active = -1;
    for (const FreqModeEnum range : config->getRanges()) {
        const auto row = std::find_if(m_data.begin(), m_data.end(),
                                      [range](const Mode &mode) { return mode.indexOf(range) != -1; });
        if (row == m_data.end())
            throw std::out_of_range("no band has the range " + FreqMode(range).name());
        row->active = row->indexOf(range);
    }
}

void RangesListModel::layOutBands(std::vector<MasterFreqModeEnum> bands) {
    std::sort(bands.begin(), bands.end());
    m_data.clear();
    for (const MasterFreqModeEnum band : bands) {
        auto ranges = MasterFreqMode(band).getModes();
        std::sort(ranges.begin(), ranges.end());
        m_data.push_back({MasterFreqMode(band), std::move(ranges), -1});
    }
}

QList<int> RangesListModel::getRanges() const {
    QList<int> ranges;
    for (const Mode &row : m_data)
        if (row.isActive())
            ranges.append(static_cast<int>(row.ranges.at(static_cast<std::size_t>(row.active))));
    return ranges;
}

int RangesListModel::getNumRanges() const {
    return static_cast<int>(std::count_if(
        m_data.begin(), m_data.end(), [](const Mode &row) { return row.isActive(); }));
}
