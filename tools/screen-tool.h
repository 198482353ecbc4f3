#pragma once

#include "log.h"
#include "screen-engine.h"

#include <QGuiApplication>
#include <cstdio>
#include <exception>
#include <functional>

/// Runs a tool that plays with the screens and prints what it finds, without a display, without a graphics
/// card and without the program's own log, of which a broken message alone would be a page. The result of
/// `main`: 0 where the tool is content, 1 where it is not or throws, with one line on standard error.
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
