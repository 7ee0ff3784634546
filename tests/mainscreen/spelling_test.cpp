// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using mainscreen::BoldButton;
using mainscreen::Session;
using tests::Started;

using Selector = void (Session::*)();

struct SelectorRow {
    const char* name;
    Selector selector;
    bool sharp;
    bool flat;
    bool mix1;
    bool mix2;
    BoldButton bold;
    int mode;
};

// clang-format off
const std::vector<SelectorRow> selectors{
    //  procedure                         sharp  flat   mix1   mix2   bold                  mode
    { "dosharps", &Session::dosharps,     true,  false, false, false, BoldButton::cmdsharp, 3 },
    { "doflats",  &Session::doflats,      false, true,  false, false, BoldButton::cmdflat,  0 },
    { "domix1",   &Session::domix1,       false, false, true,  false, BoldButton::none,     1 },  // a mix has no button
    { "domix2",   &Session::domix2,       false, false, false, true,  BoldButton::none,     2 },
    { "doauto",   &Session::doauto,       false, false, false, false, BoldButton::cmdauto,  1 },  // until a chord decides
};
// clang-format on

class SpellingChoice : public testing::TestWithParam<SelectorRow> {};

TEST_P(SpellingChoice, afterEachOther_setsMarksButtonAndMode)
{
    const SelectorRow& row = GetParam();
    const bool isauto = row.name == std::string("doauto");
    for (const SelectorRow& before : selectors) {
        SCOPED_TRACE(std::string(before.name) + ", then " + row.name);
        Started s;
        (s.session.*before.selector)();
        const bool autowas = s.session.marks.mnuauto;
        (s.session.*row.selector)();
        EXPECT_EQ(s.session.marks.mnusharp, row.sharp);
        EXPECT_EQ(s.session.marks.mnuflat, row.flat);
        EXPECT_EQ(s.session.marks.mnumix1, row.mix1);
        EXPECT_EQ(s.session.marks.mnumix2, row.mix2);
        EXPECT_EQ(s.session.marks.mnuauto, isauto || (row.name == std::string("domix2") && autowas));
        EXPECT_EQ(s.session.marks.bold, row.bold);
        EXPECT_EQ(s.session.spelling.automatic, isauto);
        EXPECT_EQ(s.mode(), row.mode);
        EXPECT_FALSE(s.session.marks.mnuboth);
        EXPECT_EQ(s.session.keyboard.key[3].caption, tests::written(3, row.mode));
    }
}

INSTANTIATE_TEST_SUITE_P(Selectors, SpellingChoice, testing::ValuesIn(selectors),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(Mix2, chosenWhileAutoIsOn_keepsItsMarkButAutoActsNoMore)
{
    Started s;
    s.session.doauto();
    s.session.domix2();
    EXPECT_TRUE(s.session.marks.mnuauto);
    EXPECT_TRUE(s.session.marks.mnumix2);
    EXPECT_FALSE(s.session.spelling.automatic);
    s.enter("Db F Ab");
    EXPECT_EQ(s.session.cordtyp1, "major");
    EXPECT_EQ(s.mode(), 2);
    s.session.domix1(); // which does take the mark away
    EXPECT_FALSE(s.session.marks.mnuauto);
}

TEST(SpellingChoice, everything_isRespelled)
{
    Started s;
    s.session.key_Click(1);
    s.session.Crd_Click(7); // Db, E, G, Bb
    for (const int mode : {3, 0, 2, 1, 3}) {
        SCOPED_TRACE(mode);
        s.pickmode(mode);
        EXPECT_EQ(s.notes(), tests::rewritten("Db E G Bb", mode));
        EXPECT_EQ(s.session.note[6], tests::written(1, mode));
        EXPECT_EQ(s.session.note[7], "E");
        EXPECT_EQ(s.session.cordtyp2, tests::rewritten(", G, & Bb dim.", mode));
        EXPECT_EQ(s.session.cordtyp1, "diminished");
        for (int k = 0; k < 15; ++k)
            for (const core::ScaleRow& row : s.session.trans1)
                EXPECT_EQ(row.at(static_cast<std::size_t>(k)), tests::written(k % 12, mode)) << "member " << k;
        for (int k = 0; k <= 24; ++k)
            EXPECT_EQ(s.session.keyboard.key.at(static_cast<std::size_t>(k)).caption, tests::written(k % 12, mode));
        for (int fret = 0; fret < 20; ++fret)
            EXPECT_EQ(s.cell(0, fret).text, tests::written((4 + fret) % 12, mode)) << "fret " << fret;
    }
}

TEST(SpellingChoice, numbersAndColours_stay)
{
    Started s;
    s.enter("C Eb G Bb");
    const core::ChordSlots slots = s.session.chordslots;
    const std::string marks = s.rowmarks(1);
    s.pickmode(3);
    EXPECT_EQ(s.session.chordslots.notes, slots.notes);
    EXPECT_EQ(s.rowmarks(1), marks);
    s.session.guitarcolor(); // and it would be coloured the same now
    EXPECT_EQ(s.rowmarks(1), marks);
}

TEST(SpellingChoice, blankReadouts_stayBlank)
{
    Started s;
    EXPECT_EQ(s.session.note[0], "");
    s.pickmode(3);
    EXPECT_EQ(s.session.note[0], "");
    s.reset();
    s.pickmode(1);
    EXPECT_EQ(s.session.note[0], " ");
}

TEST(ShowBoth, toggled_captionsThePianoOnly)
{
    Started s;
    s.enter("C Eb G");
    for (const int mode : {0, 3, 1}) {
        s.pickmode(mode);
        s.session.mnuboth_Click();
        EXPECT_TRUE(s.session.marks.mnuboth);
        EXPECT_TRUE(s.session.spelling.both);
        EXPECT_EQ(s.session.keyboard.key[13].caption, "C# Db") << "mode " << mode;
        EXPECT_EQ(s.notes(), tests::rewritten("C Eb G", mode));
        EXPECT_EQ(s.session.trans1[0][1], tests::written(1, mode));
        s.session.mnuboth_Click();
        EXPECT_FALSE(s.session.marks.mnuboth);
        EXPECT_FALSE(s.session.spelling.both);
        EXPECT_EQ(s.session.keyboard.key[13].caption, tests::written(1, mode)) << "mode " << mode;
    }
}

TEST(ShowBoth, whileOn_outlastsOtherModes)
{
    Started s;
    s.session.mnuboth_Click();
    for (const SelectorRow& row : selectors) {
        (s.session.*row.selector)();
        EXPECT_EQ(s.session.keyboard.key[20].caption, "G# Ab") << row.name;
        EXPECT_TRUE(s.session.marks.mnuboth) << row.name;
    }
}

TEST(ShowBoth, itsMark_decidesWhatAClickDoes)
{
    Started s;
    s.session.spelling.both = true; // as loaded, before it was applied
    s.session.mnuboth_Click();
    EXPECT_TRUE(s.session.marks.mnuboth);
    EXPECT_TRUE(s.session.spelling.both);
}

TEST(DoFlatSetup, everySetting_isApplied)
{
    for (int mode = 0; mode < tests::modecount; ++mode)
        for (const bool automatic : {false, true})
            for (const bool both : {false, true}) {
                SCOPED_TRACE("mode " + std::to_string(mode) + (automatic ? ", automatic" : "") +
                             (both ? ", both" : ""));
                Started s;
                s.session.spelling = {static_cast<core::SpellingMode>(mode), automatic, both};
                s.session.doflatsetup();
                EXPECT_EQ(s.mode(), automatic ? 1 : mode);
                EXPECT_EQ(s.session.spelling.automatic, automatic);
                EXPECT_EQ(s.session.marks.mnuboth, both);
                EXPECT_EQ(s.session.marks.mnuauto, automatic);
                EXPECT_EQ(s.session.marks.mnuflat, !automatic && mode == 0);
                EXPECT_EQ(s.session.marks.mnumix1, !automatic && mode == 1);
                EXPECT_EQ(s.session.marks.mnumix2, !automatic && mode == 2);
                EXPECT_EQ(s.session.marks.mnusharp, !automatic && mode == 3);
                EXPECT_EQ(s.session.keyboard.key[15].caption, both ? "D# Eb" : tests::written(3, automatic ? 1 : mode));
                EXPECT_EQ(s.cell(0, 2).text, tests::written(6, automatic ? 1 : mode));
            }
}

} // namespace
