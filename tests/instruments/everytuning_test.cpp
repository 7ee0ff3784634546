// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/instruments/cataloguerows.h"
#include "tests/support/colours.h"
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <set>

// All tunings, both hands and all capo choices against a second computation that goes by pitches and frets.

namespace {

using tests::CatalogueRow;
using tests::dark;
using tests::mid;
using tests::rest;
using tests::Started;
using tests::Strings;

constexpr int showall = 16; ///< the last capo choice

/// The frets of one row that a capo choice examines, both included.
struct Frets {
    int first;
    int last;
};

Frets examined(int choice, int row)
{
    switch (choice) {
    case showall:
        return {0, 19};
    case 12:
        return row == 5 ? Frets{11, 16} : Frets{12, 16};
    case 13:
        return row == 5 ? Frets{12, 17} : Frets{13, 17};
    case 14:
        return row == 0 ? Frets{14, 19} : Frets{14, 18};
    default:
        return {choice, choice + 4};
    }
}

/// A string as it must stand on the board.
struct Course {
    int open = 0;
    bool visible = true;
    bool shortened = false; ///< begins at the fifth fret

    int pitch(int fret) const { return (open + (shortened ? std::max(0, fret - 5) : fret)) % 12; }
    bool shows(int fret) const { return visible && !(shortened && fret >= 1 && fret <= 5); }
};
using Courses = std::array<Course, 6>;

const CatalogueRow& firstofitsfamily(const CatalogueRow& tuning)
{
    return *std::ranges::find(tests::cataloguerows, std::string_view(tuning.family), &CatalogueRow::family);
}

/// Rows 0 to 5 after the family's first tuning and then this one were picked.
/// A hidden row keeps what stood there: the notes of the family's first tuning, or of the guitar that all begin with.
Courses coursesof(const CatalogueRow& tuning)
{
    Courses courses;
    for (const CatalogueRow* written : {&tests::cataloguerows.front(), &firstofitsfamily(tuning), &tuning}) {
        for (Course& course : courses)
            course.visible = false;
        std::size_t row = 5;
        for (const int open : tests::pitches(written->notes))
            courses.at(row--) = {open};
    }
    courses.at(5).shortened = tuning.strings == Strings::banjo;
    return courses;
}

/// The colours of one row by fret.
std::array<core::Colour, 20> coloursof(const Course& course, int row, int choice, const std::vector<int>& chord)
{
    std::array<core::Colour, 20> colours;
    colours.fill(rest);
    const std::size_t looked = choice == showall ? std::min<std::size_t>(4, chord.size()) : chord.size();
    const std::set<int> wanted(chord.begin(), chord.begin() + static_cast<std::ptrdiff_t>(looked));
    core::Colour paint = dark;
    for (int fret = examined(choice, row).first; fret <= examined(choice, row).last; ++fret)
        if (wanted.contains(course.pitch(fret))) {
            colours.at(static_cast<std::size_t>(fret)) = paint;
            if (choice != showall)
                paint = mid;
        }
    return colours;
}

std::string tuningname(const CatalogueRow& row)
{
    return std::string(row.family) + ", " + row.name;
}

void pick(Started& s, const CatalogueRow& row)
{
    s.pickfamily(row.family);
    s.picktuning(row.name);
}

TEST(EveryTuning, itsCells_nameTheNotesOfItsStrings)
{
    int mode = 0;
    for (const CatalogueRow& tuning : tests::cataloguerows) {
        Started s;
        s.pickmode(mode = (mode + 1) % tests::modecount);
        pick(s, tuning);
        const Courses courses = coursesof(tuning);
        for (int row = 0; row < 6; ++row)
            for (int fret = 0; fret < 20; ++fret) {
                const Course& course = courses.at(static_cast<std::size_t>(row));
                ASSERT_EQ(s.cell(row, fret).text, tests::written(course.pitch(fret), mode))
                    << tuningname(tuning) << ", row " << row << ", fret " << fret;
                ASSERT_EQ(s.cell(row, fret).visible, course.shows(fret))
                    << tuningname(tuning) << ", row " << row << ", fret " << fret;
            }
    }
}

TEST(EveryTuning, itsRowsAndLines_standAtTheirHeights)
{
    for (const CatalogueRow& tuning : tests::cataloguerows) {
        Started s;
        pick(s, tuning);
        const int strings = static_cast<int>(tests::words(tuning.notes).size());
        const int raised = tuning.strings == Strings::banjo || strings == 6 ? 0 : 240;
        for (int row = 6 - strings; row < 6; ++row) {
            const int top = s.session.fretboard.rowtop.at(static_cast<std::size_t>(row));
            EXPECT_EQ(top, 5640 + 240 * row - raised) << tuningname(tuning) << ", row " << row;
            EXPECT_TRUE(s.session.fretboard.linevisible.at(static_cast<std::size_t>((top - 5640) / 240)))
                << tuningname(tuning) << ", row " << row;
        }
        EXPECT_EQ(std::ranges::count(s.session.fretboard.linevisible, true), strings) << tuningname(tuning);
    }
}

/// Chords of two to six notes, to be shown one after another.
constexpr auto chords = std::to_array<const char*>({"C E G", "Db F", "C D E F G Bb", "E G# B D", "A C Eb Gb F#"});

TEST(EveryTuning, eitherHandAndEveryCapo_marksTheChord)
{
    std::size_t turn = 0;
    for (const CatalogueRow& tuning : tests::cataloguerows)
        for (const int hand : {0, 1}) {
            const char* chord = chords[turn++ % chords.size()];
            Started s;
            s.pickmode(static_cast<int>(turn % tests::modecount));
            s.enter(chord);
            pick(s, tuning);
            s.session.cboleft_Click(hand);
            const Courses courses = coursesof(tuning);
            const std::vector<int> notes = tests::pitches(s.notes());
            for (int choice = 0; choice <= showall; ++choice) {
                s.session.cbopreset_Click(choice);
                ASSERT_EQ(s.session.capomarker.barvisible, choice > 0 && choice < showall);
                for (int row = 0; row < 6; ++row) {
                    const auto colours = coloursof(courses.at(static_cast<std::size_t>(row)), row, choice, notes);
                    for (int fret = 0; fret < 20; ++fret)
                        ASSERT_EQ(s.cell(row, fret).back, colours.at(static_cast<std::size_t>(fret)))
                            << tuningname(tuning) << ", " << chord << ", capo choice " << choice << ", row " << row
                            << ", fret " << fret;
                }
            }
        }
}

TEST(EveryTuning, otherHand_keepsTextsAndColours)
{
    for (const CatalogueRow& tuning : tests::cataloguerows) {
        Started s;
        pick(s, tuning);
        s.enter("C E G");
        const auto cells = s.session.fretboard.cell;
        s.session.cboleft_Click(1);
        EXPECT_EQ(s.session.fretboard.hand, instruments::Hand::left);
        EXPECT_EQ(s.session.fretboard.cell, cells) << tuningname(tuning);
        s.session.cboleft_Click(0);
        EXPECT_EQ(s.session.fretboard.hand, instruments::Hand::right);
        EXPECT_EQ(s.session.fretboard.cell, cells) << tuningname(tuning);
    }
}

TEST(EveryTuning, itsFamily_listsItInItsPlace)
{
    std::string family;
    std::size_t place = 0;
    Started s;
    for (const CatalogueRow& tuning : tests::cataloguerows) {
        if (family != tuning.family) {
            family = tuning.family;
            place = 0;
            s.pickfamily(family);
            EXPECT_EQ(s.session.cbotuning.text, tuning.name) << family;
            EXPECT_EQ(s.session.cbotuning.index, 0) << family;
        }
        ASSERT_LT(place, s.session.cbotuning.items.size()) << tuningname(tuning);
        EXPECT_EQ(s.session.cbotuning.items[place++], tuning.name) << family;
    }
}

} // namespace
