// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/page.h"

#include "print/camera.h"
#include "print/typednumber.h"

#include <algorithm>
#include <array>

namespace print {
namespace {

constexpr PageSettings defaults{};

std::int16_t ordefault(std::int16_t number, std::int16_t defaultnumber)
{
    return number == 0 ? defaultnumber : number;
}

bool store(const std::string& box, int least, int most, std::int16_t& setting)
{
    const int number = wholenumber(box);
    if (number < least || number > most)
        return false;
    setting = static_cast<std::int16_t>(number);
    return true;
}

/// From this many characters on, margin included, the text gets this size.
struct SizeRow {
    int above;
    int points;
};

// clang-format off
constexpr std::array<SizeRow, 5> sizes{{
//  above  points
  { 150,    5 },
  { 106,    7 },
  {  94,    9 },
  {  83,   10 },
  {  75,   11 },
}};
// clang-format on
constexpr int largest = 12;

} // namespace

void Page::show(const PageSettings& settings)
{
    PageSettings shown = settings;
    setpagedefaults(shown);
    txtchar = std::to_string(shown.charactersperline);
    txtspace = std::to_string(shown.spacing);
    txtfont = std::to_string(shown.fontsize);
    chkmult = shown.multiple;
    chkalt = shown.alternate;
    fontsize = shown.fontsize;
}

void Page::getlinenumber()
{
    const auto linefeeds = std::ranges::count(text, '\n');
    txtlines = std::to_string(std::min<std::ptrdiff_t>(linefeeds, countlimit));
}

void Page::clear()
{
    text.clear();
    getlinenumber();
    kept.clear();
}

void setpagedefaults(PageSettings& settings)
{
    settings.charactersperline = ordefault(settings.charactersperline, defaults.charactersperline);
    settings.spacing = ordefault(settings.spacing, defaults.spacing);
    settings.fontsize = ordefault(settings.fontsize, defaults.fontsize);
}

void setmargindefaults(PageSettings& settings)
{
    settings.topmargin = ordefault(settings.topmargin, defaults.topmargin);
    settings.leftmargin = ordefault(settings.leftmargin, defaults.leftmargin);
}

bool storeboxes(const Page& page, PageSettings& settings)
{
    const std::array stored{
        store(page.txtchar, charup.least, charup.most, settings.charactersperline),
        store(page.txtspace, spaceup.least, spaceup.most, settings.spacing),
        store(page.txtfont, fontup.least, fontup.most, settings.fontsize),
    };
    settings.multiple = page.chkmult;
    settings.alternate = page.chkalt;
    return std::ranges::all_of(stored, [](bool held) { return held; });
}

int sizefor(int characters, int leftmargin)
{
    const auto* found =
        std::ranges::find_if(sizes, [&](const SizeRow& row) { return characters > row.above - leftmargin; });
    return found == sizes.end() ? largest : found->points;
}

std::string step(const Step& button, std::string& box, std::int16_t& setting)
{
    const int number = std::clamp(wholenumber(box), button.least, button.most);
    const bool down = button.change < 0;
    if (down ? number <= button.limit : number >= button.limit)
        return (down ? "sorry, cannot go lower than " : "sorry, cannot go higher than ") + std::to_string(button.limit);
    setting = static_cast<std::int16_t>(number + button.change);
    box = std::to_string(setting);
    return {};
}

std::int16_t typedmargin(const std::string& box)
{
    return static_cast<std::int16_t>(std::clamp(wholenumber(box), margindown.limit, marginup.limit));
}

} // namespace print
