// Shows the strongest signals of each scan until Ctrl-C.

#include <csignal>
#include <iostream>
#include <uavdevice.h>

using namespace std::chrono_literals;

void show(const std::shared_ptr<Msg> &msg) {
    if (const auto scan = messageCast<ScanResultMsg>(msg))
        for (const auto &signal : strongestSignals(scan->getFreqs(), 3, LevelScale::SILENCE))
            std::cout << signal->getFreqMHz() << " MHz, " << signal->getRssi() << " dB, "
                      << SigType(signal->getType()).name() << std::endl;
}

int main(int argc, char **argv) {
    sigset_t ending; // blocked before there are threads, because threads inherit it
    sigemptyset(&ending);
    sigaddset(&ending, SIGINT);
    sigprocmask(SIG_BLOCK, &ending, nullptr);
    const auto complain = [](const std::string &text) { std::cerr << text << '\n'; };
    Log::setSink(complain);
    LinuxConnector detector(argc > 1 ? argv[1] : LinuxConnector::SERIAL_DIRECTORY, complain, complain);
    if (!detector.connectInterface()) {
        complain("No detector found.");
        return 1;
    }
    detector.addListener(std::make_shared<MsgListener>(show));
    detector.busyTransaction(ScanMsgBuilder().scan(true).share(), 200ms);
    int signal = 0;
    sigwait(&ending, &signal);
    detector.busyTransaction(ScanMsgBuilder().scan(false).share(), 200ms);
}
