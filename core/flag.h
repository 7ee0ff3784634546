// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

namespace core {

/// A yes or no that the data file keeps as a digit. Only 1 is yes; another digit of an edited file means no and stays
/// what it is until the program sets the flag.
struct Flag {
    std::int16_t number = 0;

    constexpr Flag() = default;
    constexpr Flag(bool on) : number(on ? 1 : 0) {}
    constexpr operator bool() const { return number == 1; }
};

/// The flag that was kept as this number.
constexpr Flag keptflag(std::int16_t number)
{
    Flag flag;
    flag.number = number;
    return flag;
}

} // namespace core
