// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/customtable.h"

#include <algorithm>

namespace custom {

std::optional<std::size_t> findentry(const CustomTable& table, std::string_view name)
{
    const auto* found = std::ranges::find(table, name, &Entry::name);
    if (found == table.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - table.begin());
}

void datablankelim(CustomTable& table)
{
    const auto free = std::ranges::stable_partition(table, [](const Entry& entry) { return !entry.name.empty(); });
    std::ranges::fill(free, Entry{});
}

std::string getnotename(char digit, const core::NoteSpelling& spelling)
{
    constexpr std::string_view digits{"0123456789AB"};
    const auto pitch = digits.find(digit);
    if (pitch == std::string_view::npos)
        return "?";
    return spelling.nameof(static_cast<core::PitchClass>(pitch));
}

instruments::StringLayout layoutof(char digit)
{
    using enum instruments::StringLayout;
    switch (digit) {
    case '0':
        return shortfifth;
    case '1':
        return fourstrings;
    case '2':
        return fivestrings;
    default:
        return sixstrings;
    }
}

} // namespace custom
