#pragma once

#include "pty.h"
#include "recording.h"

#include <filesystem>

/// Stands between a real device and a program: passes every byte on and records both directions. The program
/// opens the other end of a pseudo-terminal that is linked at `link`.
class LineTap {
public:
    /// Throws std::runtime_error where the device does not open or something is at `link` already; without a
    /// link where it is empty.
    LineTap(const std::string &device, const std::filesystem::path &link, const std::string &recordingPath);
    ~LineTap();
    LineTap(const LineTap &) = delete;
    LineTap &operator=(const LineTap &) = delete;

    const std::string &terminal() const { return pty.terminal(); }
    /// Until `stop` can be read, whether either end takes bytes or not. Throws std::runtime_error when the
    /// device has gone or the recording can't go on.
    void run(int stop);

private:
    bool read(int from, bool fromDevice, std::string &pending);

    const std::string path;
    const int device;
    RecordingWriter recording;
    Pty pty;
};
