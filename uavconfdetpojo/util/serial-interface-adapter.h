#pragma once

#include "listener-list.h"
#include "message-reader.h"
#include "serial-interface.h"

#include <atomic>
#include <mutex>

inline namespace kelvane {

/// The common part of all byte links. It finds the messages in the bytes, calls the listeners with them, and
/// matches requests with replies. A link adds `sendBytes`, and a reading thread that calls `processNewData`.
class SerialInterfaceAdapter : public virtual SerialInterface {
public:
    static constexpr std::chrono::milliseconds SEND_TIMEOUT{2000};
    static constexpr long long LAST_PARSED_TIMEOUT = MessageReader::LAST_PARSED_TIMEOUT; ///< ms
    // No caller today.
    static constexpr bool debugIO = false;
    static constexpr bool rawIO = false;
    static constexpr bool summaryIO = false;

    SerialInterfaceAdapter();

    std::shared_ptr<Msg> transaction(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout,
                                     std::vector<MsgTypeEnum> expected) override;
    void send(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout) override;
    void send(std::shared_ptr<Msg> msg) override;
    buffer_t getRecvBuffer() override;
    void setIoLogger(std::shared_ptr<IoLogger> logger) override;
    void addListener(std::shared_ptr<MsgListener> listener) override;
    void removeListener(std::shared_ptr<MsgListener> listener) override;
    void addOnErrorListener(std::shared_ptr<OnErrorListener> listener) override;
    void removeOnErrorListener(std::shared_ptr<OnErrorListener> listener) override;

    /// Called on the thread that sends, also while the reading thread reads.
    virtual void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) = 0;
    /// Like `sendBytes`, but returns how much the line has taken within the time-out. Transactions call this
    /// one. The default calls `sendBytes` and returns `Sent::WHOLE`.
    virtual Sent sendWithin(const buffer_t &bytes, std::chrono::milliseconds timeout);

    std::shared_ptr<IoLogger> getIoLogger();
    void fireMsg(std::shared_ptr<Msg> msg);
    /// Calls the error listeners and drops all received bytes. No caller today.
    void fireError(const std::exception *error);
    /// Accepts the next bytes from the device. Call it on the reading thread.
    void processNewData(buffer_t bytes);
    /// No caller today.
    void waitEmptyBuffer();
    /// Wall clock in ms since the epoch.
    virtual long long getCurrentTimeMs();
    /// `MessageReader::split`.
    static std::vector<std::string> split(const std::string &text, const std::string &delimiter);

protected:
    const std::string TAG = "RFD24";

    /// A transaction ended without waiting for a reply, because the line had not taken all of its request
    /// within the time-out. Called once for each such transaction, on its thread.
    virtual void transactionGaveUp(const std::shared_ptr<Msg> &, Sent, std::chrono::milliseconds) {}

private:
    const IoLogger logClbck = [](const std::string &) {};
    ListenerList<MsgListener> msgListeners;
    ListenerList<OnErrorListener> onErrorListeners;
    std::atomic<int> trIdHolder{0};

    // Guards the next three. The reading thread uses them, but any thread may ask for the bytes and set the
    // logger. Not held while a line is logged, because the log's sink may ask, too.
    std::mutex readerMutex;
    std::vector<std::function<void()>> unlogged;
    MessageReader reader;
    std::shared_ptr<IoLogger> ioLogger; // never null
};

} // namespace kelvane
