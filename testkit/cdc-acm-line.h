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

/// Has a pseudo-terminal behave to the program as the line of a USB device does, at the program's own system
/// calls. It takes what the system's driver of such devices (CDC ACM) takes, and hands it to the terminal's
/// other end at the device's pace.
///
/// A bare pseudo-terminal takes whole requests until it is full. This driver takes a line and then a line
/// end, each as a piece; sixteen pieces may be under way. It reports room only while none is. The last
/// closing would wait for them: that is counted, and they are dropped. A program that links this target makes
/// its calls through it; calls for other descriptors go on to the system.
class CdcAcmLine {
public:
    /// In front of this terminal once the program looks at the line's settings. One at a time, made and ended
    /// while no program has the terminal open.
    explicit CdcAcmLine(std::string terminal);
    ~CdcAcmLine();
    CdcAcmLine(const CdcAcmLine &) = delete;
    CdcAcmLine &operator=(const CdcAcmLine &) = delete;

    /// What the device needs for each piece; zero at first.
    void setPace(std::chrono::microseconds perPiece);
    /// The device takes nothing any more, until it is released.
    void hold() {
        takeWhile([] { return false; });
    }
    void release() {
        takeWhile([] { return true; });
    }
    /// The device takes a piece only while this holds, which is asked on a thread of this object.
    void takeWhile(std::function<bool()> isTaking);
    /// Called each time that the program asks how much is under way, on its thread.
    void whenAsked(std::function<void()> call);

    /// The control modes of the line: those that another program has left, then those that this one has set.
    /// A pseudo-terminal knows neither parity nor handshake lines.
    std::atomic<tcflag_t> control{CS8 | CREAD};

    /// Pieces under way when the program closed or replaced its descriptor.
    std::size_t leftToClose() const;

    // What the program's system calls come to.
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
    int descriptor() const;
    bool hasGone() const;

    const std::string path;
    std::vector<int>
        descriptors; // the program's; guarded by a mutex of the source file, which finds the line by them

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
