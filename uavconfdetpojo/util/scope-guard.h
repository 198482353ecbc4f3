#pragma once

#include <utility>

inline namespace kelvane {

/// Calls a function when its scope is left, also by an exception. The function must not throw.
template <typename Function>
class ScopeGuard {
public:
    explicit ScopeGuard(Function atEnd)
        : function(std::move(atEnd)) {}
    ~ScopeGuard() { function(); }
    ScopeGuard(const ScopeGuard &) = delete;
    ScopeGuard &operator=(const ScopeGuard &) = delete;

private:
    const Function function;
};

} // namespace kelvane
