#pragma once

#include <chrono>
#include <cstddef>

/// One write to a terminal that comes back. A terminal whose device takes no more bytes would keep a plain
/// write waiting without end.
///
/// Waits for room for at most `timeout`, writes nothing without it, and cuts the write short where it still
/// waits when the time is over. What was not taken is lost. `stop` is a descriptor that ends the waiting as
/// soon as it can be read.
void writeWithin(std::chrono::milliseconds timeout, int terminal, int stop, const char *bytes,
                 std::size_t count);
