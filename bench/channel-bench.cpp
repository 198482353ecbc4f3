// What a byte costs on its way through the channel, against its yardsticks in the same run.

#include "json11.hpp"
#include "serial-interface-adapter.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <streambuf>

namespace {

constexpr int SCANS = 4000;
constexpr std::size_t CHUNK = 512; // bytes, as the serial link reads

class Link : public SerialInterfaceAdapter {
public:
    std::string getName() override { return "bench"; }
    void serialClose() override {}
    bool isClosed() override { return false; }
    void sendBytes(buffer_t, std::chrono::milliseconds) override {}
};

/// Takes the log lines of the objects that are lost where their buffer is kept.
class Nowhere : public std::streambuf {
    int overflow(int c) override { return traits_type::not_eof(c); }
    std::streamsize xsputn(const char *, std::streamsize n) override { return n; }
};

std::string scanText() {
    std::string text = "{\n\"freqs\" : [";
    for (int mhz = 5645; mhz < 5945; mhz += 5) {
        text += std::string(mhz == 5645 ? "" : ",") + "\n{\n\"freqMHz\" : " + std::to_string(mhz) +
                ".000000,\n\"rssi\" : -" + std::to_string(80 + mhz % 17) + ".000000,\n\"type\" : \"FPV\"\n}";
    }
    return text + "\n],\n\"mask\" : false,\n\"type\" : \"SCAN_RESULT\"\n}\n";
}

/// Bytes per second of the fastest run.
template <class Run>
double speed(int runs, std::size_t bytes, Run run) {
    double best = 0;
    for (int i = 0; i < runs; ++i) {
        const auto begin = std::chrono::steady_clock::now();
        run();
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        best = std::max(best, static_cast<double>(bytes) / time.count());
    }
    return best;
}

void feed(Link &link, const std::string &scan) {
    for (int i = 0; i < SCANS; ++i)
        for (std::size_t at = 0; at < scan.size(); at += CHUNK)
            link.processNewData(scan.substr(at, CHUNK));
}

} // namespace

int main() {
    const std::string scan = scanText();
    const std::size_t bytes = scan.size() * SCANS;
    const double parsing = speed(3, bytes, [&] {
        for (int i = 0; i < SCANS; ++i) {
            std::string err;
            json11::Json::parse(scan, err);
        }
    });

    Link link;
    int messages = 0;
    link.addListener(std::make_shared<MsgListener>([&](const std::shared_ptr<Msg> &) { ++messages; }));
    const double emptied = speed(3, bytes, [&] { feed(link, scan); });
    if (messages != 3 * SCANS)
        return 1;

    // The chunk that ends an object starts the next one: the buffer grows to all of the stream, and what the
    // channel logs of the objects, which are lost so, goes nowhere.
    Nowhere nowhere;
    std::streambuf *const output = std::cout.rdbuf(&nowhere);
    Link keeping;
    keeping.processNewData("{");
    const auto keep = [&] { feed(keeping, scan.substr(1) + "{"); };
    const double first = speed(1, bytes, keep);
    speed(1, bytes, keep);
    const double last = speed(1, bytes, keep);
    std::cout.rdbuf(output);

    const auto print = [](const char *what, double value, double of, const char *yardstick) {
        std::printf("%-34s %6.1f MB/s, %.2f of %s\n", what, value / 1e6, value / of, yardstick);
    };
    print("json11 alone", parsing, parsing, "itself");
    print("channel, buffer emptied", emptied, parsing, "json11 alone");
    print("channel, buffer kept, first third", first, emptied, "buffer emptied");
    print("channel, buffer kept, last third", last, first, "first third");
}
