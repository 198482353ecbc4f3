#include "device-faults.h"
#include "device-options.h"
#include "inbox.h"
#include "line-tap.h"
#include "replay.h"
#include "usb-tty.h"

#include <fcntl.h>
#include <sys/eventfd.h>
#include <unistd.h>

static DeviceOptions parse(std::vector<std::string> words) {
    words.insert(words.begin(), "virtual-device");
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    return parseDeviceOptions(static_cast<int>(words.size()), arguments.data());
}

TEST(VirtualDevice, SaysWhatIsWrongWithItsOptions) {
    const std::pair<std::vector<std::string>, const char *> cases[] = {
        {{"--rain"}, "--rain is no option; see --help"},
        {{"rain"}, "rain is no option; see --help"},
        {{"--battery", "9", "-help"}, "-help is no option; see --help"},
        {{"--pace"}, "--pace needs a value"},
        {{"--pace", "fast"}, "--pace: \"fast\" is no number from 1 to 3600000"},
        {{"--battery", "101"}, "--battery: \"101\" is no number from 0 to 100"},
        {{"--speed", "2x"}, "--speed: \"2x\" is no number from 0.001 to 1000"},
        {{"--generation", "K99"}, "--generation: there is no generation \"K99\"; see --help"},
        {{"--scene", "sea"}, "--scene: there is no scene \"sea\"; see --help"},
        {{"--faults", "cut,rain"}, "--faults: there is no fault \"rain\"; see --help"},
        {{"--faults", "unplug"}, "--faults: several of them, or unplug, need a --period"},
        {{"--tap", "/dev/null"}, "--tap and --record go together"},
        {{"--speed", "2"}, "--speed needs --replay"},
        {{"--period", "2"}, "--period needs --faults"},
        {{"--seed", "2"}, "--seed needs --faults"},
        {{"--replay", "x", "--pace", "9"},
         "--pace is not for --replay, which plays the scans of the recording"},
        {{"--replay", "x", "--scene", "drone"},
         "--scene is not for --replay, which plays the scans of the recording"},
        {{"--tap", "x", "--record", "x", "--faults", "cut"},
         "--faults is for the virtual detector; --tap uses a real one"},
    };
    for (const auto &[words, error] : cases)
        EXPECT_THAT([&given = words] { parse(given); }, ThrowsMessage<std::runtime_error>(error));
    const DeviceOptions options =
        parse({"--generation", "K6", "--faults", "cut,late", "--period", "0.5", "--seed", "7"});
    EXPECT_EQ(options.generation, ProtoEnum::K6);
    EXPECT_THAT(options.faults, ElementsAre("cut", "late"));
    EXPECT_EQ(options.faultPeriod, 500ms);
    EXPECT_EQ(options.seed, 7U);
}

/// Like /dev/serial/by-id, which comes with the first serial device and goes with the last.
TEST(VirtualDeviceThreads, MakesTheFoldersOfItsLinkForAsLongAsItIsThere) {
    using std::filesystem::perms;
    const SerialDirectory directory;
    const auto serial = directory.path() / "serial", link = serial / "by-id/usb-virtual";
    {
        PtyDevice device(link);
        EXPECT_TRUE(UsbTty(link).openPort());
        EXPECT_EQ((status(link).permissions() & perms::others_write) != perms::none, geteuid() == 0);
        EXPECT_THAT([&] { PtyDevice{link}; },
                    ThrowsMessage<std::runtime_error>(
                        link.string() + ": File exists; remove it if no other virtual detector runs there"));
        EXPECT_TRUE(exists(link));
        device.unplug();
        EXPECT_FALSE(exists(serial));
        device.plugIn();
        EXPECT_TRUE(UsbTty(link).openPort());
        std::ofstream(serial / "of somebody else");
    }
    EXPECT_FALSE(exists(serial / "by-id"));
    EXPECT_TRUE(exists(serial / "of somebody else"));
}

class RecordingThreads : public Test {
protected:
    SerialDirectory directory;
    const std::string file = directory.path() / "recording";
};

TEST_F(RecordingThreads, SaysWhatIsWrongWithIt) {
    const std::pair<const char *, const char *> cases[] = {
        {"", ": the recording is empty"},
        {"[]", ", line 1: not a JSON object"},
        {R"({"ms":0,"from":"me","text":""})", R"(, line 1: "from" is neither "device" nor "program")"},
        {R"({"ms":0,"from":"device"})", R"(, line 1: no "text")"},
        {R"({"ms":-1,"from":"device","text":""})", R"(, line 1: "ms" is no time)"},
        {"{\"ms\":2,\"from\":\"device\",\"text\":\"\"}\n{\"ms\":1,\"from\":\"device\",\"text\":\"\"}",
         ", line 2: \"ms\" goes back in time"}};
    const auto read = [&] { readRecording(file); };
    EXPECT_THAT(read, ThrowsMessage<std::runtime_error>(file + ": no such recording, or it can't be read"));
    for (const auto &[text, error] : cases) {
        std::ofstream(file) << text;
        EXPECT_THAT(read, ThrowsMessage<std::runtime_error>(file + error));
    }
    for (const auto &shipped : std::filesystem::directory_iterator(RECORDINGS_DIR))
        EXPECT_GT(readRecording(shipped.path()).size(), 50U) << shipped;
}

/// The recording of a tap plays like the device that was recorded.
TEST_F(RecordingThreads, ATapPassesEveryByteOnAndItsRecordingPlaysAgain) {
    constexpr const char *scan = "SCAN_RESULT";
    // Compares bytes, because a slow machine may lose messages that come in one piece.
    const auto watch = [&](const std::string &terminal) {
        std::mutex mutex;
        std::condition_variable more;
        std::string bytes;
        UsbTty tty(terminal);
        tty.setIoLogger(std::make_shared<IoLogger>([&](const std::string &text) {
            const std::lock_guard lock(mutex);
            bytes += text;
            more.notify_all();
        }));
        EXPECT_TRUE(tty.openPort());
        tty.send(std::make_shared<GetStateMsg>());
        tty.send(ScanMsgBuilder().scan(true).share());
        std::unique_lock lock(mutex);
        std::size_t end = 0;
        more.wait_for(lock, 60s, [&] {
            for (int scans = end = 0; scans < 3 && end != std::string::npos; ++scans)
                end = bytes.find(scan, end + 1);
            return end != std::string::npos;
        });
        EXPECT_THAT(bytes, HasSubstr("\"battLvl\": 12"));
        const auto begin = bytes.find("{\n\"freqs\"");
        return begin < end ? bytes.substr(begin, end - begin) : "";
    };
    std::string seen;
    {
        PtyDevice device(directory);
        device.setBattery(12);
        device.setScanPeriod(20ms);
        const int stop = eventfd(0, EFD_CLOEXEC);
        LineTap tap(device.terminal(), directory.path() / "tap", file);
        std::thread passing([&] { tap.run(stop); });
        seen = watch(directory.path() / "tap");
        EXPECT_EQ(device.requests()[0], "{\n\"type\" : \"GET_STATE\"\n}");
        eventfd_write(stop, 1);
        passing.join();
        close(stop);
    }
    PtyDevice device(directory);
    const Replay replay(device, readRecording(file), 2);
    EXPECT_TRUE(!seen.empty() && watch(device.terminal()) == seen);
}

/// A tap between a device and a program. Neither reads anything until the test makes it.
class TappedRecordingThreads : public RecordingThreads {
protected:
    TappedRecordingThreads() {
        device.setManner(PtyDevice::Manner::DEAF);
        passing = std::thread([this] { tap.run(stop); });
        open();
    }
    ~TappedRecordingThreads() override {
        eventfd_write(stop, 1);
        passing.join();
        close(program);
        close(stop);
    }

    void open() {
        program = ::open(tap.terminal().c_str(), O_RDWR | O_NOCTTY | O_CLOEXEC);
        termios line{};
        tcgetattr(program, &line);
        cfmakeraw(&line);
        tcsetattr(program, TCSANOW, &line);
    }
    std::string read(std::size_t count) const {
        std::string text(count, 0);
        std::size_t have = 0;
        for (ssize_t more; have < count && (more = ::read(program, &text[have], count - have)) > 0;)
            have += static_cast<std::size_t>(more);
        return text.substr(0, have);
    }
    /// Waits until the recording has this letter `count` times; false if it never does. The letter must not
    /// be anywhere else in the recording.
    bool records(std::ptrdiff_t count, char letter) const {
        const auto deadline = std::chrono::steady_clock::now() + PtyDevice::DEADLINE;
        for (;; std::this_thread::sleep_for(1ms)) {
            std::ifstream stream(file);
            if (std::count(std::istreambuf_iterator<char>(stream), {}, letter) >= count)
                return true;
            if (std::chrono::steady_clock::now() > deadline)
                return false;
        }
    }

    PtyDevice device{directory};
    LineTap tap{device.terminal(), "", file};
    const int stop = eventfd(0, EFD_CLOEXEC);
    int program = -1;
    std::thread passing;
};

/// Sends more than the lines and the tap can hold. At the end the device is deaf and the program reads
/// nothing.
TEST_F(TappedRecordingThreads, PassEveryByteOnAndEndWhereNobodyTakesThem) {
    const std::string said(200000, 'D'), asked = std::string(60000, 'P') + R"({"type":"GET_STATE"})";
    const auto talk = [&](int round) {
        device.sendText(said);
        EXPECT_EQ(::write(program, asked.data(), asked.size()), asked.size());
        EXPECT_TRUE(records(round * 60000, 'P'));
    };
    talk(1);
    EXPECT_EQ(read(said.size()), said);
    EXPECT_TRUE(records(200000, 'D'));
    device.setManner(PtyDevice::Manner::OBLIGING);
    EXPECT_TRUE(device.waitForRequests(1));
    EXPECT_EQ(device.received(), asked);
    device.setManner(PtyDevice::Manner::DEAF);
    talk(2);
    // The next program does not get bytes that this one has not read.
    close(program);
    for (const char letter : {'X', 'Y'}) { // the tap has noticed the end when both are recorded
        device.sendText({letter});
        EXPECT_TRUE(records(1, letter));
    }
    open();
    device.sendText("fresh");
    EXPECT_EQ(read(5), "fresh");
}

TEST(DeviceFaultsThreads, ASweepingDeviceTakesRequestsBetweenScansAlone) {
    const SerialDirectory directory;
    PtyDevice device(directory);
    device.setScanPeriod(200ms);
    device.startStreaming();
    const DeviceFaults faults(device, {"sweeps"}, 0ms, 0, [](const std::string &) {});
    Inbox inbox;
    UsbTty tty(device.terminal());
    tty.addListener(inbox.listener);
    ASSERT_TRUE(tty.openPort());
    ASSERT_TRUE(inbox.next<ScanResultMsg>());
    tty.send(std::make_shared<GetStateMsg>());
    auto heard = inbox.take();
    for (; heard.empty(); heard = inbox.take())
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(heard.front()->getType(), MsgTypeEnum::SCAN_RESULT);
    tty.send(ScanMsgBuilder().scan(false).share());
    tty.serialClose();
    EXPECT_TRUE(device.waitForRequests(2)) << "also once the port is closed";
    EXPECT_FALSE(device.isScanning());
}

TEST(DeviceFaultsThreads, ComeAndGoBySeed) {
    const SerialDirectory directory;
    std::vector<std::string> courses[2];
    for (auto &course : courses) {
        PtyDevice device(directory);
        std::mutex mutex;
        std::condition_variable changed;
        const DeviceFaults faults(device, {"cut", "unplug", "late"}, 10ms, 42, [&](const std::string &fault) {
            const std::lock_guard lock(mutex);
            EXPECT_EQ(std::filesystem::exists(directory.path() / "usb-detector"), fault != "unplug");
            if (course.size() < 20)
                course.push_back(fault);
            changed.notify_all();
        });
        std::unique_lock lock(mutex);
        EXPECT_TRUE(changed.wait_for(lock, PtyDevice::DEADLINE, [&] { return course.size() == 20; }));
    }
    EXPECT_EQ(courses[0], courses[1]);
    EXPECT_THAT(courses[0], IsSupersetOf({"cut", "unplug", "late", ""}));
}
