#pragma once

#include "freq-scan-result.h"
#include "msg/msg.h"
#include "pty.h"
#include "scenes.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <filesystem>
#include <json11.hpp>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

/// A directory like the one in which the system links serial devices. It is removed with the object.
class SerialDirectory {
public:
    SerialDirectory();
    ~SerialDirectory();
    SerialDirectory(const SerialDirectory &) = delete;
    SerialDirectory &operator=(const SerialDirectory &) = delete;

    const std::filesystem::path &path() const { return directory; }

private:
    std::filesystem::path directory;
};

/// The virtual detector: a device on a pseudo-terminal. On a thread of its own it answers requests, keeps
/// settings, and records every byte that it gets. It streams scans between SCAN on and SCAN off, while the
/// port is open. All operations may be called from any thread.
class PtyDevice {
public:
    enum class Manner {
        OBLIGING,
        DEAF,     // reads nothing from the line, as if it had crashed
        SILENT,   // reads everything, sends nothing
        REFUSING, // answers FAIL to every change of a setting and to the mask
        NOISY,    // sends meaningless bytes before each message
        CUT,      // sends messages that end in the middle
        SWEEPING  // while it streams, reads only between two scans
    };
    static constexpr std::chrono::seconds DEADLINE{10};

    explicit PtyDevice(const SerialDirectory &directory, ProtoEnum proto = ProtoEnum::K7,
                       const std::string &linkName = "usb-detector");
    /// `link` is the path of the link to the terminal; empty for no link. Throws std::runtime_error if the
    /// path exists already or the link can't be made.
    explicit PtyDevice(std::filesystem::path link, ProtoEnum proto = ProtoEnum::K7);
    ~PtyDevice();
    PtyDevice(const PtyDevice &) = delete;
    PtyDevice &operator=(const PtyDevice &) = delete;

    /// Removes the terminal and its link. A program that has the terminal open reads nothing any more. The
    /// device stops scanning and keeps its settings.
    void unplug();
    void plugIn();

    void setManner(Manner manner);
    /// The time from a request to its answer.
    void setAnswerDelay(std::chrono::milliseconds delay);
    /// The time between two scans; 0 means no scans by itself. A scan is left out if the one before is still
    /// leaving.
    void setScanPeriod(std::chrono::milliseconds period);
    /// Streams scans without a SCAN message.
    void startStreaming();
    void setBattery(int percent);
    /// The scene of the following scans. It is called on the device's thread.
    void setScene(Scene scene);
    /// The settings of a message type, by key, with which the device answers.
    void setSettings(const std::string &type, const json11::Json::object &values);

    void sendText(const std::string &text);
    /// Sends a message as a device writes it, with a line end.
    void send(const std::shared_ptr<Msg> &msg);
    void sendScan(const std::vector<std::shared_ptr<FreqScanResult>> &results, bool mask = false);

    std::string received() const;
    /// The objects received, with the line ends as they were sent, and the values of their keys "type".
    std::vector<std::string> requests() const;
    std::vector<std::string> requestTypes() const;
    void clearRecord();
    /// The current settings of a message type, by key.
    json11::Json::object settingsOf(const std::string &type) const;
    bool isScanning() const;
    /// Number of scans since it was made, read or not.
    std::size_t scansSent() const;

    /// These return false if the deadline has passed.
    bool waitForRequests(std::size_t count) const;
    bool waitForOpen(bool open) const;

    /// Call these only while the device is plugged in.
    std::string terminal() const { return pty->terminal(); }
    termios lineSettings() const { return pty->lineSettings(); }
    void setLineSettings(const termios &line) { pty->setLineSettings(line); }

private:
    using Clock = std::chrono::steady_clock;

    void run();
    void setOpen(bool isOpen);
    void readBytes();
    void takeRequests();
    void write();
    bool isStreaming() const;
    bool isListening() const;
    int msUntilDue() const;
    json11::Json answer(const std::string &type, const json11::Json &request);
    void queue(const std::string &message, std::chrono::milliseconds delay);
    std::shared_ptr<Msg> nextScan();
    void wake();

    const ProtoEnum proto;
    const std::filesystem::path link;
    const int wakeEvent;
    std::optional<Pty> pty;
    std::atomic<bool> plugged{false};
    std::thread thread;

    mutable std::mutex mutex; // guards everything below
    mutable std::condition_variable changed;
    std::map<std::string, json11::Json::object> settings; // by message type
    Manner manner = Manner::OBLIGING;
    std::chrono::milliseconds answerDelay{0};
    std::chrono::milliseconds scanPeriod{100};
    Clock::time_point scanDue;
    bool open = false;
    bool scanning = false;
    bool mask = false;
    std::size_t scans = 0;
    Scene scene = wanderingPeaks;
    std::multimap<Clock::time_point, std::string> outgoing; // by the time they are due
    std::string leaving;                                    // due, but not yet taken by the terminal
    std::string record;
    std::size_t framed = 0; // bytes of the record that have been read
    std::vector<std::string> requestTexts;
    std::vector<std::string> types;
};
