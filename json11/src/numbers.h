#pragma once

#include <cstddef>
#include <string>

/// Reads and writes numbers. The process's locale has no influence.
namespace json11 {
inline namespace standin {
namespace internal {

/// `text` must be a number in JSON's grammar.
double toNumber(const char *text, std::size_t length);

/// Appends a number as `Json::dump` writes it.
void appendNumber(std::string &out, double value);

/// Returns the text with every number in a plain form. The reader refuses some numbers for their length or
/// exponent although they are in range. A number beyond the range stays as it is.
std::string withPlainNumbers(const std::string &in);

} // namespace internal
} // namespace standin
} // namespace json11
