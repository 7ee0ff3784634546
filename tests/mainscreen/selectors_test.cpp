// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <array>

namespace {

using tests::Started;

constexpr int last = 16; ///< "show all notes"

TEST(Selector, chosenItem_isShown)
{
    mainscreen::Selector selector{{"a", "b", "b"}, "none of them"};
    EXPECT_EQ(selector.index, -1);
    selector.choose(2);
    EXPECT_EQ(selector.text, "b");
    EXPECT_EQ(selector.index, 2);
}

TEST(Selector, textSet_choosesItsFirstItem)
{
    mainscreen::Selector selector{{"a", "b", "b"}, "", 0};
    selector.settext("b");
    EXPECT_EQ(selector.index, 1);
    selector.settext("c");
    EXPECT_EQ(selector.index, -1);
    EXPECT_EQ(selector.text, "c");
}

TEST(Arrows, right_walkAllItemsAndWrap)
{
    Started s;
    for (int item = 0; item <= last; ++item) {
        s.session.optu_Click(); // from none chosen to the first
        EXPECT_EQ(s.session.cbopreset.index, item);
        EXPECT_EQ(s.session.cbopreset.text, s.session.cbopreset.items.at(static_cast<std::size_t>(item)));
    }
    s.session.optu_Click();
    EXPECT_EQ(s.session.cbopreset.index, 0);
    s.session.optd_Click();
    EXPECT_EQ(s.session.cbopreset.index, last);
    s.session.optd_Click();
    EXPECT_EQ(s.session.cbopreset.index, last - 1);
}

TEST(Arrows, downFromNoneChosen_chooseTheLast)
{
    Started s;
    s.session.optd_Click();
    EXPECT_EQ(s.session.cbopreset.index, last);
    EXPECT_EQ(s.session.cbopreset.text, "show all notes");
}

TEST(Arrows, leftHanded_areExchanged)
{
    Started s;
    s.session.cboleft_Click(1);
    s.session.cbopreset_Click(5);
    s.session.optu_Click();
    EXPECT_EQ(s.session.cbopreset.index, 4);
    s.session.optd_Click();
    s.session.optd_Click();
    EXPECT_EQ(s.session.cbopreset.index, 6);
    s.session.cbopreset_Click(0);
    s.session.optu_Click();
    EXPECT_EQ(s.session.cbopreset.index, last);
    s.session.optd_Click();
    EXPECT_EQ(s.session.cbopreset.index, 0);
}

TEST(Steps, eitherHand_keepTheirDirection)
{
    for (const int hand : {0, 1}) {
        Started s;
        s.session.cboleft_Click(hand);
        s.session.presetstepup();
        EXPECT_EQ(s.session.cbopreset.index, 0);
        s.session.presetstepup();
        EXPECT_EQ(s.session.cbopreset.index, 1);
        s.session.presetstepdown();
        s.session.presetstepdown();
        EXPECT_EQ(s.session.cbopreset.index, last);
        s.session.presetstepup();
        EXPECT_EQ(s.session.cbopreset.index, 0);
    }
}

TEST(Steps, everyStep_coloursTheBoardAndMovesTheCapo)
{
    Started s;
    s.enter("C E G");
    s.session.presetstepup();
    EXPECT_EQ(s.rowmarks(0), "#..+................");
    s.session.presetstepup();
    EXPECT_EQ(s.rowmarks(0), "...#................");
    EXPECT_EQ(s.session.capomarker.barleft, 1680);
    EXPECT_TRUE(s.session.capomarker.barvisible);
    s.session.presetstepdown();
    EXPECT_EQ(s.rowmarks(0), "#..+................");
    EXPECT_FALSE(s.session.capomarker.barvisible);
}

TEST(Hand, chosen_mirrorsTheCapo)
{
    Started s;
    s.pickcapo("3rd fret  capo / bar");
    EXPECT_EQ(s.session.capomarker.barleft, 2640);
    EXPECT_EQ(s.session.capomarker.followerleft, 2760);
    s.session.cboleft_Click(1);
    EXPECT_EQ(s.session.fretboard.hand, instruments::Hand::left);
    EXPECT_EQ(s.session.capomarker.barleft, 7320);
    EXPECT_EQ(s.session.capomarker.followerleft, 7440);
    s.session.cboleft_Click(0);
    EXPECT_EQ(s.session.fretboard.hand, instruments::Hand::right);
    EXPECT_EQ(s.session.capomarker.barleft, 2640);
}

TEST(ShownItem, pickedAgain_actsAgain)
{
    Started s;
    s.session.Text1_Click(0);
    s.session.cmdret_Click(1);
    ASSERT_EQ(s.opennotes(), "E A D G B C");
    s.session.cbotuning_Click(s.session.cbotuning.index); // takes the retune back
    EXPECT_EQ(s.opennotes(), "E A D G B E");

    s.picktuning("Open G tuning");
    s.session.cbotype_Click(0); // the family's first tuning again
    EXPECT_EQ(s.opennotes(), "E A D G B E");
    EXPECT_EQ(s.session.cbotuning.index, 0);

    for (auto pick : {&mainscreen::Session::cbopreset_Click, &mainscreen::Session::cboleft_Click}) {
        (s.session.*pick)(0);
        s.session.fretboard.cell[119].back = core::darkgrey;
        (s.session.*pick)(0);
        EXPECT_EQ(s.session.fretboard.cell[119].back, core::white);
    }
}

TEST(Family, everyFamily_listsItsTuningsAndAppliesTheFirst)
{
    // clang-format off
    struct { const char* family; std::size_t tunings; const char* first; const char* notes; } const rows[] = {
        { "       GUITAR", 38, "Standard 6 or 12 string", "E A D G B E" },
        { "         BASS", 10, "4 string normal EADG",    "E A D G"     },
        { "      UKULELE",  8, "Standard Tuning",         "G C E A"     },
        { "        BANJO", 14, "5 string normal",         "G D G B D"   },
        { "     MANDOLIN", 30, "Standard Tuning",         "G D A E"     },
        { "       VIOLIN", 14, "Violin (or Fiddle)",      "G D A E"     },
        { " STEEL, DOBRO", 12, "Open G",                  "G B D G B D" },
        { "    LUTE, OUD", 10, "Lute new  GCFADG",        "G C F A D G" },
    };
    // clang-format on
    Started s;
    for (const auto& row : rows) {
        s.pickfamily(row.family);
        EXPECT_EQ(s.session.cbotuning.items.size(), row.tunings) << row.family;
        EXPECT_EQ(s.session.cbotuning.text, row.first) << row.family;
        EXPECT_EQ(s.session.cbotuning.index, 0) << row.family;
        EXPECT_EQ(s.opennotes(), row.notes) << row.family;
    }
}

TEST(Family, textThatIsNone_changesNothing)
{
    for (const char* text : {"GUITAR", "", "        banjo", "        BANJO "}) {
        Started s;
        s.picktuning("Open E");
        s.session.cbotype.settext(text);
        s.session.presets();
        s.session.gettuning();
        EXPECT_EQ(s.session.cbotuning.text, "Open E") << '"' << text << '"';
        EXPECT_EQ(s.session.cbotuning.items.size(), 38U) << '"' << text << '"';
        EXPECT_EQ(s.opennotes(), "E B E Ab B E") << '"' << text << '"';
    }
}

TEST(Tuning, nameThatTheFamilyLacks_changesNothing)
{
    for (const char* text : {"Standard Tuning", "open e", ""}) {
        Started s;
        s.picktuning("Open E");
        s.session.fretboard.cell[119].back = core::midgrey;
        s.session.cbotuning.settext(text);
        s.session.gettuning();
        EXPECT_EQ(s.opennotes(), "E B E Ab B E") << text;
        EXPECT_EQ(s.session.fretboard.cell[119].back, core::midgrey) << text;
        EXPECT_TRUE(s.desktop.told.empty()) << text;
    }
}

TEST(Tuning, oneNameInTwoFamilies_isTheFamilysOwn)
{
    Started s;
    s.picktuning("G 6th");
    EXPECT_EQ(s.opennotes(), "D G D G B E");
    s.pickfamily(" STEEL, DOBRO");
    s.picktuning("G 6th");
    EXPECT_EQ(s.opennotes(), "G B E G B D");
}

TEST(Tuning, picked_marksTheChordOnItsStrings)
{
    Started s;
    s.enter("G B D");
    s.picktuning("Open G tuning");
    for (const int row : {0, 1, 2, 3, 4, 5})
        EXPECT_EQ(s.rowmarks(row).front(), '#') << "row " << row;
}

TEST(Tuning, spelledWithFlats_followsTheMode)
{
    Started s;
    s.pickfamily("        BANJO");
    s.picktuning("5 string D Major");
    EXPECT_EQ(s.opennotes(), "Gb D Gb A D"); // the short string's too
    s.pickmode(3);
    EXPECT_EQ(s.opennotes(), "F# D F# A D");
}

} // namespace
