#pragma once

#include "json-brace-counter.h"
#include "listener-list.h"
#include "serial-interface.h"

#include <atomic>
#include <mutex>

/// What all byte links share: finds the messages in the bytes, hands them to the listeners, and matches
/// requests with replies. A link adds `sendBytes`, and a reading thread that calls `processNewData`.
class SerialInterfaceAdapter : public virtual SerialInterface {
public:
    static constexpr std::chrono::milliseconds SEND_TIMEOUT{2000};
    /// So long, in ms, bytes may go on arriving without an object's end before they are given up.
    static constexpr long long LAST_PARSED_TIMEOUT = 5000;
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

    /// Called on the caller's thread, next to the reading.
    virtual void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) = 0;

    std::shared_ptr<IoLogger> getIoLogger();
    void fireMsg(std::shared_ptr<Msg> msg);
    /// Tells the listeners and drops all received bytes.
    void fireError(const std::exception *error);
    /// Takes the next bytes from the device, on the reading thread.
    void processNewData(buffer_t bytes);
    void waitEmptyBuffer();
    /// Wall clock in ms since the epoch.
    virtual long long getCurrentTimeMs();
    /// For log lines. A piece is as long as the position of its end, so that all but the first run long; what
    /// stands behind the last delimiter is left out.
    static std::vector<std::string> split(const std::string &text, const std::string &delimiter);

protected:
    const std::string TAG = "RFD24";

private:
    void dispatch(const std::string &frame);
    void recover();
    void resetBuffer();
    void logBuffer(const std::string &title, const std::string &all);

    const IoLogger logClbck = [](const std::string &) {};
    std::shared_ptr<IoLogger> ioLogger; // set by any thread, read by the reading thread: only atomic access
    ListenerList<MsgListener> msgListeners;
    ListenerList<OnErrorListener> onErrorListeners;
    std::atomic<int> trIdHolder{0};

    // Guards `buffer` and `jbc`: the reading thread's, but any thread may ask for the bytes.
    std::mutex bufferMutex;
    CharBuffer buffer;
    JsonBraceCounter jbc; // over the bytes of `buffer`
    long long lastParsed; // ms; the reading thread's alone
};
