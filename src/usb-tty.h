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
/// Any thread may call. Only a listener, which runs on the reading thread, must neither open nor close the
/// link. Processes that the program starts do not inherit the port, and the port never becomes the
/// controlling terminal. A failure is a false result and a line on standard output.
class UsbTty : public SerialInterfaceAdapter {
public:
    UsbTty();
    /// No caller today.
    explicit UsbTty(std::string portName);
    ~UsbTty() override;
    UsbTty(const UsbTty &) = delete;
    UsbTty &operator=(const UsbTty &) = delete;

    /// The path of the terminal. A new one is used by the next `openPort`.
    void setPortName(std::string name);
    std::string getPortName() const;
    /// No caller today.
    std::string getName() override { return "UsbTTY"; }

    /// Opens the port, sets the line up for the device and starts reading. The speed stays as it is. A port
    /// that is already open is replaced; its unsent bytes first get the same time as in `serialClose`.
    bool openPort();
    /// Starts the reading thread if the link is open and has none. Does nothing while another thread opens or
    /// closes the link.
    void startReading();
    /// Gives unsent bytes up to half a second to leave, while reading goes on. Then drops the others, ends
    /// every wait on the line, and returns when the reading thread has ended. Returns at once if no byte is
    /// unsent and no listener runs. On purpose: an incomplete object stays in the buffer. The bytes of the
    /// port that is opened next are added to it.
    void serialClose() override { closeAfter({}); }
    bool isClosed() override { return closed; }
    /// Blocks for the time-out at most. `sendWithin` returns whether the line has taken all by then.
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override { sendWithin(bytes, timeout); }
    /// If the line has taken a part of a request, the reading thread sends the rest, before any other
    /// request, as long as the port is open.
    Sent sendWithin(const buffer_t &bytes, std::chrono::milliseconds timeout) override {
        return writer.send(bytes, timeout);
    }

protected:
    /// Like `serialClose`, but sends `last` as the last request after the unsent bytes.
    void closeAfter(const buffer_t &last);
    /// The `errno` with which the last `openPort` failed; 0 if it did not.
    int openError() const { return lastOpenError; }

private:
    static constexpr std::size_t buffer_size = 512;
    static constexpr int MIN_BYTES = 64; ///< No caller today.

    bool failed(const char *operation);
    bool setUpLine(int descriptor);
    bool readBlock();

    mutable std::mutex nameMutex; ///< guards `portName`; held for nothing else
    std::string portName;

    /// Held during all of opening and closing; guards `readingThread`. It is also held while the reading
    /// thread is joined, so that thread must never wait for it. Recursive, because `openPort` calls
    /// `startReading`.
    std::recursive_mutex lifecycle;
    JoiningThread readingThread;
    std::atomic<int> lastOpenError{0};
    /// An event that wakes the reading thread: the link is being closed or its port replaced, or there is a
    /// rest to send.
    const int news;
    std::atomic<int> port{-1}; ///< -1 while closed; only changed under `lifecycle`
    std::atomic<bool> closed{true};
    bool hasHungUp = false; ///< only used by the reading thread
    /// Uses the port from its opening until just before it is closed or replaced. So no write reaches another
    /// file that got the same descriptor.
    LineWriter writer;
};

} // namespace kelvane
