// Shows the strongest signals of each scan until Enter is pressed.

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
    const auto complain = [](const char *text) { std::cerr << text << '\n'; };
    LinuxConnector detector(argc > 1 ? argv[1] : LinuxConnector::SERIAL_DIRECTORY, complain, complain);
    if (!detector.connectInterface())
        return 1;
    detector.addListener(std::make_shared<MsgListener>(show));
    detector.busyTransaction(ScanMsgBuilder().scan(true).share(), 200ms);
    std::cin.get();
    detector.busyTransaction(ScanMsgBuilder().scan(false).share(), 200ms);
}
