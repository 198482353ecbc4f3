#include "usb-service.h"

#include "common/defaults.h"
#include "linux-connector.h"
#include "log.h"
#include "msg/ai-prior-msg.h"
#include "msg/config-k7-msg.h"
#include "msg/config-msg.h"
#include "msg/get-ai-prior-msg.h"
#include "msg/get-config-k7-msg.h"
#include "msg/get-config-msg.h"
#include "msg/get-state-msg.h"
#include "msg/mask-result-msg.h"
#include "msg/scan-msg.h"
#include "msg/set-mask-msg.h"
#include "msg/state-msg.h"

#include <QDebug>
#include <cstdio>

using std::chrono::milliseconds;

namespace {

constexpr milliseconds CONFIG_TIMEOUT{1000}; // the first CONFIG of a connection
constexpr milliseconds GET_TIMEOUT{100};
constexpr milliseconds SCAN_TIMEOUT{200};
constexpr milliseconds SETTING_TIMEOUT{30};

} // namespace

UsbService::UsbService(QObject *parent)
    : UsbService(parent, LinuxConnector::SERIAL_DIRECTORY) {}

UsbService::UsbService(QObject *parent, const std::filesystem::path &serialDirectory)
    : UsbService(std::make_unique<LinuxConnector>(
                     serialDirectory, [](const char *error) { qDebug() << error; },
                     [](const char *tried) { std::fprintf(stderr, "%s\n", tried); }),
                 parent) {}

UsbService::UsbService(std::unique_ptr<SerialInterfaceConnector> deviceConnector, QObject *parent)
    : QObject(parent)
    , connector(std::move(deviceConnector))
    , msgListener(std::make_shared<std::function<void(std::shared_ptr<Msg>)>>(
          [this](const std::shared_ptr<Msg> &msg) { acceptMsg(msg); })) {}

UsbService::~UsbService() {
    shutDown();
}

void UsbService::shutDown() {
    connectorThread.finish();
    if (usbActive)
        disconnect();
}

void UsbService::startUsb() {
    connectorThread.finish();
    if (usbActive)
        disconnect();
    connectorThread.start([this] { initUsb(connector->connectInterface()); });
}

void UsbService::startTesting() {
    connectorThread.finish();
    if (usbActive)
        return;
    connector->startTesting();
    emit testingChanged();
    initUsb(true);
}

void UsbService::disconnect() {
    connectorThread.finish();
    if (usbActive)
        stopScan();
    const bool wasTesting = connector->isTesting();
    connector->disconnect();
    if (wasTesting)
        emit testingChanged();
    initUsb(false);
}

void UsbService::initUsb(bool active) {
    if (active) {
        busy = false;
        const auto reply = request(std::make_shared<GetConfigMsg>(), CONFIG_TIMEOUT);
        if (messageCast<ConfigMsg>(reply))
            emit gotConfig(MsgHolder(reply));
        connector->addListener(msgListener);
        startScan();
        sendGetState();
        sendGetAiPrior();
        sendGetConfigK7();
    } else {
        busy = true;
        if (usbActive)
            connector->removeListener(msgListener);
    }
    emit busyChanged();
    usbActive = active;
    emit usbStateChanged();
}

std::shared_ptr<Msg> UsbService::request(const std::shared_ptr<Msg> &msg, milliseconds timeout) {
    return connector->busyTransaction(msg, timeout);
}

void UsbService::sendGetConfig() {
    request(std::make_shared<GetConfigMsg>(), GET_TIMEOUT);
}

void UsbService::sendGetState() {
    request(std::make_shared<GetStateMsg>(), GET_TIMEOUT);
}

void UsbService::sendGetAiPrior() {
    request(std::make_shared<GetAiPriorMsg>(), GET_TIMEOUT);
}

void UsbService::sendGetConfigK7() {
    request(std::make_shared<GetConfigK7Msg>(), GET_TIMEOUT);
}

void UsbService::startScan() {
    sendScan(true);
}

void UsbService::stopScan() {
    sendScan(false);
}

void UsbService::sendScan(bool scan) {
    request(ScanMsgBuilder().scan(scan).share(), SCAN_TIMEOUT);
}

void UsbService::sendConfig(MsgHolder holder) {
    if (const auto config = holder.getAs<ConfigMsg>())
        request(config, GET_TIMEOUT);
}

void UsbService::sendAiPrior(MsgHolder holder) {
    if (const auto aiPrior = holder.getAs<AiPriorMsg>())
        request(aiPrior, SETTING_TIMEOUT);
}

void UsbService::sendConfigK7(MsgHolder holder) {
    if (const auto configK7 = holder.getAs<ConfigK7Msg>())
        request(configK7, SETTING_TIMEOUT);
}

bool UsbService::setMask() {
    const auto reply = request(std::make_shared<SetMaskMsg>(), TIMEOUT);
    if (const auto fail = messageCast<FailMsg>(reply))
        emitFail(*fail, "Не удалось установить маску: ");
    const auto result = messageCast<MaskResultMsg>(reply);
    return result && result->getMask();
}

void UsbService::resetToDefaults(int proto) {
    for (const auto &setting : Defaults::getDefaults(static_cast<ProtoEnum>(proto))) {
        const auto reply = request(setting, TIMEOUT);
        if (!reply)
            continue;
        if (const auto fail = messageCast<FailMsg>(reply))
            emitFail(*fail, "Ошибка: ");
        else if (const auto readBack = MsgType(setting->getType()).getRequestMsg())
            request(readBack, GET_TIMEOUT);
    }
    sendGetConfig();
}

void UsbService::emitFail(const FailMsg &fail, const QString &prefix) {
    const QString text = prefix + QString::fromStdString(fail.getFailMsg());
    Log::error("UsbService", text.toStdString());
    emit toast(text);
}

void UsbService::acceptMsg(const std::shared_ptr<Msg> &msg) {
    if (!msg)
        return;
    switch (msg->getType()) {
    case MsgTypeEnum::CONFIG:
        emit gotConfig(MsgHolder(msg));
        break;
    case MsgTypeEnum::SCAN_RESULT:
        acceptScanResult(messageCast<ScanResultMsg>(msg));
        break;
    case MsgTypeEnum::STATE:
        emit gotBatteryState(messageCast<StateMsg>(msg)->getBattLvl());
        break;
    case MsgTypeEnum::AI_PRIOR:
        emit gotAiPrior(MsgHolder(msg));
        break;
    case MsgTypeEnum::CONFIG_K7:
        emit gotConfigK7(MsgHolder(msg));
        break;
    default:
        break;
    }
}

void UsbService::acceptScanResult(const std::shared_ptr<ScanResultMsg> &scan) {
    emit gotScanResult(MsgHolder(scan));
    emit gotMask(scan->getMask());
    const auto freqs = scan->getFreqs();
    if (freqs.empty())
        return;
    const auto strongest = ScanResultMsgBuilder()
                               .freqs(strongestSignals(freqs, MAX_FREQS_DISPLAYED, MIN_FREQ_DISPLAYED))
                               .build();
    emit gotMaxFreqs(MsgHolder(std::make_shared<ScanResultMsg>(strongest)));
}
