// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/keyboard.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

namespace {

using mainscreen::Keyboard;
using tests::spelling;

/// The 25 keys' colours: "w" and "b" white and black at rest, "#" dark grey, "+" mid grey.
std::string colours(const Keyboard& keyboard)
{
    std::string line;
    for (std::size_t k = 0; k < 25; ++k)
        switch (keyboard.key[k].back) {
        case 0xFFFFFF:
            line += 'w';
            break;
        case 0xE0E0E0:
            line += 'b';
            break;
        case 0x808080:
            line += '#';
            break;
        default:
            line += keyboard.key[k].back == 0xC0C0C0 ? '+' : '?';
        }
    return line;
}

constexpr auto atrest = "wbwbwwbwbwbwwbwbwwbwbwbww";

Keyboard captioned(int mode, bool both)
{
    core::NoteSpelling names = spelling(mode);
    names.both = both;
    Keyboard keyboard;
    keyboard.flatkey(names);
    return keyboard;
}

TEST(KeyReset, colouredKeys_areAtRestButForReset)
{
    Keyboard keyboard;
    for (mainscreen::Key& key : keyboard.key)
        key.back = core::darkgrey;
    keyboard.keyreset();
    EXPECT_EQ(colours(keyboard), atrest);
    EXPECT_EQ(keyboard.key[25].back, core::darkgrey);
}

struct UpdateRow {
    int mode;
    bool both;
    std::vector<std::string> notes;
    const char* colours;
};

TEST(KeyUpdate, notes_areMarkedInBothOctaves)
{
    // clang-format off
    for (const UpdateRow& row : std::vector<UpdateRow>{
        // mode both      notes                     C D EF G A BC D EF G A BC
        { 0, false, {"C", "E", "G"},               "#bwb#wb#bwbw+bwb+wb+bwbw+" },
        { 0, false, {"C"},                         "#bwbwwbwbwbw+bwbwwbwbwbw+" },  // not C# too
        { 0, true,  {"C"},                         "#bwbwwbwbwbw+bwbwwbwbwbw+" },  // nor "C# Db"
        { 0, true,  {"D", "E", "G", "A", "B"},     "wb#b#wb#b#b#wb+b+wb+b+b+w" },
        { 0, false, {"Db"},                        "w#wbwwbwbwbww+wbwwbwbwbww" },
        { 3, false, {"C#"},                        "w#wbwwbwbwbww+wbwwbwbwbww" },
        { 0, true,  {"Db"},                        "w#wbwwbwbwbww+wbwwbwbwbww" },  // either of both names
        { 3, true,  {"C#"},                        "w#wbwwbwbwbww+wbwwbwbwbww" },
        { 0, true,  {"db"},                        "w#wbwwbwbwbww+wbwwbwbwbww" },  // two letters: in any case
        { 0, false, {"b"},                         "wbwbwwbwbwbwwbwbwwbwbwbww" },  // one letter: exactly
        { 3, false, {"Db"},                        "wbwbwwbwbwbwwbwbwwbwbwbww" },  // the caption spells it otherwise
        { 0, true,  {"Bb", "F#"},                  "wbwbww#wbw#wwbwbww+wbw+ww" },
        { 0, true,  {"", " ", "?"},                "wbwbwwbwbwbwwbwbwwbwbwbww" },
        { 0, false, {},                            "wbwbwwbwbwbwwbwbwwbwbwbww" },
    }) {
        // clang-format on
        Keyboard keyboard = captioned(row.mode, row.both);
        for (mainscreen::Key& key : keyboard.key)
            key.back = core::darkgrey; // what was marked before is not any more
        keyboard.keyupdate(row.notes);
        const std::string shown = row.notes.empty() ? "" : row.notes.front();
        EXPECT_EQ(colours(keyboard), row.colours) << shown << " in mode " << row.mode << (row.both ? ", both" : "");
        EXPECT_EQ(keyboard.key[25].back, core::darkgrey);
    }
}

TEST(FlatKey, everyMode_captionsBothOctaves)
{
    for (int mode = 0; mode < tests::modecount; ++mode) {
        const Keyboard keyboard = captioned(mode, false);
        for (int k = 0; k < 25; ++k)
            EXPECT_EQ(keyboard.key.at(static_cast<std::size_t>(k)).caption, tests::written(k % 12, mode))
                << "key " << k << ", mode " << mode;
        EXPECT_EQ(keyboard.key[25].caption, "Reset");
    }
}

TEST(FlatKey, both_captionsBlackKeysWithTwoNamesInAnyMode)
{
    for (int mode = 0; mode < tests::modecount; ++mode) {
        const Keyboard keyboard = captioned(mode, true);
        std::string line;
        for (const mainscreen::Key& key : keyboard.key)
            line += key.caption + "|";
        EXPECT_EQ(line, "C|C# Db|D|D# Eb|E|F|F# Gb|G|G# Ab|A|A# Bb|B|"
                        "C|C# Db|D|D# Eb|E|F|F# Gb|G|G# Ab|A|A# Bb|B|C|Reset|")
            << "mode " << mode;
    }
}

} // namespace
