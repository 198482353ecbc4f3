// Sets the brightness of the detector's lights, in percent, and tells what the detector has then.

#include <cstdlib>
#include <iostream>
#include <uavdevice.h>

using namespace std::chrono_literals;

int main(int argc, char **argv) {
    if (argc < 2) {
        std::cerr << "Usage: set-brightness PERCENT [DIRECTORY]\n";
        return 2;
    }
    const auto complain = [](const char *text) { std::cerr << text << '\n'; };
    LinuxConnector detector(argc > 2 ? argv[2] : LinuxConnector::SERIAL_DIRECTORY, complain, complain);
    if (!detector.connectInterface())
        return 1;
    // A message carries only the keys that are set: nothing else changes.
    const auto answer =
        detector.busyTransaction(ConfigMsgBuilder().indLedLvl(std::atoi(argv[1])).share(), 1s);
    if (const auto fail = messageCast<FailMsg>(answer))
        std::cerr << "Refused: " << fail->getFailMsg() << '\n';
    const auto readBack = detector.busyTransaction(std::make_shared<GetConfigMsg>(), 1s);
    const auto config = messageCast<ConfigMsg>(readBack);
    if (config)
        std::cout << "Brightness: " << config->getIndLedLvl() << " %\n";
    return config ? 0 : 1;
}
