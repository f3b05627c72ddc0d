#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

namespace huebase::fuzz {

// A broken invariant is a finding: it is printed and the process aborts, so
// libFuzzer keeps the input as a crash reproducer.
[[noreturn]] inline void fail(const char* condition, const char* file, int line) {
    std::fprintf(stderr, "%s:%d: invariant broken: %s\n", file, line, condition);
    std::abort();
}

inline std::string_view bytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

// The input up to the first separator and the rest after it; without a
// separator the whole input is the first part and there is no second.
struct Split {
    std::string_view first;
    std::string_view second;
    bool separated = false;
};

inline Split splitAt(std::string_view input, char separator) {
    const std::size_t at = input.find(separator);
    if (at == std::string_view::npos)
        return {input, {}, false};
    return {input.substr(0, at), input.substr(at + 1), true};
}

} // namespace huebase::fuzz

#define FUZZ_CHECK(condition)                                                                      \
    ((condition) ? static_cast<void>(0) : ::huebase::fuzz::fail(#condition, __FILE__, __LINE__))
