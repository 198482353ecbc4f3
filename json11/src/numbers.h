#pragma once

#include <cstddef>
#include <string>

/// How numbers are read and written. Nothing here asks for the process's locale.
namespace json11 {
inline namespace standin {
namespace internal {

/// `text` is a number by JSON's grammar.
double toNumber(const char *text, std::size_t length);

/// As `Json::dump` writes numbers.
void appendNumber(std::string &out, double value);

/// The text with every number written anew: the reader refuses some by their length or exponent that are in
/// range after all. A number beyond the range stays.
std::string withPlainNumbers(const std::string &in);

} // namespace internal
} // namespace standin
} // namespace json11
