// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace help {

inline constexpr char32_t replacement = 0xFFFD; ///< stands for what is no character

constexpr bool ishighsurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
constexpr bool islowsurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}
/// The character that two surrogates stand for.
constexpr char32_t joined(char32_t high, char32_t low)
{
    return 0x10000 + ((high - 0xD800) << 10U) + (low - 0xDC00);
}

/// Takes the first character off a UTF-8 text that is not empty; a malformed byte is taken as U+FFFD.
char32_t takecharacter(std::string_view& text);

/// Appends a character; what is none as U+FFFD.
void appendutf8(std::string& text, char32_t character);
void appendutf16(std::u16string& text, char32_t character);

/// The units of a UTF-8 text. Malformed bytes become U+FFFD.
std::u16string toutf16(std::string_view text);

} // namespace help
