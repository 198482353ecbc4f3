#include "serial-interface-adapter.h"

#include "log.h"
#include "msg-to-json-parser.h"
#include "scope-guard.h"

#include <algorithm>
#include <condition_variable>
#include <thread>
#include <utility>

SerialInterfaceAdapter::SerialInterfaceAdapter()
    : reader(
          [this](auto operation, const std::string &line) {
              unlogged.push_back([this, operation, line] { operation(TAG, line); });
          },
          SerialInterfaceAdapter::getCurrentTimeMs())
    , ioLogger(std::make_shared<IoLogger>(logClbck)) {}

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
        // Without the lock the other thread might be between its check of the result and its wait.
        const std::lock_guard lock(mutex);
        std::atomic_store(&result, std::move(reply));
        arrived.notify_one();
    });
    Sent sent = Sent::WHOLE;
    addListener(listener);
    {
        // The listener refers to this stack. It is removed first, also when sending throws.
        const ScopeGuard removal([&] { removeListener(listener); });
        try {
            sent = sendWithin(MsgToJsonParser::toJson(msg), timeout);
        } catch (const std::exception *e) { // On purpose: by pointer, here and below. Others pass through.
            Log::error(TAG, name + " send ERROR: " + e->what());
        }
        try {
            std::unique_lock lock(mutex);
            if (sent == Sent::WHOLE)
                arrived.wait_for(lock, waitable(timeout), hasResult);
        } catch (const std::exception *e) {
            Log::error(TAG, name + " msg.wait ERROR: " + e->what());
        }
    }
    if (sent == Sent::WHOLE)
        return std::atomic_load(&result);
    if (sent != Sent::CLOSED)
        transactionGaveUp(msg, sent, timeout);
    return nullptr; // a message that came meanwhile answers something else
}

Sent SerialInterfaceAdapter::sendWithin(const buffer_t &bytes, std::chrono::milliseconds timeout) {
    sendBytes(bytes, timeout);
    return Sent::WHOLE;
}

void SerialInterfaceAdapter::send(std::shared_ptr<Msg> msg, std::chrono::milliseconds timeout) {
    sendBytes(MsgToJsonParser::toJson(msg), timeout);
}

void SerialInterfaceAdapter::send(std::shared_ptr<Msg> msg) {
    send(std::move(msg), SEND_TIMEOUT);
}

buffer_t SerialInterfaceAdapter::getRecvBuffer() {
    const std::lock_guard lock(readerMutex);
    return reader.bytes();
}

void SerialInterfaceAdapter::setIoLogger(std::shared_ptr<IoLogger> logger) {
    if (!logger)
        logger = std::make_shared<IoLogger>(logClbck);
    const std::lock_guard lock(readerMutex);
    ioLogger.swap(logger); // the former one is destroyed after the lock is released
}

std::shared_ptr<IoLogger> SerialInterfaceAdapter::getIoLogger() {
    const std::lock_guard lock(readerMutex);
    return ioLogger;
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
    {
        const std::lock_guard lock(readerMutex);
        reader.reset();
    }
    (*getIoLogger())(std::string("<<<error: ") + error->what() + ">>>\n");
}

void SerialInterfaceAdapter::processNewData(buffer_t bytes) {
    const long long now = getCurrentTimeMs(); // once for the chunk: once for each message would cost much
    std::shared_ptr<IoLogger> logger;
    {
        const std::lock_guard lock(readerMutex);
        reader.write(bytes, now);
        logger = ioLogger;
    }
    (*logger)(std::move(bytes));
    const auto next = [this, now] {
        std::unique_lock lock(readerMutex);
        auto msg = reader.next(now);
        const auto lines = std::exchange(unlogged, {});
        lock.unlock();
        for (const auto &log : lines)
            log();
        return msg;
    };
    while (auto msg = next()) // no lock is held while listeners run
        fireMsg(std::move(msg));
}

void SerialInterfaceAdapter::waitEmptyBuffer() {
    const auto holdsBytes = [this] {
        const std::lock_guard lock(readerMutex);
        return !reader.isEmpty();
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
    return MessageReader::split(text, delimiter);
}
