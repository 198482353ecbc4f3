#include "recording.h"

#include <json11.hpp>
#include <stdexcept>

using json11::Json;

std::vector<Recorded> readRecording(const std::string &path) {
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error(path + ": no such recording, or it can't be read");
    std::vector<Recorded> recording;
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        const auto require = [&](bool holds, const char *what) {
            if (!holds)
                throw std::runtime_error(std::string(path)
                                             .append(", line ")
                                             .append(std::to_string(number))
                                             .append(": ")
                                             .append(what));
        };
        std::string error;
        const Json entry = Json::parse(line, error);
        require(error.empty() && entry.is_object(), "not a JSON object");
        const std::string &from = entry["from"].string_value();
        require(from == "device" || from == "program", "\"from\" is neither \"device\" nor \"program\"");
        require(entry["text"].is_string(), "no \"text\"");
        const double ms = entry["ms"].is_number() ? entry["ms"].number_value() : -1;
        require(ms >= 0 && ms < 1e12, "\"ms\" is no time");
        const std::chrono::milliseconds at(static_cast<long long>(ms));
        require(recording.empty() || at >= recording.back().at, "\"ms\" goes back in time");
        recording.push_back({at, from == "device", entry["text"].string_value()});
    }
    if (recording.empty())
        throw std::runtime_error(path + ": the recording is empty");
    return recording;
}

RecordingWriter::RecordingWriter(const std::string &filePath)
    : path(filePath)
    , file(filePath) {
    if (!file)
        throw std::runtime_error(path + ": can't be written");
}

void RecordingWriter::write(bool fromDevice, const std::string &text) {
    using namespace std::chrono;
    const auto ms = duration_cast<milliseconds>(steady_clock::now() - start).count();
    file << Json(Json::object{{"ms", static_cast<double>(ms)},
                              {"from", fromDevice ? "device" : "program"},
                              {"text", text}})
                .dump()
         << std::endl;
    if (!file)
        throw std::runtime_error(path + ": can't be written any further");
}
