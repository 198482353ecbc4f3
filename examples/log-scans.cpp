// Logs every scan as a line of JSON with the time of its arrival, in ms since 1970. Ends at a signal, or when
// nobody reads the lines any more.

#include <algorithm>
#include <csignal>
#include <iostream>
#include <uavdevice.h>
#include <unistd.h>

using namespace std::chrono;

void logScan(const std::shared_ptr<Msg> &msg) {
    if (!messageCast<ScanResultMsg>(msg))
        return;
    std::string text = MsgToJsonParser::toJson(msg);
    std::replace(text.begin(), text.end(), '\n', ' ');
    const auto now = duration_cast<milliseconds>(system_clock::now().time_since_epoch());
    if (!(std::cout << "{\"ms\": " << now.count() << ", \"scan\": " << text << '}' << std::endl))
        ::kill(::getpid(), SIGTERM);
}

int main(int argc, char **argv) {
    sigset_t ending; // blocked before there are threads, because threads inherit it
    sigemptyset(&ending);
    for (const int number : {SIGINT, SIGTERM, SIGHUP, SIGPIPE})
        sigaddset(&ending, number);
    sigprocmask(SIG_BLOCK, &ending, nullptr);
    const auto complain = [](const std::string &text) { std::cerr << text << '\n'; };
    Log::setSink(complain);
    LinuxConnector detector(argc > 1 ? argv[1] : LinuxConnector::SERIAL_DIRECTORY, complain, complain);
    if (!detector.connectInterface())
        return complain("No detector found."), 1;
    detector.addListener(std::make_shared<MsgListener>(logScan));
    detector.busyTransaction(ScanMsgBuilder().scan(true).share(), 200ms);
    int signal = 0;
    sigwait(&ending, &signal);
    detector.busyTransaction(ScanMsgBuilder().scan(false).share(), 200ms);
}
