#pragma once

#include "common/joining-thread.h"
#include "line-writer.h"
#include "serial-interface-adapter.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <string>

inline namespace kelvane {

/// The link to a device on a serial terminal.
///
/// Everything but the listeners may be called from any thread; a listener, which runs on the reading thread,
/// must neither open nor close the link. The line is the program's alone: what it starts does not inherit it,
/// and it never becomes the terminal that signals the process. Failures are reported by a false result and a
/// line on standard output.
class UsbTty : public SerialInterfaceAdapter {
public:
    UsbTty();
    /// No caller today.
    explicit UsbTty(std::string portName);
    ~UsbTty() override;
    UsbTty(const UsbTty &) = delete;
    UsbTty &operator=(const UsbTty &) = delete;

    /// The path of the terminal; a change shows at the next `openPort`.
    void setPortName(std::string name);
    std::string getPortName() const;
    /// No caller today.
    std::string getName() override { return "UsbTTY"; }

    /// Opens the port, sets the line up for the device and starts reading. The speed stays as it is. An open
    /// port is replaced, once its unsent bytes had the time that `serialClose` gives them.
    bool openPort();
    /// Starts the reading thread of an open link where none is. Does nothing while another thread opens the
    /// link or closes it.
    void startReading();
    /// Gives unsent bytes up to half a second to leave, while reading goes on, then ends all waiting on the
    /// line, drops what is left and returns when the reading thread has ended. At once where nothing is
    /// unsent and no listener is at work. On purpose: a broken object stays in the buffer and meets what
    /// comes from the port that is opened next.
    void serialClose() override { closeAfter({}); }
    bool isClosed() override { return closed; }
    /// Blocks for the time-out at most; `sendWithin` tells what the line has taken by then.
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override { sendWithin(bytes, timeout); }
    /// A request that has begun leaves as a whole, before any other, as long as the port is open; the reading
    /// thread sends on what is left.
    Sent sendWithin(const buffer_t &bytes, std::chrono::milliseconds timeout) override {
        return writer.send(bytes, timeout);
    }

protected:
    /// As `serialClose`, and this is the last request, which leaves after what is unsent.
    void closeAfter(const buffer_t &last);
    /// What kept the last `openPort` from opening, as in `errno`; 0 where nothing did.
    int openError() const { return lastOpenError; }

private:
    static constexpr std::size_t buffer_size = 512;
    static constexpr int MIN_BYTES = 64; ///< No caller today.

    bool failed(const char *operation);
    bool setUpLine(int descriptor);
    bool readBlock();

    mutable std::mutex nameMutex; ///< guards `portName`; held for nothing else
    std::string portName;

    /// Serialises opening and closing, and guards `readingThread`. Held while the reading thread is joined,
    /// so that thread never waits for it. Recursive, as opening starts the reading.
    std::recursive_mutex lifecycle;
    JoiningThread readingThread;
    std::atomic<int> lastOpenError{0};
    /// An event that wakes the reading thread: the link is being closed, or there is a rest to send on.
    const int news;
    std::atomic<int> port{-1}; ///< -1 while closed; only changed under `lifecycle`
    std::atomic<bool> closed{true};
    /// Has the port from its opening until it is about to be closed or replaced, so that no write lands on a
    /// descriptor that was handed out again.
    LineWriter writer;
};

} // namespace kelvane
