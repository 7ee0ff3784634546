// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <ranges>
#include <string_view>

namespace instruments {

/// An instrument family; its number is its place in the family list.
enum class Family : std::uint8_t { guitar, bass, ukulele, banjo, mandolin, violin, steel, lute, custom };

/// The families as they are listed and kept in the data file: right-aligned in 13 characters. The blanks count.
inline constexpr std::array<std::string_view, 9> familylist{
    "       GUITAR", "         BASS", "      UKULELE", "        BANJO", "     MANDOLIN",
    "       VIOLIN", " STEEL, DOBRO", "    LUTE, OUD", "       CUSTOM",
};
static_assert(std::ranges::all_of(familylist, [](std::string_view text) { return text.size() == 13; }));

/// The family of a listed text, compared blanks and all; nothing for any other text.
constexpr std::optional<Family> familyof(std::string_view text)
{
    const auto* found = std::ranges::find(familylist, text);
    if (found == familylist.end())
        return std::nullopt;
    return static_cast<Family>(found - familylist.begin());
}

/// The listed text that a name differs from by its blanks at most; the first one for a name of no family.
constexpr std::string_view listedfamily(std::string_view name)
{
    constexpr auto isletter = [](char c) { return c != ' '; };
    const auto same = [&](std::string_view text) {
        return std::ranges::equal(text | std::views::filter(isletter), name | std::views::filter(isletter));
    };
    const auto* found = std::ranges::find_if(familylist, same);
    return found == familylist.end() ? familylist.front() : *found;
}

constexpr std::string_view textof(Family family)
{
    return familylist.at(static_cast<std::size_t>(family));
}

} // namespace instruments
