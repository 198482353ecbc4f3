#pragma once

#include "char-buffer.h"
#include "msg/msg.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <vector>

inline namespace kelvane {

/// Gets each message. It must not throw: an exception leaves the thread that delivers messages and ends the
/// process. Only a `const std::exception *`, a pointer, is caught and logged as an error line.
using MsgListener = std::function<void(std::shared_ptr<Msg>)>;
using IoLogger = std::function<void(std::string)>;

/// How much of a request a line has taken within the time-out. CLOSED: the line was closed, before or
/// meanwhile.
enum class Sent { NOTHING, PART, WHOLE, CLOSED };

/// Limits a time-out to a year, so that the clock can represent its end.
inline std::chrono::milliseconds waitable(std::chrono::milliseconds timeout) {
    return std::min<std::chrono::milliseconds>(timeout, std::chrono::hours(365 * 24));
}

/// Is called for errors that a link cannot handle itself.
class OnErrorListener {
public:
    virtual ~OnErrorListener() = default;
    virtual void onError(const std::exception *error) = 0;
};

/// A link that carries messages to and from one device.
class SerialInterface {
public:
    virtual ~SerialInterface() = default;
    virtual std::string getName() = 0;
    /// Sends a request and blocks until the first message of an expected type comes, also if another request
    /// caused it. The time-out begins when the request has left; after it the result is null. If the line
    /// does not take all of the request within the same time, the result is null then. Do not call it from a
    /// listener: the reply could not arrive.
    virtual std::shared_ptr<Msg> transaction(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout,
                                             std::vector<MsgTypeEnum> expected) = 0;
    /// Sends a request and does not wait for a reply. A request that the line has not taken within the
    /// time-out is not reported.
    virtual void send(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout) = 0;
    virtual void send(std::shared_ptr<Msg> msg) = 0;
    virtual void serialClose() = 0;
    virtual bool isClosed() = 0;
    /// The received bytes that are kept.
    virtual buffer_t getRecvBuffer() = 0;
    /// The logger gets all bytes as they are received. A null pointer ends the logging.
    virtual void setIoLogger(std::shared_ptr<IoLogger> logger) = 0;
    /// Listeners run on the thread that reads the link, in the order of adding. They must not block it for
    /// long.
    virtual void addListener(std::shared_ptr<MsgListener> listener) = 0;
    /// When this has returned, the listener does not run on another thread and will not run again.
    virtual void removeListener(std::shared_ptr<MsgListener> listener) = 0;
    virtual void addOnErrorListener(std::shared_ptr<OnErrorListener> listener) = 0;
    virtual void removeOnErrorListener(std::shared_ptr<OnErrorListener> listener) = 0;
};

} // namespace kelvane
