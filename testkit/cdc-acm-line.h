#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <termios.h>
#include <thread>
#include <vector>

/// Makes a pseudo-terminal behave like the line of a USB device. It replaces the program's system calls. It
/// takes as many bytes as the system's driver of such devices (CDC ACM), and passes them to the terminal's
/// other end at the device's pace.
///
/// A plain pseudo-terminal takes whole requests until it is full. The driver takes a line and then a line
/// end, each as a piece. Up to sixteen pieces may be under way. It reports room only while there are none.
/// The system's last close would wait for them; here they are counted and dropped. A program that links this
/// target makes its calls through it. Calls for other descriptors go to the system.
class CdcAcmLine {
public:
    /// Replaces the calls for this terminal, from when the program reads the line's settings. At most one
    /// object at a time. Make and end it while no program has the terminal open.
    explicit CdcAcmLine(std::string terminal);
    ~CdcAcmLine();
    CdcAcmLine(const CdcAcmLine &) = delete;
    CdcAcmLine &operator=(const CdcAcmLine &) = delete;

    /// The time that the device needs for each piece; zero at first.
    void setPace(std::chrono::microseconds perPiece);
    /// The device takes nothing until `release`.
    void hold() {
        takeWhile([] { return false; });
    }
    void release() {
        takeWhile([] { return true; });
    }
    /// The device takes a piece only while `isTaking` returns true. It is called on a thread of this object.
    void takeWhile(std::function<bool()> isTaking);
    /// From now on the device takes one more piece after each write that found too little room, before the
    /// program's next call.
    void makeRoomAfterRefusals() { hasRoomAfterRefusal = true; }
    /// `call` is called each time that the program asks how much is under way, on the program's thread.
    void whenAsked(std::function<void()> call);

    /// The control modes of the line: those that another program has left, then those that this one has set.
    /// A pseudo-terminal knows neither parity nor handshake lines.
    std::atomic<tcflag_t> control{CS8 | CREAD};

    /// Number of pieces that were under way when the program closed or replaced its descriptor.
    std::size_t leftToClose() const;

    // The replacements of the program's system calls.
    static CdcAcmLine *of(int terminal);
    static void setUp(int terminal);
    void use(int terminal);
    void close(int terminal);
    ssize_t write(const char *bytes, std::size_t count);
    bool reportsRoom() const;
    int ask(int *unsent);
    void flush();

private:
    void run();
    bool passOn();
    int descriptor() const;
    bool hasGone() const;

    const std::string path;
    std::atomic<bool> hasRoomAfterRefusal{false};
    std::vector<int> descriptors; // the program's; guarded by a mutex of the source file

    mutable std::mutex mutex; // guards everything below
    std::condition_variable changed;
    std::deque<std::string> underWay;
    std::size_t left = 0;
    std::chrono::microseconds pace{0};
    std::function<bool()> takes = [] { return true; };
    std::shared_ptr<std::function<void()>> asked = std::make_shared<std::function<void()>>([] {});
    bool ending = false;
    std::thread thread;
};
