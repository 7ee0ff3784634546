// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

namespace {

using tests::Started;

constexpr auto customfamily = "       CUSTOM";

/// A session whose table holds these entries, with the family CUSTOM picked.
struct WithEntries : Started {
    explicit WithEntries(std::initializer_list<custom::Entry> entries)
    {
        std::ranges::copy(entries, session.customtable.begin());
        pickfamily(customfamily);
    }
};

struct DataRow {
    const char* data; ///< hand, layout, rows 5 upward to 0
    const char* hand;
    int layout;
    const char* shown; ///< open notes of the visible rows, from row 5 upward
};

class CustomTuning : public testing::TestWithParam<DataRow> {};

TEST_P(CustomTuning, picked_isAppliedToTheBoard)
{
    const DataRow& row = GetParam();
    const WithEntries s({{"mine", row.data}});
    EXPECT_EQ(s.session.cbotuning.text, "mine");
    EXPECT_EQ(s.session.cboleft.text, row.hand) << row.data;
    EXPECT_EQ(s.session.cboleft.index, row.hand == std::string("Left Hand") ? 1 : 0) << row.data;
    EXPECT_EQ(s.session.fretboard.hand == instruments::Hand::left, row.hand == std::string("Left Hand")) << row.data;
    EXPECT_EQ(static_cast<int>(s.session.fretboard.layout), row.layout) << row.data;
    EXPECT_EQ(s.opennotes(), row.shown) << row.data;
    EXPECT_TRUE(s.desktop.told.empty());
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Data, CustomTuning, testing::Values(
    //      data        hand          layout
    DataRow{"0349279B", "Right Hand", 3, "E A D G A B"   },
    DataRow{"1349279B", "Left Hand",  3, "E A D G A B"   },
    DataRow{"9349279B", "Left Hand",  3, "E A D G A B"   },  // only "0" is right
    DataRow{"?349279B", "Left Hand",  3, "E A D G A B"   },
    DataRow{"0049279B", "Right Hand", 0, "E A D G A"     },  // a banjo: row 0 hidden
    DataRow{"0149279B", "Right Hand", 1, "E A D G"       },
    DataRow{"0249279B", "Right Hand", 2, "E A D G A"     },
    DataRow{"0749279B", "Right Hand", 3, "E A D G A B"   },  // anything else is six strings
    DataRow{"0X49279B", "Right Hand", 3, "E A D G A B"   },
    DataRow{"0?49279B", "Right Hand", 3, "E A D G A B"   },
    DataRow{"031368A0", "Right Hand", 3, "Db Eb Gb Ab Bb C"},
    DataRow{"01C702??", "Right Hand", 1, "? G C D"       },  // no digit of a note: an unused string
    DataRow{"03??????", "Right Hand", 3, "? ? ? ? ? ?"   },
    DataRow{"03ab4444", "Right Hand", 3, "? ? E E E E"   }), // digits are capitals
    [](const auto& row) { return std::to_string(row.index) + "_" + tests::rowname(row.param.data); });
// clang-format on

TEST(CustomTuning, everyRow_isFilledFromItsOpenNote)
{
    const WithEntries s({{"mine", "0149279?"}});
    EXPECT_EQ(s.rowtext(5), "E F Gb G Ab A Bb B C Db D Eb E F Gb G Ab A Bb B");
    EXPECT_EQ(s.rowtext(1), "A Bb B C Db D Eb E F Gb G Ab A Bb B C Db D Eb E"); // hidden, but filled
    EXPECT_EQ(s.rowtext(0), "? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ? ?");
}

TEST(CustomTuning, banjo_hasAShortFifthString)
{
    const WithEntries s({{"mine", "0072720?"}});
    EXPECT_EQ(s.rowtext(5), "G G G G G G Ab A Bb B C Db D Eb E F Gb G Ab A");
    EXPECT_FALSE(s.cell(5, 5).visible);
    EXPECT_TRUE(s.cell(5, 6).visible);
}

TEST(CustomTuning, currentMode_spellsItsNotes)
{
    WithEntries s({{"mine", "031368A0"}});
    s.pickmode(3);
    EXPECT_EQ(s.opennotes(), "C# D# F# G# A# C");
    s.picktuning("mine");
    EXPECT_EQ(s.opennotes(), "C# D# F# G# A# C");
}

TEST(CustomTuning, chordOnTheScreen_isMarkedOnItsStrings)
{
    WithEntries s({{"mine", "03000000"}, {"other", "03777777"}});
    s.enter("C E G");
    s.picktuning("other");
    EXPECT_EQ(s.rowmarks(0), "#...."
                             "..............."); // G open; its C is the fifth fret
    s.picktuning("mine");
    EXPECT_EQ(s.rowmarks(0), "#...+"
                             "...............");
}

TEST(CustomTuning, severalEntries_areListedInOrderAndTheFirstApplied)
{
    WithEntries s({{"one", "03444444"}, {"two", "13555555"}, {"one", "03777777"}});
    EXPECT_EQ(s.session.cbotuning.items, (std::vector<std::string>{"one", "two", "one"}));
    EXPECT_EQ(s.opennotes(), "E E E E E E");
    s.session.cbotuning_Click(1);
    EXPECT_EQ(s.opennotes(), "F F F F F F");
    EXPECT_EQ(s.session.cboleft.text, "Left Hand");
    s.session.cbotuning_Click(2); // found by its name, so the first of that name
    EXPECT_EQ(s.opennotes(), "E E E E E E");
    EXPECT_EQ(s.session.cboleft.text, "Right Hand");
}

TEST(CustomTuning, fullTable_listsAllPlaces)
{
    Started s;
    for (std::size_t i = 0; i < 51; ++i)
        s.session.customtable[i] = {"tuning " + std::to_string(i), i == 50 ? "03222222" : "03000000"};
    s.pickfamily(customfamily);
    ASSERT_EQ(s.session.cbotuning.items.size(), 51U);
    s.session.cbotuning_Click(50);
    EXPECT_EQ(s.session.cbotuning.text, "tuning 50");
    EXPECT_EQ(s.opennotes(), "D D D D D D");
}

TEST(CustomTuning, emptyTable_leavesAnEmptyBoxAndTheBoard)
{
    Started s;
    const auto cells = s.session.fretboard.cell;
    s.pickfamily(customfamily);
    EXPECT_TRUE(s.session.cbotuning.items.empty());
    EXPECT_EQ(s.session.cbotuning.text, "");
    EXPECT_EQ(s.session.cbotuning.index, -1);
    EXPECT_EQ(s.session.fretboard.cell, cells);
    EXPECT_TRUE(s.desktop.told.empty());
}

TEST(CustomTuning, entryThatIsGone_isReportedAndTheBoardStays)
{
    WithEntries s({{"kept", "03444444"}, {"gone", "10777777"}});
    s.session.customtable[1] = {};
    const auto cells = s.session.fretboard.cell;
    s.picktuning("gone");
    EXPECT_EQ(s.desktop.told, (std::vector<tests::Told>{{ui::Icon::critical, "Error, cannot find that stored item"}}));
    EXPECT_EQ(s.session.fretboard.cell, cells);
    EXPECT_EQ(s.session.cboleft.text, "Right Hand");
    EXPECT_EQ(s.session.fretboard.layout, instruments::StringLayout::sixstrings);
}

TEST(CustomTuning, tableEmptiedMeanwhile_isNotAnError)
{
    WithEntries s({{"gone", "03777777"}});
    s.session.customtable[0] = {};
    s.picktuning("gone");
    EXPECT_TRUE(s.desktop.told.empty());
    EXPECT_EQ(s.opennotes(), "G G G G G G");
}

TEST(CustomTuning, leftHandedCapo_standsAtItsMirroredPlace)
{
    Started s;
    s.session.customtable[0] = {"mine", "13492B47"};
    s.pickcapo("3rd fret  capo / bar");
    EXPECT_EQ(s.session.capomarker.barleft, 2640);
    s.pickfamily(customfamily);
    EXPECT_EQ(s.session.capomarker.barleft, 7320);
}

TEST(CustomTuning, nameOfABuiltInTuning_isTheUsersOwnUnderCustom)
{
    WithEntries s({{"Open E", "03000000"}});
    EXPECT_EQ(s.opennotes(), "C C C C C C");
    s.pickfamily("       GUITAR");
    s.picktuning("Open E");
    EXPECT_EQ(s.opennotes(), "E B E Ab B E");
}

} // namespace
