#include "serial-interface-adapter.h"

#include "log.h"
#include "msg-to-json-parser.h"

#include <algorithm>
#include <condition_variable>
#include <limits>
#include <stdexcept>
#include <thread>

SerialInterfaceAdapter::SerialInterfaceAdapter()
    : ioLogger(std::make_shared<IoLogger>(logClbck))
    , lastParsed(SerialInterfaceAdapter::getCurrentTimeMs()) {}

std::shared_ptr<Msg> SerialInterfaceAdapter::transaction(std::shared_ptr<Msg> msg,
                                                         std::chrono::milliseconds timeout,
                                                         std::vector<MsgTypeEnum> expected) {
    const std::string name = "transaction " + std::to_string(++trIdHolder);
    std::shared_ptr<Msg> result;
    std::condition_variable arrived;
    std::mutex mutex;
    const auto hasResult = [&result] { return std::atomic_load(&result) != nullptr; };
    const auto listener = std::make_shared<MsgListener>([&](std::shared_ptr<Msg> reply) {
        if (std::find(expected.begin(), expected.end(), reply->getType()) == expected.end())
            return;
        const std::lock_guard lock(mutex); // between the other thread's look at the result and its wait
        std::atomic_store(&result, std::move(reply));
        arrived.notify_one();
    });
    addListener(listener);
    {
        // The listener refers to this stack: it goes before anything else, also when sending throws.
        const std::shared_ptr<void> removal(nullptr, [&](void *) { removeListener(listener); });
        try {
            send(std::move(msg), timeout);
        } catch (const std::exception *e) {
            Log::error(TAG, name + " send ERROR: " + e->what());
        }
        try {
            std::unique_lock lock(mutex);
            arrived.wait_for(lock, timeout, hasResult);
        } catch (const std::exception *e) {
            Log::error(TAG, name + " msg.wait ERROR: " + e->what());
        }
    }
    return std::atomic_load(&result);
}

void SerialInterfaceAdapter::send(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout) {
    sendBytes(MsgToJsonParser::toJson(msg), timeout);
}

void SerialInterfaceAdapter::send(std::shared_ptr<Msg> msg) {
    send(std::move(msg), SEND_TIMEOUT);
}

buffer_t SerialInterfaceAdapter::getRecvBuffer() {
    const std::lock_guard lock(bufferMutex);
    return buffer.toString();
}

void SerialInterfaceAdapter::setIoLogger(std::shared_ptr<IoLogger> logger) {
    std::atomic_store(&ioLogger, logger ? std::move(logger) : std::make_shared<IoLogger>(logClbck));
}

std::shared_ptr<IoLogger> SerialInterfaceAdapter::getIoLogger() {
    return std::atomic_load(&ioLogger);
}

void SerialInterfaceAdapter::addListener(std::shared_ptr<MsgListener> listener) {
    msgListeners.add(std::move(listener));
}

void SerialInterfaceAdapter::removeListener(std::shared_ptr<MsgListener> listener) {
    msgListeners.remove(std::move(listener));
}

void SerialInterfaceAdapter::addOnErrorListener(std::shared_ptr<OnErrorListener> listener) {
    onErrorListeners.add(std::move(listener));
}

void SerialInterfaceAdapter::removeOnErrorListener(std::shared_ptr<OnErrorListener> listener) {
    onErrorListeners.remove(std::move(listener));
}

void SerialInterfaceAdapter::fireMsg(std::shared_ptr<Msg> msg) {
    msgListeners.fire([&](const MsgListener &listener) {
        try {
            listener(msg);
        } catch (const std::exception *e) {
            Log::error(TAG, std::string("listener error: ") + e->what());
        }
    });
}

void SerialInterfaceAdapter::fireError(const std::exception *error) {
    onErrorListeners.fire([&](OnErrorListener &listener) { listener.onError(error); });
    resetBuffer();
    (*getIoLogger())(std::string("<<<error: ") + error->what() + ">>>\n");
}

void SerialInterfaceAdapter::processNewData(buffer_t bytes) {
    std::vector<std::string> frames;
    bool objectStarted = false;
    bool wasEmpty = false;
    {
        const std::lock_guard lock(bufferMutex);
        if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max() - buffer.size())) {
            buffer.reset(); // or positions would no longer fit
            jbc.reset();
        }
        wasEmpty = buffer.size() == 0;
        buffer.write(bytes);
        const auto ends = jbc.write(bytes);
        if (!ends.empty()) {
            const std::string &all = buffer.toString();
            for (const auto &[first, second] : ends) {
                // Longer than the object unless it begins the buffer: one that is followed by another in the
                // same chunk is so made unreadable, while the line end behind it does no harm.
                frames.push_back(
                    all.substr(static_cast<std::size_t>(first), static_cast<std::size_t>(second) + 1));
            }
            objectStarted = all.find('{', static_cast<std::size_t>(ends.back().second) + 1) != all.npos;
        }
    }
    if (wasEmpty || !frames.empty())
        lastParsed = getCurrentTimeMs();
    (*getIoLogger())(bytes);
    if (frames.empty()) {
        if (!wasEmpty && getCurrentTimeMs() - lastParsed > LAST_PARSED_TIMEOUT)
            recover();
        return;
    }
    for (const std::string &frame : frames)
        dispatch(frame);
    // A started object stays with everything before it, since the counter's positions refer to all of it.
    if (!objectStarted)
        resetBuffer();
}

void SerialInterfaceAdapter::dispatch(const std::string &frame) {
    std::shared_ptr<Msg> msg;
    try {
        msg = Msg::parseJson(frame);
    } catch (const std::invalid_argument *) {
        return;
    }
    if (msg)
        fireMsg(std::move(msg));
    else
        Log::write(TAG, "received unknown msg: " + frame);
}

/// Gives up bytes in which no object ended for too long; keeps the newest object that began on a line of its
/// own.
void SerialInterfaceAdapter::recover() {
    const std::string all = getRecvBuffer();
    logBuffer("recvBuffer: ", all);
    Log::write(TAG, "reset recv buffer by LAST_PARSED_TIMEOUT");
    const auto border = all.rfind("}\n{");
    resetBuffer();
    if (border == all.npos) {
        Log::write(TAG, "reset all recv buffer");
    } else {
        const std::string kept = all.substr(border + 2);
        {
            const std::lock_guard lock(bufferMutex);
            buffer.write(kept);
            jbc.write(kept); // an object that is complete in it is not handed out any more
        }
        logBuffer("afterRecvBuffer: ", kept);
    }
    lastParsed = getCurrentTimeMs();
}

void SerialInterfaceAdapter::resetBuffer() {
    const std::lock_guard lock(bufferMutex);
    buffer.reset();
    jbc.reset();
}

void SerialInterfaceAdapter::logBuffer(const std::string &title, const std::string &all) {
    Log::write(TAG, title);
    for (const std::string &piece : split(all, "\n"))
        Log::debug(TAG, "|" + piece);
}

void SerialInterfaceAdapter::waitEmptyBuffer() {
    const auto holdsBytes = [this] {
        const std::lock_guard lock(bufferMutex);
        return buffer.size() >= 1;
    };
    while (holdsBytes())
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

long long SerialInterfaceAdapter::getCurrentTimeMs() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

std::vector<std::string> SerialInterfaceAdapter::split(const std::string &text,
                                                       const std::string &delimiter) {
    if (delimiter.empty() || text.find(delimiter) == text.npos)
        return {text};
    std::vector<std::string> pieces;
    std::size_t pos = 0;
    for (std::size_t i = 0; pos < text.size() && (i = text.find(delimiter, pos)) != text.npos;) {
        pieces.push_back(text.substr(pos, i));
        pos += pieces.back().size() + delimiter.size();
    }
    return pieces;
}
