// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/golden.h"
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

// Pages of photographed chords, byte for byte as in the folder "golden".

namespace {

using tests::Started;

constexpr const char* guitar = "       GUITAR";
constexpr const char* bass = "         BASS";
constexpr const char* banjo = "        BANJO";
constexpr const char* open = "0 normal - open";

/// A chord on an instrument. Its type is read from the notes or, with a number, built from that chord button.
struct Chart {
    const char* name; ///< of the golden file
    const char* family;
    const char* tuning; ///< empty: the family's first
    const char* capo;
    const char* notes;
    int button; ///< -1: none
};

void lay(Started& s, const Chart& chart)
{
    s.pickfamily(chart.family);
    if (*chart.tuning != '\0')
        s.picktuning(chart.tuning);
    s.pickcapo(chart.capo);
    s.enter(chart.notes);
    if (chart.button >= 0)
        s.session.Crd_Click(chart.button);
}

/// The page with one snapshot for either hand, each with and without alternates.
std::string photographed(const Chart& chart)
{
    Started s;
    lay(s, chart);
    s.session.mnuguitar_Click();
    s.session.chkmult_Click(true);
    for (const int hand : {0, 1})
        for (const bool alternates : {false, true}) {
            s.session.cboleft_Click(hand);
            s.session.chkalt_Click(alternates);
            s.session.photochord();
        }
    return s.session.page.text;
}

class Charts : public testing::TestWithParam<Chart> {};

TEST_P(Charts, bothHands_areAsDrawn)
{
    tests::expectgolden(GetParam().name, photographed(GetParam()));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Pages, Charts, testing::Values(
    //    file                 family  tuning                     capo                     notes          button
    Chart{"sixstrings",        guitar, "",                        open,                    "C E G",        -1},
    Chart{"sixstringslong",    guitar, "",                        open,                    "C",             8}, // a long name
    Chart{"sixstringsblack",   guitar, "Open D tuning",           open,                    "F# A# C#",     -1}, // F# beside E
    Chart{"sixstringsninth",   guitar, "",                        "9th fret  capo / bar",  "A C# E",       -1}, // frets past 10
    Chart{"sixstringsfar",     guitar, "",                        "15th fret  capo / bar", "C E G Bb",     -1},
    Chart{"sixstringstwelfth", guitar, "",                        "12th fret  capo / bar", "Eb G Bb",      -1},
    Chart{"sixstringsall",     guitar, "",                        "show all notes",        "D F A",        -1},
    Chart{"sixstringsnone",    guitar, "",                        open,                    "C",            -1}, // one note, no chord
    Chart{"fivestrings",       guitar, "Vihuelita",               "3rd fret  capo / bar",  "D F# A",       -1},
    Chart{"fourstrings",       guitar, "Tenor Guitar 1 GDAE",     "1st fret  capo / bar",  "A C E",        -1},
    Chart{"fourstringsbass",   bass,   "",                        open,                    "E G B",        -1},
    Chart{"shortfifth",        banjo,  "",                        open,                    "G B D",        -1},
    Chart{"shortfifthcapo",    banjo,  "",                        "7th fret  capo / bar",  "G B D F",      -1}),
    [](const auto& row) { return std::string(row.param.name); });
// clang-format on

TEST(Keyboards, oneToALine_areAsDrawn)
{
    Started s;
    s.session.mnupiano_Click();
    s.session.chkmult_Click(true);
    s.session.photochord(); // no key
    s.enter("C E G");
    s.session.photochord(); // the clicked keys only
    s.session.Crd_Click(8);
    s.session.photochord(); // both octaves
    s.session.Text1_Click(7);
    s.session.photochord();
    tests::expectgolden("keyboards", s.session.page.text);
}

TEST(Keyboards, sideBySide_areAsDrawn)
{
    Started s;
    s.session.mnupiano_Click();
    s.enter("F#");
    for (const int button : {0, 1, 2, 3, 27}) {
        s.session.Crd_Click(button);
        s.session.photochord();
    }
    s.session.printfill();
    tests::expectgolden("keyboardssidebyside", s.session.page.text);
}

TEST(Charts, sideBySide_areAsDrawn)
{
    Started s;
    s.session.mnuguitar_Click();
    s.enter("E");
    for (int button = 0; button < 12; ++button) {
        s.session.Crd_Click(button);
        s.session.photochord();
    }
    s.session.printfill();
    tests::expectgolden("sidebyside", s.session.page.text);
}

TEST(Charts, bothModesOnOnePage_areAsDrawn)
{
    Started s;
    s.enter("G");
    s.session.Crd_Click(0);
    s.session.mnuguitar_Click();
    s.session.photochord();
    s.session.mnupiano_Click();
    s.session.photochord(); // beside the strings
    s.pickfamily(banjo);
    s.session.mnuguitar_Click();
    s.session.photochord(); // five strings beside six and a keyboard
    s.pickfamily(guitar);
    s.session.txtchar_Change("145");
    s.session.photochord();
    s.pickfamily(bass);
    s.session.photochord();
    s.session.mnupiano_Click();
    s.session.photochord();
    s.session.printfill();
    tests::expectgolden("bothmodes", s.session.page.text);
}

TEST(GoldenSwitch, on_fails)
{
    EXPECT_FALSE(tests::updatesgolden()) << "the golden files were written, not compared";
}

TEST(PadMirrored, lineOfTwoCharacters_readsForwardBeforeTheBlanks)
{
    print::ChordSnapshot shot;
    shot.line[0] = "ab";
    shot.line[1] = "a";
    EXPECT_TRUE(print::padmirrored(shot, 4));
    EXPECT_EQ(shot.line[0], "ab  ");
    EXPECT_EQ(shot.line[1], "   a");
}

} // namespace
