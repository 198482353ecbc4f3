// Takes the real screens through hundreds of connections with a virtual detector that has faults now and
// then. Prints what was lost and what has grown.

#include "message-reader.h"
#include "screen-tool.h"
#include "screens.h"

#include <QTest>
#include <fstream>
#include <random>

namespace {

/// The pause between two scans, a twentieth of a detector's.
constexpr std::chrono::milliseconds FULL_PACE{25};
constexpr int WARM_UP = 20; // connections; nothing may grow after them

struct Resources {
    long threads = 0, descriptors = 0, residentKiB = 0;

    static Resources now() {
        Resources used;
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);) {
            std::sscanf(line.c_str(), "Threads: %ld", &used.threads);
            std::sscanf(line.c_str(), "VmRSS: %ld", &used.residentKiB);
        }
        for ([[maybe_unused]] const auto &entry : std::filesystem::directory_iterator("/proc/self/fd"))
            ++used.descriptors;
        return used;
    }
};

/// Counts the messages that the line delivers. It reads the stream by itself, apart from the program. It
/// lives as long as the link that reports to it.
struct Delivered : std::enable_shared_from_this<Delivered> {
    std::atomic<int> scans{0}, answers{0};
    MessageReader reader{"soak", 0};

    std::shared_ptr<IoLogger> logger() {
        return std::make_shared<IoLogger>([this, self = shared_from_this()](const std::string &chunk) {
            using namespace std::chrono;
            const auto nowMs = duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
            reader.write(chunk, nowMs);
            while (const auto message = reader.next(nowMs))
                ++(message->getType() == MsgTypeEnum::SCAN_RESULT ? scans : answers);
        });
    }
};

class Soak : Screens {
public:
    Soak(int connections, int scans, unsigned seed)
        : rounds(connections)
        , scansPerRound((scans + connections - 1) / connections)
        , random(seed) {
        connector.setIoLogger(delivered->logger());
        plugIn(ProtoEnum::K7).setScanPeriod(FULL_PACE);
    }

    /// True if nothing was lost and nothing has grown.
    bool run() {
        for (int round = 0; round < rounds; ++round) {
            if (round == WARM_UP)
                start = Resources::now();
            connect();
            watch();
            end(round % 2 == 1);
        }
        return report(Resources::now());
    }

private:
    /// Waits until enough scans have arrived. About half of the connections have a fault in the middle.
    void watch() {
        const int enough = delivered->scans + scansPerRound;
        const auto arrived = [this](int count) {
            if (!ScreenDriver::waitFor([&] { return delivered->scans >= count; }))
                throw std::runtime_error("Scans no longer arrive.");
        };
        arrived(enough - scansPerRound / 2);
        if (random() % 2 == 0)
            goWrong();
        click("Vibro");
        arrived(enough);
    }

    void goWrong() {
        static const PtyDevice::Manner MANNERS[] = {PtyDevice::Manner::DEAF, PtyDevice::Manner::SILENT,
                                                    PtyDevice::Manner::REFUSING, PtyDevice::Manner::NOISY,
                                                    PtyDevice::Manner::CUT};
        ++faults;
        device->setManner(MANNERS[random() % std::size(MANNERS)]);
        click("Wi-Fi");
        QTest::qWait(static_cast<int>(random() % 200));
        device->setManner(PtyDevice::Manner::OBLIGING);
    }

    void end(bool unplugged) {
        if (unplugged) {
            ++unplugs;
            device->unplug();
        }
        disconnect();
        if (!ScreenDriver::waitFor([this] { return !isConnected(); }))
            throw std::runtime_error("The connection does not end.");
        requests += static_cast<int>(device->requestTypes().size());
        device->clearRecord();
        device->plugIn();
    }

    bool report(const Resources &last) {
        const int shown = taken(MsgTypeEnum::SCAN_RESULT);
        std::printf("connections        %d, %d ended by unplugging, %d with a fault\n", rounds, unplugs,
                    faults);
        std::printf("scans              %zu sent, %d delivered by the line, %d shown\n", device->scansSent(),
                    delivered->scans.load(), shown);
        std::printf("requests           %d taken by the device, %d answers delivered\n", requests,
                    delivered->answers.load());
        std::printf("threads            %ld, at the end %ld\n", start.threads, last.threads);
        std::printf("descriptors        %ld, at the end %ld\n", start.descriptors, last.descriptors);
        std::printf("resident, KiB      %ld, at the end %ld\n", start.residentKiB, last.residentKiB);
        const bool grown = last.threads > start.threads || last.descriptors > start.descriptors ||
                           last.residentKiB > start.residentKiB + start.residentKiB / 20;
        if (shown != delivered->scans)
            std::printf("Scans were lost between the line and the screen.\n");
        if (grown)
            std::printf("Something has grown.\n");
        return shown == delivered->scans && !grown;
    }

    const int rounds, scansPerRound;
    std::minstd_rand random;
    const std::shared_ptr<Delivered> delivered = std::make_shared<Delivered>();
    Resources start;
    int unplugs = 0, faults = 0, requests = 0;
};

} // namespace

int main(int argc, char **argv) {
    return runScreenTool(
        "soak", argc, argv,
        [&] {
            if (argc != 4)
                throw std::runtime_error("Usage: soak CONNECTIONS SCANS SEED");
            const auto seed = static_cast<unsigned>(std::strtoul(argv[3], nullptr, 10));
            std::printf("seed               %u\n", seed);
            return Soak(std::max(std::atoi(argv[1]), WARM_UP + 1), std::atoi(argv[2]), seed).run();
        });
}
