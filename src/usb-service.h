#pragma once

#include "common/joining-thread.h"
#include "common/strongest-signals.h"
#include "level-scale.h"
#include "msg-holder.h"
#include "msg/fail-msg.h"
#include "msg/scan-result-msg.h"
#include "serial-interface-connector.h"

#include <QObject>
#include <QString>
#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>

/// The one object through which the screens talk to the device. It starts and ends the connection and sends
/// requests. It turns the messages of the device into signals.
///
/// Lives on the UI thread. A slot blocks that thread, at most for the time-outs of its requests. Signals are
/// emitted on the thread that brings the message. From the connector thread, the link's reading thread and
/// the simulator's scanner thread they are queued to the screens. Signals that the UI thread emits itself are
/// delivered directly, inside the call. The simulator's answers are such signals.
class UsbService : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isUsbActive READ isUsbActive NOTIFY usbStateChanged)
    Q_PROPERTY(bool inTesting READ inTesting NOTIFY testingChanged)

public:
    /// Time-out of the mask and of each factory setting. On purpose: far shorter than the others, because
    /// these requests hold up the screens. A later answer still arrives through `acceptMsg`.
    static constexpr std::chrono::milliseconds TIMEOUT{5};
    /// The greatest number of signals in `gotMaxFreqs`.
    static constexpr int MAX_FREQS_DISPLAYED = STRONGEST_SIGNALS_NAMED;
    /// In dB. Signals in `gotMaxFreqs` are above this level.
    static constexpr int MIN_FREQ_DISPLAYED = LevelScale::SILENCE;

    /// Searches the serial devices of this system.
    explicit UsbService(QObject *parent = nullptr);
    /// Searches the serial devices that have a link in this directory.
    UsbService(QObject *parent, const std::filesystem::path &serialDirectory);
    explicit UsbService(std::unique_ptr<SerialInterfaceConnector> connector, QObject *parent = nullptr);
    ~UsbService() override;

    /// True while there is a connection whose first requests were made.
    bool isUsbActive() const { return usbActive; }
    /// True in test mode, with the simulator as the device.
    bool inTesting() const { return connector->isTesting(); }
    /// True while no connection is ready for requests. No caller today.
    bool isBusy() const { return busy; }

    /// Accepts a message from the device. Runs on the thread that delivers messages.
    void acceptMsg(const std::shared_ptr<Msg> &msg);

    /// Waits for a running connection attempt and ends the connection, so that the device does not go on
    /// scanning. For the end of the program, on the UI thread.
    void shutDown();

signals:
    void incomingMessage(QString msg); ///< No caller today.
    void usbStateChanged();
    void busyChanged();
    void testingChanged();
    void gotConfig(MsgHolder config);
    void gotScanResult(MsgHolder scanResult);
    void gotBatteryState(int battlvl);
    void gotMask(bool mask);
    void gotAiPrior(MsgHolder aiPrior);
    void gotConfigK7(MsgHolder configK7);
    /// At most `MAX_FREQS_DISPLAYED` signals of the scan, the strongest first.
    void gotMaxFreqs(MsgHolder scanResult);
    void toast(QString msg);

public slots:
    /// Ends a connection, then searches once for a device on a thread of its own. Waits before that for an
    /// attempt that still runs.
    void startUsb();
    void startTesting();
    void disconnect();
    void sendGetConfig();
    void sendGetState();
    void sendGetAiPrior();
    void sendGetConfigK7();
    void startScan();
    void stopScan();
    /// These three send the message in the holder if it is of their type. Otherwise they do nothing.
    void sendConfig(MsgHolder holder);
    void sendAiPrior(MsgHolder holder);
    void sendConfigK7(MsgHolder holder);
    /// Returns the device's answer, or false if none comes in time.
    bool setMask();
    /// Sends the factory settings of a generation and reads them back. `proto` is a `ProtoEnum` as int.
    void resetToDefaults(int proto);

private:
    void initUsb(bool active);
    std::shared_ptr<Msg> request(const std::shared_ptr<Msg> &msg, std::chrono::milliseconds timeout);
    void sendScan(bool scan);
    void emitFail(const FailMsg &fail, const QString &prefix);
    void acceptScanResult(const std::shared_ptr<ScanResultMsg> &scan);

    std::unique_ptr<SerialInterfaceConnector> connector;
    /// The thread of the last connection attempt. Only the UI thread uses this member.
    JoiningThread connectorThread;
    std::atomic<bool> usbActive{false};
    std::atomic<bool> busy{true};
    /// Calls `acceptMsg`. The same pointer is added to the connector and removed again.
    std::shared_ptr<std::function<void(std::shared_ptr<Msg>)>> msgListener;
};
