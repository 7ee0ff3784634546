// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/snapshot.h"

#include <string_view>

namespace print {
namespace {

// clang-format off
constexpr std::array<std::string_view, 7> keyboard{
    "",
    "_______________________________",
    "|| | ||| | | ||| | ||| | | || |",
    "||_|_|||_|_|_|||_|_|||_|_|_|| |",
    "| | | | | | | | | | | | | | | |",
    "|_|_|_|_|_|_|_|_|_|_|_|_|_|_|_|",
    " C D E F G A B|C D E F G A B C ",
};
// clang-format on
constexpr std::string_view columns{"234567890123456789212345678931"};
static_assert(keyboard[2].size() == keyboardwidth && columns.size() == keyboardwidth - 1);

/// Where a key's mark stands.
struct KeyPlace {
    int column; ///< from 1
    std::size_t line;
};

constexpr std::size_t blackkeys = 2;
constexpr std::size_t whitekeys = 4;

// clang-format off
constexpr std::array<KeyPlace, pianokeys> places{{
//  column  line         key
  {  2,     whitekeys }, // C
  {  3,     blackkeys },
  {  4,     whitekeys }, // D
  {  5,     blackkeys },
  {  6,     whitekeys }, // E
  {  8,     whitekeys }, // F
  {  9,     blackkeys },
  { 10,     whitekeys }, // G
  { 11,     blackkeys },
  { 12,     whitekeys }, // A
  { 13,     blackkeys },
  { 14,     whitekeys }, // B
  { 16,     whitekeys }, // C
  { 17,     blackkeys },
  { 18,     whitekeys }, // D
  { 19,     blackkeys },
  { 20,     whitekeys }, // E
  { 22,     whitekeys }, // F
  { 23,     blackkeys },
  { 24,     whitekeys }, // G
  { 25,     blackkeys },
  { 26,     whitekeys }, // A
  { 27,     blackkeys },
  { 28,     whitekeys }, // B
  { 30,     whitekeys }, // C
}};
// clang-format on
static_assert([] {
    for (int k = 0; k < pianokeys; ++k)
        if ((places.at(static_cast<std::size_t>(k)).line == blackkeys) != core::isblack(k))
            return false;
    return true;
}());

void loadpiano(ChordSnapshot& shot, int k)
{
    const KeyPlace& place = places.at(static_cast<std::size_t>(k));
    shot.line.at(place.line).at(static_cast<std::size_t>(place.column - 1)) = k < core::octave ? '*' : '+';
}

} // namespace

void pianoprint(ChordSnapshot& shot, const std::array<bool, pianokeys>& pressed)
{
    for (std::size_t i = 0; i < keyboard.size(); ++i)
        shot.line.at(i) = keyboard.at(i);
    shot.line[columnsline] = columns;
    for (int k = 0; k < pianokeys; ++k)
        if (pressed.at(static_cast<std::size_t>(k)))
            loadpiano(shot, k);
}

} // namespace print
