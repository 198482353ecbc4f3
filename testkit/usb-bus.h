#pragma once

#include <deque>
#include <mutex>
#include <set>
#include <string>
#include <utility>

/// A USB bus with a device on it. A program that links this target has it in place of libusb. Any thread; the
/// settings are for while nothing reads.
class UsbBus {
public:
    /// What a read gets: some bytes and a result.
    struct Block {
        std::string bytes;
        int code = 0;
    };

    /// The calls go to this object from now on.
    UsbBus() { current = this; }
    ~UsbBus() { current = nullptr; }
    UsbBus(const UsbBus &) = delete;
    UsbBus &operator=(const UsbBus &) = delete;

    /// The calls since the last look: each with its numbers, and '|' behind it. Reads are not among them.
    std::string takeCalls() {
        const std::lock_guard lock(mutex);
        return std::exchange(calls, {});
    }
    /// What the next reads get. A read without a block takes no time.
    void bring(std::deque<Block> blocks) {
        const std::lock_guard lock(mutex);
        incoming = std::move(blocks);
    }

    int initCode = 0;
    bool hasDevice = true;
    int deniedInterface = -1; ///< its number; the kernel's driver has the interface 0
    int sendCode = 0;
    std::size_t mostBytes = 512;                  ///< of a block that go out
    std::string outgoing;                         ///< all bytes that went out
    std::set<std::pair<int, unsigned>> readSizes; ///< of the reads: bytes at most, time-out in ms

    // The replacements of libusb's functions.
    static inline UsbBus *current = nullptr;
    void note(const std::string &call, int first = 0, int second = 0);
    int read(unsigned char *data, int length, int *actual, unsigned timeout);
    int send(const unsigned char *data, int length, int *actual, unsigned timeout);

private:
    std::mutex mutex; // guards what follows, and readSizes
    std::string calls;
    std::deque<Block> incoming;
};
