// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/settings.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace custom {
namespace {

/// Which columns a setting stands in; columns count from 0.
struct Columns {
    std::size_t first;
    std::size_t width;
    std::int16_t Settings::*setting; ///< nullptr: spare, written as 0
};

// clang-format off
//  first  width  setting
constexpr auto columns = std::to_array<Columns>({
  { 0,     1,     &Settings::hand },
  { 1,     1,     nullptr },
  { 2,     3,     &Settings::charactersperline },
  { 5,     2,     &Settings::spacing },
  { 7,     2,     &Settings::fontsize },
  { 9,     1,     &Settings::multiple },
  { 10,    1,     &Settings::alternate },
  { 11,    2,     &Settings::topmargin },
  { 13,    2,     &Settings::leftmargin },
  { 15,    1,     &Settings::mode },
  { 16,    1,     &Settings::both },
  { 17,    1,     &Settings::automatic },
  { 18,    2,     nullptr },
});
// clang-format on

constexpr bool fillthelength()
{
    std::size_t at = 0;
    for (const Columns& row : columns) {
        if (row.first != at)
            return false;
        at += row.width;
    }
    return at == settingslength;
}
static_assert(fillthelength());

std::string fitted(const std::string& text, std::size_t width)
{
    if (text.size() < width)
        return std::string(width - text.size(), ' ') + text;
    return text.substr(text.size() - width);
}

std::int16_t leadingnumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    if (text.starts_with('+'))
        text.remove_prefix(1);
    std::int16_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return std::max<std::int16_t>(number, 0);
}

} // namespace

std::string numbertext(int number)
{
    return (number < 0 ? "" : " ") + std::to_string(number);
}

std::string packsettings(const Settings& settings)
{
    std::string packed;
    for (const Columns& row : columns)
        packed += fitted(numbertext(row.setting ? settings.*row.setting : 0), row.width);
    return packed;
}

Settings unpacksettings(std::string_view packed)
{
    Settings settings;
    for (const Columns& row : columns)
        if (row.setting)
            settings.*row.setting = leadingnumber(packed.substr(row.first, row.width));
    settings.hand = packed.starts_with('0') ? 0 : 1;
    return settings;
}

} // namespace custom
