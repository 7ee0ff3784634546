// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/search.h"

#include "help/unicode.h"

#include <algorithm>
#include <utility>

namespace help {
namespace {

constexpr std::u16string_view endmark = u"#end#"; ///< stands for the search text after a search that found nothing

bool within(char16_t unit, char16_t first, char16_t last)
{
    return unit >= first && unit <= last;
}

char16_t shifted(char16_t unit, int distance)
{
    return static_cast<char16_t>(unit + distance);
}

/// Blocks in which capital and small letter stand side by side, the capital on the even place.
bool evencapitals(char16_t unit)
{
    return within(unit, 0x100, 0x137) || within(unit, 0x14A, 0x177) || within(unit, 0x1E00, 0x1E95) ||
           within(unit, 0x460, 0x481) || within(unit, 0x48A, 0x4BF) || within(unit, 0x4D0, 0x52F);
}

bool oddcapitals(char16_t unit)
{
    return within(unit, 0x139, 0x148) || within(unit, 0x179, 0x17E);
}

std::u16string small(std::u16string_view text)
{
    std::u16string result(text);
    std::ranges::transform(result, result.begin(), smallletter);
    return result;
}

} // namespace

char16_t smallletter(char16_t unit)
{
    if (within(unit, u'A', u'Z') || (within(unit, 0xC0, 0xDE) && unit != 0xD7) ||
        (within(unit, 0x391, 0x3A9) && unit != 0x3A2) || within(unit, 0x410, 0x42F))
        return shifted(unit, 32);
    if (within(unit, 0x400, 0x40F))
        return shifted(unit, 80);
    if (unit == 0x178)
        return 0xFF;
    const bool even = unit % 2 == 0;
    return (evencapitals(unit) && even && unit != 0x130) || (oddcapitals(unit) && !even) ? shifted(unit, 1) : unit;
}

void Search::loaddata(std::u16string text)
{
    document = std::move(text);
    folded = small(document);
    searchtext.clear();
    position.reset();
}

std::optional<Match> Search::findtopic(std::string_view heading)
{
    position.reset();
    searchtext = toutf16(heading);
    return locate(document, searchtext);
}

std::optional<Match> Search::findcommand(std::u16string_view text)
{
    if (text.empty())
        return std::nullopt;
    if (searchtext == endmark)
        position.reset();
    searchtext = text;
    return locate(folded, small(text));
}

std::optional<Match> Search::locate(std::u16string_view searched, std::u16string_view wanted)
{
    const std::size_t from = position && *position <= searched.size() ? *position : 0;
    const std::size_t found = wanted.empty() ? std::u16string_view::npos : searched.find(wanted, from);
    if (found == std::u16string_view::npos) {
        searchtext = endmark;
        return std::nullopt;
    }
    position = found + wanted.size();
    return Match{found, *position};
}

} // namespace help
