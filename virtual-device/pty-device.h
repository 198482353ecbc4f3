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

/// A directory like the one in which the system links serial devices, gone with the object.
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

/// A device on a pseudo-terminal that is linked under a serial directory. On a thread of its own it answers
/// requests, keeps settings, streams scans while told to and while somebody has the port open, and records
/// every byte it gets. All operations may be called from any thread.
class PtyDevice {
public:
    enum class Manner {
        OBLIGING,
        DEAF,     // reads nothing from the line, as a device that has hung
        SILENT,   // hears everything, says nothing
        REFUSING, // FAIL to every change of a setting and to the mask
        NOISY,    // bytes that belong to no object in front of each message
        CUT,      // messages end in the middle
        SWEEPING  // while it streams, takes bytes from the line only between two scans
    };
    static constexpr std::chrono::seconds DEADLINE{10};

    explicit PtyDevice(const SerialDirectory &directory, ProtoEnum proto = ProtoEnum::K7,
                       const std::string &linkName = "usb-detector");
    /// With its link at this path, or none where it is empty. Throws std::runtime_error where something is
    /// there already or the link can't be made.
    explicit PtyDevice(std::filesystem::path link, ProtoEnum proto = ProtoEnum::K7);
    ~PtyDevice();
    PtyDevice(const PtyDevice &) = delete;
    PtyDevice &operator=(const PtyDevice &) = delete;

    /// The terminal and its link go; whoever has it open reads nothing any more. It stops scanning and keeps
    /// its settings.
    void unplug();
    void plugIn();

    void setManner(Manner manner);
    /// Answers leave so much later than asked for.
    void setAnswerDelay(std::chrono::milliseconds delay);
    /// Zero for scans on demand only. A scan that comes due while one is still leaving is left out.
    void setScanPeriod(std::chrono::milliseconds period);
    /// Streams scans without having been told to.
    void startStreaming();
    void setBattery(int percent);
    /// What it hears from the next scan on. Called on the device's thread.
    void setScene(Scene scene);
    /// What it answers when asked for this type, by key.
    void setSettings(const std::string &type, const json11::Json::object &values);

    void sendText(const std::string &text);
    /// As the device writes its messages, with a line end.
    void send(const std::shared_ptr<Msg> &msg);
    void sendScan(const std::vector<std::shared_ptr<FreqScanResult>> &results, bool mask = false);

    std::string received() const;
    /// The objects received, with the line ends as they were sent, and the values of their keys "type".
    std::vector<std::string> requests() const;
    std::vector<std::string> requestTypes() const;
    void clearRecord();
    /// The settings of a message type as the device has them now, by key.
    json11::Json::object settingsOf(const std::string &type) const;
    bool isScanning() const;
    /// Since it was made, whether somebody read them or not.
    std::size_t scansSent() const;

    /// These are false when the deadline has passed.
    bool waitForRequests(std::size_t count) const;
    bool waitForOpen(bool open) const;

    /// These are for a device that is plugged in.
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
    std::string leaving;                                    // due, and not taken by the terminal yet
    std::string record;
    std::size_t framed = 0; // bytes of the record that are done with
    std::vector<std::string> requestTexts;
    std::vector<std::string> types;
};
