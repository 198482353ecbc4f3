// Measures the cost of the program's window on a display while a detector scans twice a second. The yardstick
// is an empty window that changes as often. Each has a process of its own.

#include "bench.h"
#include "pty-device.h"

#include <csignal>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds SCAN_PERIOD{500};
constexpr int STARTS = 3;
constexpr std::chrono::seconds SETTLING{2}, MEASURED{5};

struct Cost {
    double processorSeconds, wakeUps, residentMB;
};

/// A window of another process, from its first frame on.
class ShownWindow {
public:
    /// Shows the program's window, with the devices of this folder, or an empty one if the name is empty.
    /// Throws std::runtime_error if the window does not show.
    explicit ShownWindow(const std::string &folder) {
        int ends[2];
        if (::pipe(ends) != 0)
            throw std::runtime_error("No pipe.");
        const fs::path program = fs::canonical("/proc/self/exe").parent_path() / "shown-window";
        const std::string descriptor = std::to_string(ends[1]);
        std::fflush(stdout);
        const double begin = secondsOf(CLOCK_MONOTONIC);
        process = ::fork();
        if (process == 0) {
            ::close(ends[0]);
            if (std::freopen("/dev/null", "w", stdout)) // the program's log
                ::execl(program.c_str(), program.c_str(), folder.c_str(), descriptor.c_str(), nullptr);
            ::_exit(1);
        }
        ::close(ends[1]);
        char signal = 0;
        const bool isShown = ::read(ends[0], &signal, 1) == 1;
        firstFrameSeconds = secondsOf(CLOCK_MONOTONIC) - begin;
        ::close(ends[0]);
        if (!isShown || ::clock_getcpuclockid(process, &clock) != 0)
            throw std::runtime_error("The window does not show.");
    }
    ~ShownWindow() {
        ::kill(process, SIGTERM);
        ::waitpid(process, nullptr, 0);
    }
    ShownWindow(const ShownWindow &) = delete;
    ShownWindow &operator=(const ShownWindow &) = delete;

    /// The cost of all threads since the start.
    Cost cost() const {
        Cost cost{secondsOf(clock), 0, 0};
        for (const auto &task : fs::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
            std::ifstream status(task.path() / "status");
            for (std::string line; std::getline(status, line);) {
                double value = 0;
                if (std::sscanf(line.c_str(), "voluntary_ctxt_switches: %lf", &value) == 1)
                    cost.wakeUps += value;
                if (std::sscanf(line.c_str(), "VmRSS: %lf", &value) == 1)
                    cost.residentMB = value / 1024;
            }
        }
        return cost;
    }

    double firstFrameSeconds; ///< from the start of the process

private:
    pid_t process;
    clockid_t clock{};
};

void reportFirstFrame(const std::string &folder) {
    double ours = 1e300, theirs = 1e300;
    for (int i = 0; i < STARTS; ++i) {
        ours = std::min(ours, ShownWindow(folder).firstFrameSeconds);
        theirs = std::min(theirs, ShownWindow({}).firstFrameSeconds);
    }
    report("window-first-frame", ours / theirs, "empty windows");
    report("window-first-frame-time", ours * 1e3, "ms");
}

void reportScanning(const std::string &folder, PtyDevice &device) {
    const ShownWindow program(folder), empty({});
    const std::size_t known = device.scansSent();
    for (int i = 0; device.scansSent() < known + 4; ++i) {
        if (i == 300)
            throw std::runtime_error("The program does not connect.");
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
    std::this_thread::sleep_for(SETTLING);
    const Cost before = program.cost(), emptyBefore = empty.cost();
    std::this_thread::sleep_for(MEASURED);
    const Cost after = program.cost(), emptyAfter = empty.cost();
    const double spent = after.processorSeconds - before.processorSeconds;
    const double seconds = std::chrono::duration<double>(MEASURED).count();
    report("window-processor", spent / (emptyAfter.processorSeconds - emptyBefore.processorSeconds),
           "empty windows");
    report("window-memory", after.residentMB / emptyAfter.residentMB, "empty windows");
    report("window-processor-share", spent / seconds * 100, "% of a core");
    report("window-resident", after.residentMB, "MB");
    report("window-wake-ups", (after.wakeUps - before.wakeUps) / seconds, "a second");
}

} // namespace

int main() {
    const SerialDirectory directory;
    PtyDevice device(directory);
    device.setScanPeriod(SCAN_PERIOD);
    reportFirstFrame(directory.path());
    reportScanning(directory.path(), device);
}
