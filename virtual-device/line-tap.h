#pragma once

#include "pty.h"
#include "recording.h"

#include <filesystem>

/// Sits between a real device and a program. It passes every byte on and records both directions. The program
/// opens the other end of a pseudo-terminal, by the link at `link`.
class LineTap {
public:
    /// Makes no link if `link` is empty. Throws std::runtime_error if the device does not open or `link`
    /// exists already.
    LineTap(const std::string &device, const std::filesystem::path &link, const std::string &recordingPath);
    ~LineTap();
    LineTap(const LineTap &) = delete;
    LineTap &operator=(const LineTap &) = delete;

    const std::string &terminal() const { return pty.terminal(); }
    /// Runs until the descriptor `stop` can be read, also if an end takes no bytes. Throws std::runtime_error
    /// when the device has gone or the recording can't be written.
    void run(int stop);

private:
    bool read(int from, bool fromDevice, std::string &pending);

    const std::string path;
    const int device;
    RecordingWriter recording;
    Pty pty;
};
