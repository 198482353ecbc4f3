// Sets the brightness of the detector's lights, in percent, and prints the brightness that the detector then
// has.

#include <iostream>
#include <sstream>
#include <uavdevice.h>

using namespace std::chrono_literals;

void complain(const std::string &text) {
    std::cerr << text << '\n';
}

int main(int argc, char **argv) {
    int percent = -1;
    if (argc < 2 || !(std::istringstream(argv[1]) >> percent) || percent < 0 || percent > 100) {
        complain("Usage: set-brightness PERCENT [DIRECTORY]");
        return 2;
    }
    Log::setSink(complain);
    LinuxConnector detector(argc > 2 ? argv[2] : LinuxConnector::SERIAL_DIRECTORY, complain, complain);
    if (!detector.connectInterface()) {
        complain("No detector found.");
        return 1;
    }
    // A message has only the keys that are set, so nothing else changes. The device does not scan, so no
    // other message can be taken for the reply.
    const auto answer = detector.busyTransaction(ConfigMsgBuilder().indLedLvl(percent).share(), 1s);
    if (const auto fail = messageCast<FailMsg>(answer))
        complain("Refused: " + fail->getFailMsg());
    const auto readBack = detector.busyTransaction(std::make_shared<GetConfigMsg>(), 1s);
    const auto config = messageCast<ConfigMsg>(readBack);
    if (!config)
        complain("No settings came back.");
    else
        std::cout << "Brightness: " << config->getIndLedLvl() << " %\n";
    return config && config->getIndLedLvl() == percent ? 0 : 1;
}
