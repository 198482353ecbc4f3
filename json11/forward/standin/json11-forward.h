#pragma once

/// Declares the stand-in's value. It has an inline namespace, so that a program may link the real json11,
/// too.
namespace json11 {
inline namespace standin {
class Json;
}
} // namespace json11
