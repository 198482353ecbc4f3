#include "linux-connector.h"

#include "msg-to-json-parser.h"
#include "msg/get-state-msg.h"
#include "msg/scan-msg.h"
#include "msg/state-msg.h"
#include "port-advice.h"

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::milliseconds PROBE_TIMEOUT{100};

} // namespace

LinuxConnector::LinuxConnector(fs::path serialDirectory, Report reportError, Report portReport)
    : directory(std::move(serialDirectory))
    , report(std::move(reportError))
    , reportPort(std::move(portReport))
    , testListener(std::make_shared<MsgListener>([this](std::shared_ptr<Msg> msg) { fireMsg(msg); })) {}

LinuxConnector::~LinuxConnector() {
    LinuxConnector::disconnect();
}

bool LinuxConnector::connectInterface() {
    try {
        if (!fs::exists(directory))
            return false;
        for (const fs::directory_entry &entry : fs::directory_iterator(directory))
            if (entry.is_symlink() && probe(fs::canonical(directory / fs::read_symlink(entry))))
                return true;
    } catch (const fs::filesystem_error &error) {
        report(error.what());
    }
    return false;
}

bool LinuxConnector::probe(const std::string &devicePath) {
    const auto passedOver = [&](const std::string &reason) {
        reportPort((devicePath + ": " + reason).c_str());
        return false;
    };
    setPortName(devicePath);
    if (!openPort())
        return passedOver(adviceOnError(openError()));
    const unsigned before = givenUp;
    const auto reply = busyTransaction(std::make_shared<GetStateMsg>(), PROBE_TIMEOUT);
    if (messageCast<StateMsg>(reply))
        return true;
    serialClose();
    return givenUp == before && passedOver(adviceOnReply(reply, PROBE_TIMEOUT));
}

void LinuxConnector::disconnect() {
    const auto stop = std::atomic_exchange(&unsentStop, std::shared_ptr<Msg>());
    if (test)
        LinuxConnector::stopTesting(); // not virtual, since the destructor comes here too
    else if (!isClosed())
        closeAfter(stop ? MsgToJsonParser::toJson(stop) : buffer_t());
}

void LinuxConnector::startTesting() {
    test = true;
    testService.addListener(testListener);
}

void LinuxConnector::stopTesting() {
    testService.removeListener(testListener);
    test = false;
}

void LinuxConnector::addListener(std::shared_ptr<MsgListener> listener) {
    SerialInterfaceAdapter::addListener(std::move(listener));
}

void LinuxConnector::removeListener(std::shared_ptr<MsgListener> listener) {
    SerialInterfaceAdapter::removeListener(std::move(listener));
}

std::shared_ptr<Msg> LinuxConnector::simpleTransaction(std::shared_ptr<Msg> msg,
                                                       std::chrono::milliseconds timeout) {
    if (test)
        return testService.acceptMsg(msg);
    std::atomic_store(&unsentStop, std::shared_ptr<Msg>());
    return transaction(std::move(msg), timeout, MsgType::values());
}

void LinuxConnector::transactionGaveUp(const std::shared_ptr<Msg> &request, Sent sent,
                                       std::chrono::milliseconds timeout) {
    ++givenUp;
    const auto scan = messageCast<ScanMsg>(request);
    if (scan && !scan->getScan() && sent == Sent::NOTHING)
        std::atomic_store(&unsentStop, request);
    if (request)
        reportPort((getPortName() + ": " + adviceOnRefusal(*request, sent, timeout)).c_str());
}
