#include "log.h"

#include <iostream>

namespace {

std::string printTag(const std::string &text) {
    return "[" + text + "] ";
}

void printLn(const std::string &text) {
    std::cout << text + "\n" << std::flush;
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
