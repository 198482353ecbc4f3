#pragma once

#include "log.h"
#include "screen-engine.h"

#include <QGuiApplication>
#include <cstdio>
#include <exception>
#include <functional>

/// Runs a tool that uses the screens and prints its findings. It needs no display and no graphics card. The
/// program's own log is dropped, because a single broken message would fill a page of it. Returns the result
/// of `main`: 0 if the tool returns true, 1 if it returns false or throws. An exception also makes one line
/// on standard error.
inline int runScreenTool(const char *name, int argc, char **argv, const std::function<bool()> &tool) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    registerTypes();
    const QGuiApplication app(argc, argv);
    Log::setSink([](const std::string &) {});
    try {
        return tool() ? 0 : 1;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "%s: %s\n", name, error.what());
        return 1;
    }
}
