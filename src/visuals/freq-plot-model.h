#pragma once

#include "common/strongest-signals.h"
#include "msg-holder.h"
#include "sig-type.h"

#include <QAbstractListModel>
#include <QTimer>
#include <vector>

/// The strongest signals of the newest scan for the cover page. There are always three rows; unused ones are
/// blank. Lives on the UI thread. It needs no application object before the first scan. On purpose: after ten
/// seconds without a scan it is cleared, and again every ten seconds. The timer is never stopped.
class FreqPlotModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role {
        FreqRole = Qt::UserRole, ///< text: MHz, "-----" when blank
        RssiRole,                ///< text: the level with its unit, "----dB" when blank
        TypeRole                 ///< text: the class's name on the wire, " ----" when there is none
    };
    static constexpr int MAX_FREQS_DISPLAYED = STRONGEST_SIGNALS_NAMED;
    static constexpr int CLEAR_AFTER_MS = 10000;

    explicit FreqPlotModel(QObject *parent = nullptr);

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Shows the first results of a SCAN_RESULT. They must be in order, strongest first. Any other message
    /// clears the rows.
    Q_INVOKABLE void setScan(MsgHolder holder);

private:
    struct PlotPoint {
        int freq = 0; ///< MHz
        int rssi = 0; ///< dB
        SigTypeEnum type = SigTypeEnum::NONE;
    };

    std::vector<PlotPoint> maxFreqs{MAX_FREQS_DISPLAYED};
    QTimer *timer;
};
