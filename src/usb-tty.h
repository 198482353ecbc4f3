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
/// must neither open nor close the link. Failures are reported by a false result and a line on standard
/// output.
class UsbTty : public SerialInterfaceAdapter {
public:
    UsbTty() = default;
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
    /// Starts the reading thread of an open link where none is.
    void startReading();
    /// Returns when the reading thread has ended, within about a second. On purpose: a broken object stays
    /// in the buffer and meets what comes from the port that is opened next.
    void serialClose() override;
    bool isClosed() override { return closed; }
    /// On purpose: one write of all bytes, and what the terminal does not take, or refuses, is lost without a
    /// word, as the missing reply tells. The time-out is not used.
    void sendBytes(buffer_t bytes, std::chrono::milliseconds timeout) override;

private:
    static constexpr std::size_t buffer_size = 512;
    static constexpr int MIN_BYTES = 64; ///< No caller today.

    bool readBlock();

    /// Serialises opening and closing, and guards `portName` and `readingThread`. Held while the reading
    /// thread is joined, so that thread never takes it. Recursive, as opening starts the reading.
    mutable std::recursive_mutex lifecycle;
    std::string portName;
    JoiningThread readingThread;

    /// Held for a write and for closing or replacing the descriptor, so that no write lands on a descriptor
    /// that was handed out again.
    std::mutex portMutex;
    std::atomic<int> port{-1}; ///< -1 while closed; only changed under both mutexes
    std::atomic<bool> closed{true};
};
