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

/// The one object through which the screens talk to the device: starts and ends the connection, sends
/// requests, and turns every message that the device volunteers into a signal.
///
/// Lives on the UI thread. A slot blocks it for up to the time-outs of its requests. Signals are emitted on
/// the thread that brings the message: the connector thread, the link's reading thread and the simulator's
/// scanner thread reach the screens by queued delivery. What is emitted on the UI thread itself, such as the
/// simulator's answers to its requests, is delivered directly, inside the call.
class UsbService : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isUsbActive READ isUsbActive NOTIFY usbStateChanged)
    Q_PROPERTY(bool inTesting READ inTesting NOTIFY testingChanged)

public:
    /// Reply time of a mask or factory setting. On purpose: far shorter than the others, as these hold up the
    /// screens, and what a slower device answers still arrives through `acceptMsg`.
    static constexpr std::chrono::milliseconds TIMEOUT{5};
    /// The signals named in `gotMaxFreqs`.
    static constexpr int MAX_FREQS_DISPLAYED = STRONGEST_SIGNALS_NAMED;
    /// In dB; a signal must exceed it to be named.
    static constexpr int MIN_FREQ_DISPLAYED = LevelScale::SILENCE;

    /// On the serial devices of this system.
    explicit UsbService(QObject *parent = nullptr);
    /// On the serial devices that have a link in this directory.
    UsbService(QObject *parent, const std::filesystem::path &serialDirectory);
    explicit UsbService(std::unique_ptr<SerialInterfaceConnector> connector, QObject *parent = nullptr);
    ~UsbService() override;

    /// The connection is up and its first requests were made.
    bool isUsbActive() const { return usbActive; }
    /// The simulator plays the device.
    bool inTesting() const { return connector->isTesting(); }
    /// No connection is ready for requests. No caller today.
    bool isBusy() const { return busy; }

    /// Takes a message from the device, on the thread that delivers messages.
    void acceptMsg(const std::shared_ptr<Msg> &msg);

    /// Waits for a running connection attempt and ends what it brought about, so that no device is left
    /// scanning. For the end of the program; on the UI thread.
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
    /// At most `MAX_FREQS_DISPLAYED` of the scan's signals, the strongest first.
    void gotMaxFreqs(MsgHolder scanResult);
    void toast(QString msg);

public slots:
    /// Looks for a device on a thread of its own, once; waits for an attempt that still runs.
    void startUsb();
    void startTesting();
    void disconnect();
    void sendGetConfig();
    void sendGetState();
    void sendGetAiPrior();
    void sendGetConfigK7();
    void startScan();
    void stopScan();
    /// These send the held message if it is one of their type, and otherwise nothing.
    void sendConfig(MsgHolder holder);
    void sendAiPrior(MsgHolder holder);
    void sendConfigK7(MsgHolder holder);
    /// The device's answer, false without one.
    bool setMask();
    /// Sends the factory settings of a generation (a `ProtoEnum` as int) and reads them back.
    void resetToDefaults(int proto);

private:
    void initUsb(bool active);
    std::shared_ptr<Msg> request(const std::shared_ptr<Msg> &msg, std::chrono::milliseconds timeout);
    void sendScan(bool scan);
    void emitFail(const FailMsg &fail, const QString &prefix);
    void acceptScanResult(const std::shared_ptr<ScanResultMsg> &scan);

    std::unique_ptr<SerialInterfaceConnector> connector;
    /// The thread of the last connection attempt; touched by the UI thread alone.
    JoiningThread connectorThread;
    std::atomic<bool> usbActive{false};
    std::atomic<bool> busy{true};
    /// The identity under which the service subscribes to the connector.
    std::shared_ptr<std::function<void(std::shared_ptr<Msg>)>> msgListener;
};
