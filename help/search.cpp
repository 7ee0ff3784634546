// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/search.h"

#include "help/unicode.h"

#include <algorithm>
#include <array>
#include <utility>

namespace help {
namespace {

constexpr std::u16string_view endmark = u"#end#"; ///< stands for the search text after a search that found nothing

/// Capitals whose small letters lie equally far behind them.
struct Capitals {
    char16_t first;
    char16_t last;
    int distance;  ///< to the small letter
    int every = 1; ///< 2: a small letter follows each capital
};

// clang-format off
constexpr auto capitals = std::to_array<Capitals>({
//  first   last    distance every
  { u'A',   u'Z',   32 },
  { 0xC0,   0xD6,   32 },          // Latin-1
  { 0xD8,   0xDE,   32 },
  { 0x100,  0x12E,  1,       2 },  // Latin Extended-A
  { 0x132,  0x136,  1,       2 },
  { 0x139,  0x147,  1,       2 },
  { 0x14A,  0x176,  1,       2 },
  { 0x178,  0x178,  -121 },        // Y with two dots
  { 0x179,  0x17D,  1,       2 },
  { 0x386,  0x386,  38 },          // Greek, first the letters with an accent
  { 0x388,  0x38A,  37 },
  { 0x38C,  0x38C,  64 },
  { 0x38E,  0x38F,  63 },
  { 0x391,  0x3A1,  32 },
  { 0x3A3,  0x3AB,  32 },
  { 0x3C2,  0x3C2,  1 },           // the small sigma at the end of a word
  { 0x400,  0x40F,  80 },          // Cyrillic
  { 0x410,  0x42F,  32 },
  { 0x460,  0x480,  1,       2 },
  { 0x48A,  0x4BE,  1,       2 },
  { 0x4C0,  0x4C0,  15 },
  { 0x4C1,  0x4CD,  1,       2 },
  { 0x4D0,  0x52E,  1,       2 },
  { 0x1E00, 0x1E94, 1,       2 },  // Latin Extended Additional
  { 0x1E9E, 0x1E9E, -7615 },       // sharp s
  { 0x1EA0, 0x1EFE, 1,       2 },
});
// clang-format on
static_assert(std::ranges::is_sorted(capitals, {}, &Capitals::first));

std::u16string small(std::u16string_view text)
{
    std::u16string result(text);
    std::ranges::transform(result, result.begin(), smallletter);
    return result;
}

} // namespace

char16_t smallletter(char16_t unit)
{
    const auto* row = std::ranges::lower_bound(capitals, unit, {}, &Capitals::last);
    if (row == capitals.end() || unit < row->first || (unit - row->first) % row->every != 0)
        return unit;
    return static_cast<char16_t>(unit + row->distance);
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
