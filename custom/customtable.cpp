// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/customtable.h"

#include <algorithm>

namespace custom {
namespace {

constexpr std::string_view digits{"0123456789AB"};
constexpr char unused = '?';

/// Whether a byte goes on with the UTF-8 character that an earlier one began.
bool goeson(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

} // namespace

std::optional<std::size_t> findentry(const CustomTable& table, std::string_view name)
{
    const auto* found = std::ranges::find(table, name, &Entry::name);
    if (found == table.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - table.begin());
}

std::string getnotename(char digit, const core::NoteSpelling& spelling)
{
    const auto pitch = digits.find(digit);
    if (pitch == std::string_view::npos)
        return {unused};
    return spelling.nameof(static_cast<core::PitchClass>(pitch));
}

char getnotedata(std::string_view name)
{
    for (std::size_t pitch = 0; pitch < digits.size(); ++pitch)
        if (name == core::sharpnames[pitch] || name == core::flatnames[pitch])
            return digits[pitch];
    return unused;
}

char dataat(const Entry& entry, std::size_t position)
{
    for (const char byte : entry.data)
        if (!goeson(byte) && position-- == 0)
            return static_cast<unsigned char>(byte) < 0x80U ? byte : unused;
    return unused;
}

void datablankelim(CustomTable& table)
{
    auto* const end =
        std::stable_partition(table.begin(), table.end(), [](const Entry& entry) { return !entry.name.empty(); });
    std::fill(end, table.end(), Entry{});
}

std::size_t indexnew(const CustomTable& table)
{
    return findentry(table, "").value_or(placecount);
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
