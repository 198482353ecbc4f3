#pragma once

#include <chrono>
#include <fstream>
#include <string>
#include <vector>

/// An entry of a recording of a line. The file has a JSON object on each line: {"from": "device" or
/// "program", "ms": time since the start, "text": the bytes of one read}.
struct Recorded {
    std::chrono::milliseconds at{0};
    bool fromDevice = false;
    std::string text;
};

/// Throws std::runtime_error that names the file, the line and what is wrong.
std::vector<Recorded> readRecording(const std::string &path);

/// Writes a recording. Each entry is in the file when `write` returns. Throws std::runtime_error if the file
/// can't be made or the disk is full.
class RecordingWriter {
public:
    explicit RecordingWriter(const std::string &path);
    void write(bool fromDevice, const std::string &text);

private:
    const std::string path;
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
    std::ofstream file;
};
