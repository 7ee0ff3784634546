// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <utility>

namespace {

namespace fs = std::filesystem;
using tests::Directory;
using tests::RecordingDesktop;
using tests::Started;

/// A session whose main screen was not loaded yet.
class BeforeStart : public testing::Test {
protected:
    RecordingDesktop desktop;
    const mainscreen::Session session{desktop};
};

TEST_F(BeforeStart, selectors_showTheirFirstTexts)
{
    EXPECT_EQ(session.cbopreset.text, "scroll to select ------>");
    EXPECT_EQ(session.cbotuning.text, "Standard Tuning");
    EXPECT_EQ(session.cboleft.text, "Right Hand");
    EXPECT_EQ(session.cboleft.items, (std::vector<std::string>{"Right Hand", "Left Hand"}));
    EXPECT_EQ(session.keyboard.key[1].caption, "C# Db");
    EXPECT_EQ(session.keyboard.key[22].caption, "A# Bb");
}

TEST_F(BeforeStart, neck_hasSixStringsInSightAndNoCapo)
{
    EXPECT_TRUE(std::ranges::all_of(session.fretboard.cell, &instruments::Cell::visible));
    EXPECT_TRUE(std::ranges::all_of(session.fretboard.linevisible, std::identity{}));
    EXPECT_EQ(session.fretboard.rowtop, instruments::layoutrow(instruments::StringLayout::sixstrings).tops);
    EXPECT_FALSE(session.capomarker.barvisible);
    EXPECT_FALSE(session.capomarker.followervisible);
    EXPECT_EQ(session.PositionFret, 0);
}

TEST_F(BeforeStart, camera_hasTakenNothing)
{
    const print::Camera& camera = session.camera;
    EXPECT_EQ(camera.mode, print::CameraMode::strings);
    EXPECT_FALSE(camera.modechosen);
    EXPECT_FALSE(camera.marks.mnuguitar);
    EXPECT_FALSE(camera.marks.mnupiano);
    EXPECT_FALSE(camera.pending());
    EXPECT_EQ(camera.SnapshotCount, 0);
    EXPECT_EQ(camera.PageBlockCount, 0);
    EXPECT_EQ(camera.BlockWidth, 0);
    EXPECT_EQ(camera.RowWidth, 0);
    EXPECT_EQ(camera.fingering.TopFret, 0);
}

TEST_F(BeforeStart, page_isClosedAndEmpty)
{
    EXPECT_FALSE(session.page.open);
    EXPECT_FALSE(session.page.chkmult);
    EXPECT_TRUE(session.page.chkalt);
    EXPECT_EQ(session.page.fontsize, 8);
    EXPECT_EQ(session.page.txtlines, "0");
    EXPECT_EQ(session.page.text, "");
    EXPECT_EQ(session.page.kept, "");
}

TEST_F(BeforeStart, spelling_isMarkedNowhere)
{
    EXPECT_FALSE(session.marks.mnusharp);
    EXPECT_FALSE(session.marks.mnuflat);
    EXPECT_FALSE(session.marks.mnumix1);
    EXPECT_FALSE(session.marks.mnumix2);
    EXPECT_FALSE(session.marks.mnuauto);
    EXPECT_FALSE(session.marks.mnuboth);
    EXPECT_EQ(session.marks.bold, mainscreen::BoldButton::none);
}

TEST_F(BeforeStart, editForm_isBlank)
{
    EXPECT_FALSE(session.editform.chkleft);
    EXPECT_FALSE(session.editform.guarded());
    EXPECT_EQ(session.editform.txtnum(), " 0");
    EXPECT_EQ(session.editform.txtinfo, "- blank -");
}

TEST_F(BeforeStart, nothing_isOpenAskedForOrChanged)
{
    EXPECT_FALSE(session.customshown);
    EXPECT_FALSE(session.arrangeshown);
    EXPECT_FALSE(session.customchanged);
    EXPECT_TRUE(session.mnutips);
    EXPECT_EQ(session.chordindex, 0);
    EXPECT_EQ(session.retune.row, 0);
    EXPECT_EQ(session.retune.note, 0);
}

TEST(Start, capoSelector_hasSeventeenItemsAndNoneChosen)
{
    const Started s;
    EXPECT_EQ(s.session.cbopreset.items,
              (std::vector<std::string>{"0 normal - open", "1st fret  capo / bar", "2nd fret  capo / bar",
                                        "3rd fret  capo / bar", "4th fret  capo / bar", "5th fret  capo / bar",
                                        "6th fret  capo / bar", "7th fret  capo / bar", "8th fret  capo / bar",
                                        "9th fret  capo / bar", "10th fret  capo / bar", "11th fret  capo / bar",
                                        "12th fret  capo / bar", "13th fret  capo / bar", "14th fret  capo / bar",
                                        "15th fret  capo / bar", "show all notes"}));
    EXPECT_EQ(s.session.cbopreset.text, "pull down menu --- >");
    EXPECT_EQ(s.session.cbopreset.index, -1);
    EXPECT_EQ(s.session.PositionFret, 0);
    EXPECT_FALSE(s.session.capomarker.barvisible);
}

TEST(Start, familySelector_hasNineItemsAndTheFirstChosen)
{
    const Started s;
    EXPECT_EQ(s.session.cbotype.items, (std::vector<std::string>{"       GUITAR", "         BASS", "      UKULELE",
                                                                 "        BANJO", "     MANDOLIN", "       VIOLIN",
                                                                 " STEEL, DOBRO", "    LUTE, OUD", "       CUSTOM"}));
    EXPECT_EQ(s.session.cbotype.text, "       GUITAR");
    EXPECT_EQ(s.session.cbotype.index, 0);
}

TEST(Start, firstTuning_isApplied)
{
    const Started s;
    EXPECT_EQ(s.session.cbotuning.text, "Standard 6 or 12 string");
    EXPECT_EQ(s.session.cbotuning.index, 0);
    EXPECT_EQ(s.session.cbotuning.items.size(), 38U);
    EXPECT_EQ(s.opennotes(), "E A D G B E");
    EXPECT_EQ(s.rowtext(0), "E F Gb G Ab A Bb B C Db D Eb E F Gb G Ab A Bb B");
    EXPECT_EQ(s.session.fretboard.layout, instruments::StringLayout::sixstrings);
    for (int row = 0; row < 6; ++row)
        EXPECT_EQ(s.rowmarks(row), "....................") << "row " << row;
}

TEST(Start, spelling_isMostlyFlatsSingleNamesAndNotAutomatic)
{
    const Started s;
    EXPECT_EQ(s.mode(), 0);
    EXPECT_FALSE(s.session.spelling.automatic);
    EXPECT_FALSE(s.session.spelling.both);
    EXPECT_TRUE(s.session.marks.mnuflat);
    EXPECT_EQ(s.session.marks.bold, mainscreen::BoldButton::cmdflat);
}

TEST(Start, piano_isAtRestWithSingleNames)
{
    const Started s;
    for (int k = 0; k <= 24; ++k) {
        const mainscreen::Key& key = s.session.keyboard.key.at(static_cast<std::size_t>(k));
        EXPECT_EQ(key.caption, tests::written(k % 12, 0)) << "key " << k;
        EXPECT_EQ(key.back, key.caption.size() == 1 ? 0xFFFFFFU : 0xE0E0E0U) << "key " << k;
    }
    EXPECT_EQ(s.session.keyboard.key[25].caption, "Reset");
    EXPECT_NE(s.session.keyboard.key[25].back, 0x808080U);
}

TEST(Start, readoutsAndChord_areEmpty)
{
    const Started s;
    for (const std::string& note : s.session.note)
        EXPECT_TRUE(core::isblank(note)) << note;
    EXPECT_TRUE(core::isblank(s.session.cordtyp1));
    EXPECT_TRUE(core::isblank(s.session.cordtyp2));
    EXPECT_EQ(s.session.chordslots.notes, (std::array<int, 6>{99, 99, 99, 99, 99, 99}));
}

TEST(Start, transposeRows_beginOnC)
{
    const Started s;
    for (const core::ScaleRow& row : s.session.trans1) {
        EXPECT_EQ(row.front(), "C");
        EXPECT_EQ(row[1], "Db");
        EXPECT_EQ(row.back(), "D");
    }
}

TEST(Start, page_hasItsDefaults)
{
    const Directory directory;
    RecordingDesktop desktop;
    mainscreen::Session session(desktop);
    session.pagesettings = {1, 2, 3, true, false, 4, 5}; // of an earlier start
    session.Form_Load();
    EXPECT_EQ(session.pagesettings.charactersperline, 72);
    EXPECT_EQ(session.pagesettings.spacing, 4);
    EXPECT_EQ(session.pagesettings.fontsize, 8);
    EXPECT_FALSE(session.pagesettings.multiple);
    EXPECT_TRUE(session.pagesettings.alternate);
    EXPECT_EQ(session.pagesettings.topmargin, 3);
    EXPECT_EQ(session.pagesettings.leftmargin, 6);
}

TEST(Start, nothing_isAskedSaidOrLeft)
{
    const Started s;
    EXPECT_TRUE(s.desktop.told.empty());
    EXPECT_TRUE(s.desktop.opened.empty());
    EXPECT_EQ(s.desktop.left, 0);
    EXPECT_FALSE(s.session.customchanged);
}

TEST(Start, savedFamily_showsItsFirstTuning)
{
    RecordingDesktop desktop;
    mainscreen::Session session(desktop);
    session.cbotype.settext("        BANJO");
    session.Form_Load();
    EXPECT_EQ(session.cbotype.index, 3);
    EXPECT_EQ(session.cbotuning.text, "5 string normal");
    EXPECT_EQ(session.fretboard.layout, instruments::StringLayout::shortfifth);
}

TEST(Start, savedCustomFamily_showsTheUsersFirstTuning)
{
    RecordingDesktop desktop;
    mainscreen::Session session(desktop);
    session.customtable[0] = {"mine", "1149270?"};
    session.cbotype.settext("       CUSTOM");
    session.Form_Load();
    EXPECT_EQ(session.cbotuning.text, "mine");
    EXPECT_EQ(session.cboleft.text, "Left Hand");
    EXPECT_EQ(session.fretboard.layout, instruments::StringLayout::fourstrings);
    EXPECT_EQ(session.fretboard.cell[5].text, "E");
}

TEST(Start, savedSpelling_isInForceOnEveryReadout)
{
    RecordingDesktop desktop;
    mainscreen::Session session(desktop);
    session.spelling = {core::SpellingMode::mostlysharps, false, true};
    session.Form_Load();
    EXPECT_TRUE(session.marks.mnusharp);
    EXPECT_TRUE(session.marks.mnuboth);
    EXPECT_EQ(session.keyboard.key[1].caption, "C# Db");
    EXPECT_EQ(session.trans1[0][1], "C#");
    EXPECT_EQ(session.fretboard.cell[12].text, "F#");
}

TEST(Start, everyTip_isAsListed)
{
    const Started s;
    const mainscreen::Tips& tips = s.session.tips;
    for (std::size_t i = 0; i < 120; ++i)
        EXPECT_EQ(tips.Text1[i], i <= 5 ? "custom string retune" : "guitar readout / entry") << i;
    for (std::size_t i = 0; i < 25; ++i)
        EXPECT_EQ(tips.key[i], "piano note entry / readout") << i;
    EXPECT_EQ(tips.key[25], "reset all");
    for (const std::string_view tip : tips.trans1)
        EXPECT_EQ(tip, "transpose readout");
    for (const std::string_view tip : tips.note)
        EXPECT_EQ(tip, "data readout / no entry");
    EXPECT_EQ(tips.Crd[0], "chords .. enter note first"); // has none of its own
    EXPECT_EQ(tips.Crd[3], "dominant 7th (adds flatted 7th note)");
    EXPECT_EQ(std::ranges::count_if(tips.Crd, [](auto tip) { return tip == "chords .. enter note first"; }), 16);
    // clang-format off
    for (const auto& [tip, text] : std::to_array<std::pair<std::string_view, const char*>>({
        { tips.optu,      "option adjust higher" },
        { tips.optd,      "option adjust lower" },
        { tips.cbopreset, "options - arrows adjust either to move up and down, or to select" },
        { tips.cbotype,   "instrument type" },
        { tips.cbotuning, "preset tunings" },
        { tips.cboleft,   "Right hand Left hand" },
        { tips.cordtyp1,  "chord readout" },
        { tips.cordtyp2,  "alternate chord readout (that can be made with the same notes)" },
        { tips.topl,      "left adjust" },
        { tips.topr,      "right adjust" },
        { tips.botl,      "left adjust" },
        { tips.botr,      "right adjust" },
        { tips.cordcam,   "Snapshot Chord Text" },
    }))
        EXPECT_EQ(tip, text);
    // clang-format on
}

TEST(StartDirectory, current_isWhereFilesAreLookedFor)
{
    const Directory directory;
    const Started s(directory);
    EXPECT_EQ(s.session.workdir, directory.path);
    EXPECT_EQ(s.session.startdir, directory.path);
    EXPECT_EQ(s.session.datafilename, "tonefret.txt");
    EXPECT_EQ(s.session.datapath, directory.path / "tonefret.txt");
    EXPECT_TRUE(fs::is_empty(directory.path)); // a start writes nothing
}

TEST(StartDirectory, removed_isNoneAndTheProgramStarts)
{
    const Directory directory;
    fs::remove(directory.path);
    Started s(directory);
    EXPECT_TRUE(s.session.workdir.empty());
    EXPECT_TRUE(s.session.startdir.empty());
    s.enter("C E G");
    EXPECT_EQ(s.session.cordtyp1, "major");
}

TEST(StartDirectory, unreadable_isNoHindrance)
{
    const Directory directory;
    fs::permissions(directory.path, fs::perms::none);
    Started s(directory);
    EXPECT_EQ(s.session.workdir, directory.path);
    s.enter("C E G");
    EXPECT_EQ(s.session.cordtyp1, "major");
}

TEST(Exit, twice_leavesOnce)
{
    Started s;
    s.session.tonefretexit();
    EXPECT_EQ(s.desktop.left, 1);
    s.session.tonefretexit(); // the close box of a screen that is being closed
    EXPECT_EQ(s.desktop.left, 1);
    EXPECT_TRUE(s.desktop.told.empty()); // no question, no message
}

} // namespace
