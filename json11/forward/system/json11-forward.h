#pragma once

/// Declares the value of the system's json11.
namespace json11 {
class Json;
}
