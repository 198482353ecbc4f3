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

/// Gets each message. It must throw nothing but a `const std::exception *`, which becomes an error line in
/// the log: any other exception leaves the thread that delivers messages, and so ends the process.
using MsgListener = std::function<void(std::shared_ptr<Msg>)>;
using IoLogger = std::function<void(std::string)>;

/// What a line has taken of a request within its time-out; or it was closed, before or meanwhile.
enum class Sent { NOTHING, PART, WHOLE, CLOSED };

/// A time-out as it is waited for: no longer than a year, so that the clock can tell its end.
inline std::chrono::milliseconds waitable(std::chrono::milliseconds timeout) {
    return std::min<std::chrono::milliseconds>(timeout, std::chrono::hours(365 * 24));
}

/// Hears of errors that a link does not get over by itself.
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
    /// Sends a request and blocks for the first message of an expected type, whatever request made the device
    /// send it; null after the time-out, which runs from when the request has left. Null at once where the
    /// line has not taken all of the request within the same time. Not to be called from a listener, which
    /// would hold up the reply.
    virtual std::shared_ptr<Msg> transaction(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout,
                                             std::vector<MsgTypeEnum> expected) = 0;
    /// Gives no word of a request that the line has not taken within the time-out.
    virtual void send(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout) = 0;
    virtual void send(std::shared_ptr<Msg> msg) = 0;
    virtual void serialClose() = 0;
    virtual bool isClosed() = 0;
    /// The bytes received that are not done with yet.
    virtual buffer_t getRecvBuffer() = 0;
    /// Gets all bytes as they are received; a null pointer ends the logging.
    virtual void setIoLogger(std::shared_ptr<IoLogger> logger) = 0;
    /// Listeners run on the thread that reads the link, in the order of adding, and must not block it for
    /// long.
    virtual void addListener(std::shared_ptr<MsgListener> listener) = 0;
    /// Once this has returned, the listener does not run on another thread and will not run again.
    virtual void removeListener(std::shared_ptr<MsgListener> listener) = 0;
    virtual void addOnErrorListener(std::shared_ptr<OnErrorListener> listener) = 0;
    virtual void removeOnErrorListener(std::shared_ptr<OnErrorListener> listener) = 0;
};

} // namespace kelvane
