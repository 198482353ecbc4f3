#include "log.h"

#include <iostream>
#include <memory>

namespace {

void toStandardOutput(const std::string &line) {
    std::cout << line + "\n" << std::flush;
}

std::shared_ptr<const Log::Sink> &theSink() {
    static auto sink = std::make_shared<const Log::Sink>(toStandardOutput); // only atomic access
    return sink;
}

std::string printTag(const std::string &text) {
    return "[" + text + "] ";
}

void printLn(const std::string &line) {
    (*std::atomic_load(&theSink()))(line);
}

} // namespace

void Log::info(const std::string &tag, const std::string &msg) {
    printLn(printTag("INFO") + printTag(tag) + msg);
}

void Log::debug(const std::string &tag, const std::string &msg) {
    printLn(printTag("DEBUG") + printTag(tag) + msg);
}

void Log::error(const std::string &tag, const std::string &msg) {
    printLn(printTag("ERROR") + printTag(tag) + msg);
}

void Log::write(const std::string &tag, const std::string &msg) {
    printLn(printTag(tag) + msg);
}

void Log::setSink(Sink sink) {
    auto next = std::make_shared<const Sink>(sink ? std::move(sink) : toStandardOutput);
    std::atomic_store(&theSink(), std::move(next));
}
