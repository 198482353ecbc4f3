#include "pty-device.h"

#include "freq-mode.h"
#include "msg-to-json-parser.h"
#include "msg/scan-result-msg.h"

#include <algorithm>
#include <cstdlib>
#include <poll.h>
#include <stdexcept>
#include <sys/eventfd.h>
#include <unistd.h>

namespace fs = std::filesystem;
using json11::Json;
using std::chrono::milliseconds;

namespace {

const std::string NOISE = std::string("\xff}]\0\x80 [1, \"two\"] ", 17);

std::map<std::string, Json::object> factorySettings(ProtoEnum proto) {
    Json::array ranges{"EXT_2400", "EXT_4900", "EXT_5800"};
    if (proto >= ProtoEnum::K7)
        ranges.insert(ranges.begin(), "STD_1200");
    Json::object config{{"proto", Proto(proto).name()},
                        {"indLed", true},
                        {"indSnd", true},
                        {"indVibro", false},
                        {"indLedLvl", 50},
                        {"indSndLvl", 100},
                        {"mode", "BASE"},
                        {"wifiDet", false},
                        {"uavDet", true},
                        {"ranges", ranges},
                        {"hwVers", "7.1"},
                        {"fwVers", "2.30"},
                        {"bootVers", "1.4"},
                        {"md5Serial", "5d41402abc4b2a76"},
                        {"atten", 0}};
    Json::object configK7{{"voiceEn", true},  {"dispLvl", 50},          {"dispOffTime", 30},
                          {"indHeadLvl", 25}, {"indHeadMode", "SOUND"}, {"btEn", false},
                          {"btPowerDbm", 0},  {"voiceDbLvl", -94}};
    return {{"CONFIG", config},
            {"CONFIG_K7", configK7},
            {"AI_PRIOR", {{"aiPrior", "DEFAULT"}}},
            {"CONFIG_EW", {{"targets", Json::array()}}},
            {"STATE",
             {{"battLvl", 87}, {"battVoltage", 3.9}, {"bootload", false}, {"stateRanges", Json::object()}}}};
}

/// The position behind the last brace of the object that begins at or after `start`, or npos.
std::size_t objectEnd(const std::string &text, std::size_t start) {
    int depth = 0;
    bool quoted = false;
    for (std::size_t i = start; i < text.size(); ++i)
        if (text[i] == '"')
            quoted = !quoted;
        else if (text[i] == '{' && !quoted)
            ++depth;
        else if (text[i] == '}' && !quoted && --depth == 0)
            return i + 1;
    return std::string::npos;
}

} // namespace

SerialDirectory::SerialDirectory() {
    std::string name = (fs::temp_directory_path() / "serial-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("mkdtemp");
    directory = name;
}

SerialDirectory::~SerialDirectory() {
    fs::remove_all(directory);
}

PtyDevice::PtyDevice(const SerialDirectory &directory, ProtoEnum generation, const std::string &linkName)
    : PtyDevice(directory.path() / linkName, generation) {}

PtyDevice::PtyDevice(fs::path linkPath, ProtoEnum generation)
    : proto(generation)
    , link(linkPath.empty() ? linkPath : fs::absolute(linkPath))
    , wakeEvent(checked(eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC), "eventfd"))
    , settings(factorySettings(generation)) {
    plugIn();
}

PtyDevice::~PtyDevice() {
    unplug();
    close(wakeEvent);
}

void PtyDevice::plugIn() {
    if (plugged)
        return;
    pty.emplace();
    if (!link.empty())
        pty->linkAt(link);
    plugged = true;
    thread = std::thread([this] { run(); });
}

void PtyDevice::unplug() {
    if (!plugged.exchange(false))
        return;
    pty->unlink();
    wake();
    thread.join();
    pty.reset();
    const std::lock_guard lock(mutex);
    scanning = false;
    setOpen(false);
}

void PtyDevice::setManner(Manner newManner) {
    const std::lock_guard lock(mutex);
    manner = newManner;
    wake();
}

void PtyDevice::setAnswerDelay(milliseconds delay) {
    const std::lock_guard lock(mutex);
    answerDelay = delay;
}

void PtyDevice::setScanPeriod(milliseconds period) {
    const std::lock_guard lock(mutex);
    scanPeriod = period;
    wake();
}

void PtyDevice::startStreaming() {
    const std::lock_guard lock(mutex);
    scanning = true;
    wake();
}

void PtyDevice::setBattery(int percent) {
    const std::lock_guard lock(mutex);
    settings["STATE"]["battLvl"] = percent;
}

void PtyDevice::setScene(Scene newScene) {
    const std::lock_guard lock(mutex);
    scene = std::move(newScene);
}

void PtyDevice::setSettings(const std::string &type, const Json::object &values) {
    const std::lock_guard lock(mutex);
    settings[type] = values;
}

void PtyDevice::sendText(const std::string &text) {
    const std::lock_guard lock(mutex);
    outgoing.emplace(Clock::now(), text);
    wake();
}

void PtyDevice::send(const std::shared_ptr<Msg> &msg) {
    sendText(MsgToJsonParser::toJson(msg) + "\n");
}

void PtyDevice::sendScan(const std::vector<std::shared_ptr<FreqScanResult>> &results, bool maskOn) {
    send(ScanResultMsgBuilder().freqs(results).mask(maskOn).share());
}

std::string PtyDevice::received() const {
    const std::lock_guard lock(mutex);
    return record;
}

std::vector<std::string> PtyDevice::requests() const {
    const std::lock_guard lock(mutex);
    return requestTexts;
}

std::vector<std::string> PtyDevice::requestTypes() const {
    const std::lock_guard lock(mutex);
    return types;
}

void PtyDevice::clearRecord() {
    const std::lock_guard lock(mutex);
    record.clear();
    framed = 0;
    requestTexts.clear();
    types.clear();
}

Json::object PtyDevice::settingsOf(const std::string &type) const {
    const std::lock_guard lock(mutex);
    return settings.at(type);
}

bool PtyDevice::isScanning() const {
    const std::lock_guard lock(mutex);
    return scanning;
}

std::size_t PtyDevice::scansSent() const {
    const std::lock_guard lock(mutex);
    return scans;
}

bool PtyDevice::waitForRequests(std::size_t count) const {
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, DEADLINE, [&] { return types.size() >= count; });
}

bool PtyDevice::waitForOpen(bool wanted) const {
    std::unique_lock lock(mutex);
    return changed.wait_for(lock, DEADLINE, [&] { return open == wanted; });
}

void PtyDevice::wake() {
    eventfd_write(wakeEvent, 1);
}

void PtyDevice::run() {
    while (plugged) {
        pollfd ends[] = {{wakeEvent, POLLIN, 0}, {pty->descriptor(), POLLIN, 0}};
        int timeout = Pty::CLOSED_POLL;
        bool isOpen = false;
        {
            const std::lock_guard lock(mutex);
            isOpen = pty->isOpen(); // checked before reading, so that no bytes are left if the port is closed
            if (isListening())
                readBytes();
            setOpen(isOpen);
            if (isOpen) {
                write();
                timeout = msUntilDue();
            }
            ends[1].events =
                static_cast<short>((isListening() ? POLLIN : 0) | (leaving.empty() ? 0 : POLLOUT));
        }
        // With a closed port every poll returns at once, so then only the other descriptor is waited for.
        poll(ends, isOpen ? 2 : 1, timeout);
        eventfd_t ignored;
        eventfd_read(wakeEvent, &ignored);
    }
}

/// When the port is closed, unread bytes are dropped, so that the next program does not read them.
void PtyDevice::setOpen(bool isOpen) {
    if (!isOpen) {
        outgoing.clear();
        leaving.clear();
    }
    if (isOpen == open)
        return;
    open = isOpen;
    scanDue = Clock::now();
    changed.notify_all();
    if (!isOpen && plugged)
        pty->dropUnread();
}

void PtyDevice::readBytes() {
    char bytes[4096];
    for (ssize_t count; (count = ::read(pty->descriptor(), bytes, sizeof bytes)) > 0;)
        record.append(bytes, static_cast<std::size_t>(count));
    takeRequests();
}

void PtyDevice::takeRequests() {
    for (std::size_t start, end; (start = record.find('{', framed)) != std::string::npos &&
                                 (end = objectEnd(record, start)) != std::string::npos;
         framed = end) {
        std::string text = record.substr(start, end - start);
        text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
        std::string error;
        const Json request = Json::parse(text, error);
        const std::string type = request["type"].string_value();
        requestTexts.push_back(text);
        types.push_back(type);
        changed.notify_all();
        if (manner != Manner::SILENT)
            queue(answer(type, request).dump(), answerDelay);
    }
}

Json PtyDevice::answer(const std::string &type, const Json &request) {
    const auto fail = [&](const char *why) {
        return Json(Json::object{{"type", "FAIL"}, {"respOn", type}, {"failMsg", why}});
    };
    const auto known = MsgType::getEnumValue(type);
    if (!known || MsgType(*known).getSinceProto() > proto)
        return fail("unknown request");
    if (type.rfind("GET_", 0) == 0 && settings.count(type.substr(4))) {
        Json::object reply = settings.at(type.substr(4));
        reply["type"] = type.substr(4);
        return reply;
    }
    if (type == "SCAN")
        scanning = request["scan"].bool_value();
    else if (manner == Manner::REFUSING)
        return fail("refused");
    else if (type == "SET_MASK")
        return Json::object{{"type", "MASK_RESULT"}, {"mask", mask = !mask}};
    else if (!settings.count(type))
        return fail("unknown request");
    else
        for (const auto &[key, value] : request.object_items())
            settings[type][key] = value;
    return Json::object{{"type", "OK"}, {"respOn", type}};
}

void PtyDevice::queue(const std::string &message, milliseconds delay) {
    std::string bytes = message + "\n";
    if (manner == Manner::NOISY)
        bytes.insert(0, NOISE);
    else if (manner == Manner::CUT)
        bytes.resize(bytes.size() / 2);
    outgoing.emplace(Clock::now() + delay, bytes);
}

void PtyDevice::write() {
    if (isStreaming() && Clock::now() >= scanDue) {
        scanDue = Clock::now() + scanPeriod;
        if (leaving.empty()) // there is room for one
            queue(MsgToJsonParser::toJson(nextScan()), milliseconds(0));
        if (manner == Manner::SWEEPING)
            readBytes();
    }
    for (auto next = outgoing.begin(); next != outgoing.end() && next->first <= Clock::now();
         next = outgoing.erase(next))
        leaving += next->second;
    const ssize_t count = ::write(pty->descriptor(), leaving.data(), leaving.size());
    leaving.erase(0, static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
}

bool PtyDevice::isStreaming() const {
    return scanning && manner != Manner::SILENT && scanPeriod.count() > 0;
}

bool PtyDevice::isListening() const {
    return manner != Manner::DEAF && !(manner == Manner::SWEEPING && isStreaming() && open);
}

/// The time for poll; -1 means no limit.
int PtyDevice::msUntilDue() const {
    if (!leaving.empty())
        return 1; // the reader has not taken all yet
    auto due = isStreaming() ? scanDue : Clock::time_point::max();
    if (!outgoing.empty())
        due = std::min(due, outgoing.begin()->first);
    if (due == Clock::time_point::max())
        return -1;
    return static_cast<int>(std::max<long>(std::chrono::ceil<milliseconds>(due - Clock::now()).count(), 0));
}

std::shared_ptr<Msg> PtyDevice::nextScan() {
    std::vector<FreqModeEnum> ranges;
    for (const Json &range : settings["CONFIG"]["ranges"].array_items())
        if (const auto mode = FreqMode::getEnumValue(range.string_value()))
            ranges.push_back(*mode);
    return ScanResultMsgBuilder().freqs(scene(scans++, ranges)).mask(mask).maskedModes({}).share();
}
