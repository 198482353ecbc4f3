#pragma once

/// Declares the stand-in's value. Its namespace is inline and its own, so that a program may link the real
/// json11 as well.
namespace json11 {
inline namespace standin {
class Json;
}
} // namespace json11
