#pragma once

#include "common/joining-thread.h"
#include "serial-interface-adapter.h"

#include <atomic>
#include <chrono>
#include <mutex>
#include <string>

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
    /// No caller today.
    std::string getPortName() const;
    /// No caller today.
    std::string getName() override { return "UsbTTY"; }

    /// Opens the port, sets the line up for the device and starts reading. The speed stays as it is. An open
    /// port is replaced.
    bool openPort();
    /// Starts the reading thread of an open link where none is. Does nothing while another thread opens the
    /// link or closes it.
    void startReading();
    /// Ends all waiting on the line and returns when the reading thread has ended, at once unless a listener
    /// is at work. On purpose: a broken object stays in the buffer and meets what comes from the port that is
    /// opened next.
    void serialClose() override;
    bool isClosed() override { return closed; }
    /// Waits for room on the line for the time-out at most. On purpose: one write of all bytes, and what the
    /// terminal does not take, or refuses, is lost without a word, as the missing reply tells.
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override;

protected:
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
    const int closing; ///< an event that can be read while the link is being closed

    /// Held for a write and for closing or replacing the descriptor, so that no write lands on a descriptor
    /// that was handed out again.
    std::mutex portMutex;
    std::atomic<int> port{-1}; ///< -1 while closed; only changed under both mutexes
    std::atomic<bool> closed{true};
};
