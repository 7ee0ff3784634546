// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <source_location>
#include <string>
#include <string_view>

/// What a reader is tried with, one input after the other. Returns 0; a fault is an abort.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size);

namespace fuzz {

inline void expect(bool holds, std::source_location here = std::source_location::current())
{
    if (holds)
        return;
    std::cerr << here.file_name() << ":" << here.line() << " does not hold\n";
    std::abort();
}

inline std::string text(const std::uint8_t* bytes, std::size_t size)
{
    return {bytes, bytes + size};
}

/// Takes what stands before the next record separator (1E) off an input, and the separator.
inline std::string_view takerecord(std::string_view& input)
{
    const std::size_t end = input.find('\x1E');
    const std::string_view record = input.substr(0, end);
    input.remove_prefix(end == std::string_view::npos ? input.size() : end + 1);
    return record;
}

} // namespace fuzz
