// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/customtable.h"

#include "core/textcode.h"

#include <algorithm>

namespace custom {
namespace {

constexpr std::string_view digits{"0123456789AB"};
constexpr char unused = '?';

} // namespace

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
    const std::size_t at = core::skipcharacters(entry.data, 0, position);
    const bool ascii = at < entry.data.size() && static_cast<unsigned char>(entry.data[at]) < 0x80U;
    return ascii ? entry.data[at] : unused;
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
