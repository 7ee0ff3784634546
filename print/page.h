// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "print/pagesettings.h"

#include <string>

namespace print {

/// A part of a text that another takes the place of.
struct Edit {
    std::size_t at;      ///< byte at which it begins
    std::size_t removed; ///< bytes that go; those behind the text's end do not count
    std::string added;
};

/// The print page's screen: its text, and its boxes as they stand there. Boxes take any text that is typed.
struct Page {
    bool open = false;
    std::string text; ///< a line feed between lines
    std::string kept; ///< copy of the text from when the screen was left
    int fontsize = 8; ///< in which the text is shown, points
    std::string txtchar;
    std::string txtspace;
    std::string txtfont;
    std::string txtlines{"0"}; ///< line feeds of the text, as of the last count
    bool chkmult = false;
    bool chkalt = true;

    /// Fills boxes and check marks from the settings and shows the text in their size. A number 0 was never set: the
    /// one of a first start stands for it.
    void show(const PageSettings& settings);

    /// Counts the text's line feeds.
    void getlinenumber();

    /// Empties the text and its copy.
    void clear();
};

/// The boxes of the print dialog, in which any text can be typed.
struct MarginBoxes {
    std::string txttop;
    std::string txtleft;
};

/// Replaces the numbers that were never set, 0, by those of a first start: of the page, not of its margins.
void setpagedefaults(PageSettings& settings);

/// The same for the two margins.
void setmargindefaults(PageSettings& settings);

/// Stores the page's boxes and check marks. A number that its setting cannot hold (16 bits; 8 for the font size) is not
/// stored; false if there was one.
bool storeboxes(const Page& page, PageSettings& settings);

/// Points that suit a line of `characters` with a margin of `leftmargin` characters before it: the wider, the smaller.
int sizefor(int characters, int leftmargin);

/// What a button that raises or lowers a number does to it: which box and setting, and how far.
struct Step {
    int change; ///< +1 or -1
    int limit;  ///< beyond which it refuses
    int least;  ///< of the numbers that the setting holds
    int most;
};

// clang-format off
inline constexpr Step chardown  { -1,  40, -32768, 32767 };
inline constexpr Step charup    { +1, 145, -32768, 32767 };
inline constexpr Step spacedown { -1,   1, -32768, 32767 };
inline constexpr Step spaceup   { +1,  20, -32768, 32767 };
inline constexpr Step fontdown  { -1,   5,      0,   255 };
inline constexpr Step fontup    { +1,  14,      0,   255 };
inline constexpr Step margindown{ -1,   0,      0,   255 };
inline constexpr Step marginup  { +1,  30,      0,   255 };
// clang-format on

/// Moves the number in a box and its setting by a step. Beyond the limit nothing changes and the refusal is returned;
/// empty: it was moved. A typed number that the setting cannot hold counts as the nearest that it can.
std::string step(const Step& button, std::string& box, std::int16_t& setting);

/// The number in a margin's box as it is printed with: 0..30.
std::int16_t typedmargin(const std::string& box);

} // namespace print
