// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/core/chordreading.h"
#include "tests/mainscreen/model.h"
#include "tests/support/names.h"

#include <algorithm>
#include <set>

namespace tests {
namespace {

bool black(int k)
{
    return std::set<int>{1, 3, 6, 8, 10}.contains(k % 12);
}

/// What a chord button puts into the slots: intervals, then root and text of the alternate.
struct ButtonRow {
    const char* name;
    std::vector<int> intervals;
    int alternateroot = 0;
    const char* alternate = ""; ///< "dim" and "aug": a list of notes
};

// clang-format off
const std::vector<ButtonRow> buttons{
    /*  0 */ { "major",            {0, 4, 7} },
    /*  1 */ { "minor",            {0, 3, 7},            3, "major 6th no 5" },
    /*  2 */ { "major 6th",        {0, 4, 7, 9},         9, "minor 7th" },
    /*  3 */ { "7th",              {0, 4, 7, 10} },
    /*  4 */ { "minor 7th",        {0, 3, 7, 10},        3, "major 6th" },
    /*  5 */ { "major 7th",        {0, 4, 7, 11},        9, "minor 9th" },
    /*  6 */ { "major 9th",        {0, 2, 4, 7, 10} },
    /*  7 */ { "diminished",       {0, 3, 6, 9},         3, "dim" },
    /*  8 */ { "major 11th",       {0, 2, 4, 5, 7, 10} },
    /*  9 */ { "+ ( +5, aug. )",   {0, 4, 8},            4, "aug" },
    /* 10 */ { "minor 6th",        {0, 3, 7, 9},         5, "major 9th" },
    /* 11 */ { "sus (sus4 no 3)",  {0, 5, 7},            5, "sus 2" },
    /* 12 */ { "mmaj7th",          {0, 3, 7, 11} },
    /* 13 */ { "-5",               {0, 4, 6} },
    /* 14 */ { "7 sus 4",          {0, 5, 10},           5, "sus (sus4 no 3)" },
    /* 15 */ { "minor 9th",        {0, 2, 3, 7, 10} },
    /* 16 */ { "minor 11th",       {0, 2, 3, 5, 7, 10} },
    /* 17 */ { "7-5",              {0, 4, 6, 10} },
    /* 18 */ { "7 maj 5",          {0, 4, 8, 10} },
    /* 19 */ { "6th add 9",        {0, 2, 4, 7, 9} },
    /* 20 */ { "major 13th",       {0, 2, 4, 7, 9, 10} },
    /* 21 */ { "minor 13th",       {0, 2, 3, 7, 9, 10} },
    /* 22 */ { "sus 2",            {0, 2, 7},            7, "sus (sus4 no 3)" },
    /* 23 */ { "5 (1st and 5th)",  {0, 7} },
    /* 24 */ { "sus 4   (3 no 5)", {0, 4, 5} },
    /* 25 */ { "sus 4 (5 and 3)",  {0, 4, 5, 7} },
    /* 26 */ { "major 6th no 5",   {0, 4, 9},            9, "minor" },
    /* 27 */ { "minor 6th no 5",   {0, 3, 9} },
};
// clang-format on

} // namespace

void Model::key_Click(int index)
{
    keyback.at(static_cast<std::size_t>(index)) = 0x808080;
    noteentry(index);
    guitarcolor();
}

void Model::Text1_Click(int index)
{
    if (index <= 5) {
        retunerow = index;
        ++retunescreens;
        return;
    }
    const int n = notenumber(text.at(static_cast<std::size_t>(index)));
    if (n == 99)
        return;
    noteentry(n);
    keyupdate();
}

void Model::noteentry(int ent)
{
    bool clearing = false;
    if (ent == 25) {
        clearing = true;
    } else {
        if (ent > 12)
            ent -= 12;
        slot[6] = 99;
        slot[7] = 99;
        slot8 = " ";
        slot9 = " ";
        clearing = !(ent < 13);
    }
    if (clearing) {
        slot.fill(99);
        gureset();
        setcordtyp1(" ");
        setcordtyp2(" ");
        keyreset();
    } else {
        for (std::size_t i = 0; i <= 5; ++i)
            slot[i] = notenumber(note[i]);
        chordmatch(ent);
        setcordtyp1(slot8);
        setcordtyp2(slot9);
    }
    for (std::size_t i = 0; i <= 7; ++i)
        setnote(i, notename(slot[i]));
    if (!nothing(note[1]))
        guitarcolor();
}

void Model::chordmatch(int n)
{
    if (n == 12)
        n = 0;
    const auto six = slot.begin() + 6;
    if (n != 13 && std::find(slot.begin(), six, n) == six) {
        for (std::size_t i = 5; i > 0; --i)
            slot[i] = slot[i - 1];
        slot[0] = n;
    }
    std::sort(slot.begin(), six);
    std::vector<int> notes;
    std::copy_if(slot.begin(), six, std::back_inserter(notes), [](int s) { return s < 13; });
    if (notes.size() < 2)
        return;
    const Reading read = readbygaps(notes, mode);
    slot[6] = read.root;
    slot[7] = read.other;
    slot8 = read.name;
    slot9 = read.also;
    if (read.type >= 0)
        chordindex = read.type;
}

void Model::findchord(int index)
{
    chordindex = index;
    if (nothing(note[0])) {
        messages.emplace_back("information: Please enter a note using your mouse\nleft clicking on a piano or guitar "
                              "note\nfirst, before using this function");
        return;
    }
    setnote(7, " ");
    setcordtyp2(" ");
    setnote(6, std::string(note[0]));
    slot[7] = 99;
    slot9 = "";
    if (index >= 0 && index <= 27)
        fillslots(index, notenumber(note[0]));
    for (const std::size_t i : {0, 1, 2, 3, 4, 5, 7})
        setnote(i, notename(slot[i]));
    setcordtyp1(slot8);
    setcordtyp2(slot9);
    keyupdate();
    guitarcolor();
}

void Model::fillslots(int index, int root)
{
    const ButtonRow& row = buttons.at(static_cast<std::size_t>(index));
    for (std::size_t k = 0; k <= 5; ++k)
        slot[k] = k < row.intervals.size() ? root + row.intervals[k] : 99;
    slot8 = row.name;
    const std::string alternate = row.alternate;
    if (alternate.empty())
        return;
    slot[7] = root + row.alternateroot;
    int second = slot[2];
    int third = slot[3];
    if (alternate == "dim")
        slot9 = ", " + notename(second) + ", & " + notename(third) + " dim.";
    else if (alternate == "aug")
        slot9 = "+ and " + notename(second) + "+";
    else
        slot9 = alternate;
}

void Model::keyreset()
{
    for (int k = 0; k <= 24; ++k)
        keyback[static_cast<std::size_t>(k)] = black(k) ? 0xE0E0E0 : 0xFFFFFF;
}

void Model::keyupdate()
{
    keyreset();
    for (std::size_t k = 0; k <= 24; ++k)
        for (std::size_t i = 0; i <= 5; ++i) {
            if (nothing(note[i]))
                continue;
            const bool match =
                note[i].size() == 1 ? caption[k] == note[i] : caption[k].find(note[i]) != std::string::npos;
            if (match)
                keyback[k] = k <= 11 ? 0x808080 : 0xC0C0C0;
        }
}

void Model::shiftrow(std::size_t first, int direction)
{
    int s = notenumber(trans1.at(first)) + direction;
    while (s < 0)
        s += 12;
    while (s > 11)
        s -= 12;
    for (std::size_t k = 0; k <= 14; ++k) {
        int n = s + static_cast<int>(k);
        trans1.at(first + k) = notename(n);
    }
    if (first == 15)
        transpose(direction, 1);
    fixflat();
}

void Model::botl_Click()
{
    shiftrow(15, -1);
}

void Model::botr_Click()
{
    shiftrow(15, +1);
}

void Model::transpose(int ent, int m)
{
    for (std::size_t i = 0; i <= 5; ++i)
        if (!nothing(note[i])) {
            int n = notenumber(note[i]) + ent;
            setnote(i, notename(n));
        }
    if (m == 1) {
        noteentry(notenumber(note[0]));
        chordmatch(notenumber(note[0]));
    } else {
        findchord(chordindex);
    }
    keyupdate();
    guitarcolor();
}

} // namespace tests
