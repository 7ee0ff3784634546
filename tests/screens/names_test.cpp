// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/screens/screentest.h"

#include <QMenu>
#include <QMenuBar>

// Names, captions and tips are how screens, assistive technology and tests find a control: they are kept word for word.

namespace {

using ControlNames = tests::ScreenTest;
using tests::member;
using tests::str;

struct ControlRow {
    const char* name;
    const char* text; ///< nullptr: drawn, or shown by its state
    const char* tip;
};

// clang-format off
constexpr ControlRow controls[] = {
//  name               text                     tip
  { "key_25",          "Reset",                 "reset all" },
  { "cordtyp1",        "",                      "chord readout" },
  { "cordtyp2",        "",                      "alternate chord readout (that can be made with the same notes)" },
  { "optu",            "",                      "option adjust higher" },
  { "optd",            "",                      "option adjust lower" },
  { "cbopreset",       nullptr,                 "options - arrows adjust either to move up and down, or to select" },
  { "cbotype",         nullptr,                 "instrument type" },
  { "cbotuning",       nullptr,                 "preset tunings" },
  { "cboleft",         nullptr,                 "Right hand Left hand" },
  { "cmdsharp",        "Sharps",                "" },
  { "cmdflat",         "Flats",                 "" },
  { "cmdauto",         "Auto",                  "" },
  { "topl",            "",                      "left adjust" },
  { "topr",            "",                      "right adjust" },
  { "botl",            "",                      "left adjust" },
  { "botr",            "",                      "right adjust" },
  { "cordcam",         "chord cam",             "Snapshot Chord Text" },
  { "capobaradjust",   "Capo / Bar Adjust",     "" },
  { "instrumentstuning", "Instruments / Tuning", "" },
  { "family",          "Family",                "" },
  { "view",            "View",                  "" },
  { "lineup",          "line up the notes",     "" },
  { "also",            "Also:",                 "" },
  { "chord",           "Chord:",                "" },
  { "notes",           "Notes:",                "" },
  { "transpose",       "transpose",             "" },
  { "dataoutput",      "Data Output",           "" },
  { "chordinput",      "Chord Input",           "" },
};
// clang-format on

TEST_F(ControlNames, everycontrol_hasItsTextAndTip)
{
    for (const ControlRow& row : controls) {
        const auto* found = control(QString::fromLatin1(row.name));
        EXPECT_EQ(str(found->toolTip()), row.tip) << row.name;
        if (row.text) {
            EXPECT_EQ(str(found->property("text").toString()), row.text) << row.name;
        }
    }
}

struct ArrayRow {
    const char* name;
    int first;
    int count;
    const char* tip;
};

TEST_F(ControlNames, everymember_hasItsTip)
{
    // clang-format off
    constexpr ArrayRow rows[] = {
        { "key",    0, 25,  "piano note entry / readout" },
        { "Text1",  0, 6,   "custom string retune" },
        { "Text1",  6, 114, "guitar readout / entry" },
        { "note",   0, 8,   "data readout / no entry" },
        { "trans1", 0, 30,  "transpose readout" },
    };
    // clang-format on
    for (const ArrayRow& row : rows)
        for (int i = row.first; i < row.first + row.count; ++i)
            EXPECT_EQ(str(control(member(row.name, i))->toolTip()), row.tip) << row.name << " " << i;
}

struct ButtonRow {
    const char* caption;
    const char* tip;
};

// clang-format off
constexpr const char* commontip = "chords .. enter note first";
constexpr ButtonRow chordbuttons[] = {
  { "major",           commontip },
  { "minor",           commontip },
  { "major 6th",       commontip },
  { "7th",             "dominant 7th (adds flatted 7th note)" },
  { "minor 7th",       commontip },
  { "major 7th",       commontip },
  { "major 9th",       commontip },
  { "diminished",      "all notes in a diminished chord would yield the same chord as the base note" },
  { "major 11th",      commontip },
  { "+ ( +5, aug. )",  "augmented chord, also called \"+5\" or simply \"+\"" },
  { "minor 6th",       commontip },
  { "sus (sus4 no 3)", "sus 4 is also simply called \"sus\"; chord contains the 5th but not the 3rd" },
  { "mmaj7th",         "combination of a minor chord with a major 7th added" },
  { "-5",              "flatting the fifth note of the chord" },
  { "7 sus 4",         "combination dom 7th with sus 4th" },
  { "minor 9th",       commontip },
  { "minor 11th",      commontip },
  { "7-5",             "combination dom 7th with flatted 5th (-5)" },
  { "7 maj 5",         "Combination Dom 7th with + 5 (aug)" },
  { "6th add 9",       commontip },
  { "major 13th",      commontip },
  { "minor 13th",      commontip },
  { "sus 2",           commontip },
  { "5 (1st and 5th)", "just two notes - the primary and the fifth; also called \"no 3rd\"" },
  { "sus 4 (3 no 5)",  "contains the 3rd but not the 5th" },
  { "sus 4 (5 and 3)", "contains the sus 4th, plus both 3rd and 5th" },
  { "major 6th no 5",  commontip },
  { "minor 6th no 5",  commontip },
};
// clang-format on

TEST_F(ControlNames, chordbuttons_haveCaptionsAndTips)
{
    for (int i = 0; const ButtonRow& row : chordbuttons) {
        const auto* button = control(member("Crd", i++));
        EXPECT_EQ(str(button->property("text").toString()), row.caption);
        EXPECT_EQ(str(button->toolTip()), row.tip) << row.caption;
    }
}

struct MenuRow {
    const char* name;
    const char* caption;
    bool enabled;
};
using Menu = std::vector<MenuRow>;

// clang-format off
const std::vector<Menu> menus{
  { { "mnufile",       "File",                                       true  },
    { "mnuload",       "Load Custom Settings",                       true  },
    { "mnusave",       "Save Custom Settings",                       true  },
    { "mnuexit",       "Exit (Quit Program)",                        true  } },
  { { "mnuedit",       "Edit and Custom",                            true  },
    { "mnucustom",     "Edit Custom Settings",                       true  },
    { "mnuarrange",    "Arrange Custom Order",                       true  },
    { "mnutips",       "Toggle main tips",                           true  },
    { "mnu6",          "",                                           true  },
    { "mnucopychord",  "Copy Chord",                                 false },
    { "mnucopychart",  "Copy Last Chart",                            false } },
  { { "mnuflattype",   "Sharps and Flats",                           true  },
    { "mnusharp",      "Mostly Sharps",                              true  },
    { "mnuflat",       "Mostly Flats",                               true  },
    { "mnumix1",       "Mix1 (C#,Eb,F#,Ab,Bb)",                      true  },
    { "mnumix2",       "Mix2 (C#,Eb,F#,G#,Bb)",                      true  },
    { "mnuauto",       "Automatic Chord Sharps and Flats",           true  },
    { "mnu5",          "",                                           true  },
    { "mnuboth",       "Keyboard Itself - show both",                true  } },
  { { "mnuprint",      "Print Chords",                               true  },
    { "mnusnap",       "Snapshot Chord Text",                        true  },
    { "mnuviewprint",  "View Print Text",                            true  },
    { "mnuguitar",     "Stringed Instrument Chords - click to set",  true  },
    { "mnupiano",      "Keyboard Chords - click to set",             true  },
    { "mnuphotoclear", "Clear Photos and Reset Print Data",          true  },
    { "mnuprintchord", "Print the chords",                           true  } },
  { { "mnuhelp",       "Help",                                       true  },
    { "mnubhelp",      "Basic Help",                                 true  },
    { "mnuchelp",      "Help - Complete",                            true  },
    { "mnuabout",      "About",                                      true  } },
};
// clang-format on

void expectrow(const QAction* action, const MenuRow& row)
{
    EXPECT_EQ(str(action->objectName()), row.name);
    EXPECT_EQ(str(action->text()), row.caption) << row.name;
    EXPECT_EQ(action->isEnabled(), row.enabled) << row.name;
    EXPECT_EQ(action->isSeparator(), row.caption[0] == '\0') << row.name;
}

TEST_F(ControlNames, menus_standInOrderAndNesting)
{
    const QList<QAction*> titles = program.mainscreen.menuBar()->actions();
    ASSERT_EQ(titles.size(), static_cast<qsizetype>(menus.size()));
    for (std::size_t m = 0; m < menus.size(); ++m) {
        const QAction* title = titles.at(static_cast<qsizetype>(m));
        expectrow(title, menus[m].front());
        ASSERT_TRUE(title->menu());
        const QList<QAction*> items = title->menu()->actions();
        ASSERT_EQ(items.size() + 1, static_cast<qsizetype>(menus[m].size())) << menus[m].front().name;
        for (qsizetype i = 0; i < items.size(); ++i)
            expectrow(items.at(i), menus[m].at(static_cast<std::size_t>(i) + 1));
    }
}

TEST_F(ControlNames, everyname_isThereOnce)
{
    std::map<QString, int> counts;
    for (const QObject* each : program.mainscreen.findChildren<QObject*>())
        if (!each->objectName().isEmpty() && !each->objectName().startsWith(QLatin1String("qt_")))
            ++counts[each->objectName()];
    for (const auto& [name, count] : counts)
        EXPECT_EQ(count, 1) << str(name);
    EXPECT_EQ(str(program.mainscreen.objectName()), "tonefret");
}

TEST_F(ControlNames, tips_startChecked)
{
    EXPECT_TRUE(control<QAction>(QStringLiteral("mnutips"))->isChecked());
}

} // namespace
