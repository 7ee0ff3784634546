// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <ctime>

namespace tests {

/// The size of a file that is to be dealt with in under a second. A build that is not optimised gets a smaller one.
#ifdef __OPTIMIZE__
inline constexpr std::size_t hugesize = 100'000'000;
#else
inline constexpr std::size_t hugesize = 5'000'000;
#endif

/// Seconds that the processor spent on the test since this was made; other programs on the machine do not count.
class Stopwatch {
public:
    double seconds() const { return static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC; }

private:
    std::clock_t begin = std::clock();
};

} // namespace tests
