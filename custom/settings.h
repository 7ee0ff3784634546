// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace custom {

inline constexpr std::size_t settingslength = 20;

/// The settings that the data file keeps, as numbers.
struct Settings {
    std::int16_t hand = 0; ///< 0 right, 1 left
    std::int16_t charactersperline = 0;
    std::int16_t spacing = 0;
    std::int16_t fontsize = 0;
    std::int16_t multiple = 0;
    std::int16_t alternate = 0;
    std::int16_t topmargin = 0;
    std::int16_t leftmargin = 0;
    std::int16_t mode = 0; ///< of the spelling
    std::int16_t both = 0;
    std::int16_t automatic = 0;

    bool operator==(const Settings&) const = default;
};

/// The settings in 20 characters, each in its columns and right-aligned; what is too wide loses its leading digits.
std::string packsettings(const Settings& settings);

/// Reads 20 characters of one byte each. A number is its leading digits, blanks before them skipped; without digits, or
/// below zero, it is 0. The hand is left unless its character is "0".
Settings unpacksettings(std::string_view packed);

/// A number's text as the program writes numbers: a blank or a minus sign, then its digits.
std::string numbertext(int number);

} // namespace custom
