// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/documents.h"
#include "help/rtf.h"

#include <gtest/gtest.h>

#include <algorithm>

// Documents as a word processor writes them, with all that it adds: LibreOffice 7.4 made page.rtf, and song.rtf of a
// web page.

namespace {

std::vector<help::Paragraph> read(std::string_view name)
{
    return help::readrtf(help::loaddata(name, {TONEFRET_SAMPLES}).value());
}

/// Each paragraph's text, in a table behind its row and column.
std::vector<std::string> lines(std::string_view name)
{
    std::vector<std::string> found;
    for (const help::Paragraph& p : read(name)) {
        const std::string place = p.cell ? std::to_string(p.cell->row) + std::to_string(p.cell->column) + " " : "";
        found.push_back(place + p.text());
    }
    return found;
}

TEST(WordProcessor, page_readsWithoutHeaderFooterNoteAndComment)
{
    const std::vector<std::string> expected{
        "Größe und Klang",
        "centred bold both plain",
        "a\tb\tc",
        "two   blanks\u2028next line",
        "note behind.",
        "marked place and link",
        "00 wide",
        "01 C",
        "10 日本",
        "11 ",
        "12 two",
        "12 lines",
        "After the page break: 和音 ♯ ♭ 𝄞 ß",
        "",
        "the end",
    };
    EXPECT_EQ(lines("page.rtf"), expected);
}

TEST(WordProcessor, song_readsWithItsListsAndTables)
{
    const std::vector<std::string> expected{
        "Übungsheft",
        "Ein fetter und ein schräger Satz, unterstrichen, typewriter, red. A link: here.",
        "•\terste Saite",
        "•\tzweite Saite",
        "•\tinner",
        "1.\tone",
        "2.\ttwo",
        "00 Chord",
        "01 Notes",
        "10 C major",
        "11 C E G",
        "11 in", // a table in this cell
        "11 ner",
        "11 ",
        "20 ",
        "21 x",
        "日本語の和音 – Ελληνικά – Русский – čeština 𝄞 — “quotes” … {braces} \\ backslash",
        "E *|-|-",
        "B -|*|-",
        "line\u2028break2, H2O, softhyphen, hard\u00A0blank, no\u2011break",
    };
    EXPECT_EQ(lines("song.rtf"), expected);
}

struct LookRow {
    const char* text;
    help::RunFormat look;
};

TEST(WordProcessor, runs_bearTheirLook)
{
    const LookRow rows[] = {
        {"Übungsheft", {.bold = true, .size = 48}},
        {"fetter", {.bold = true}},
        {"schräger", {.italic = true}},
        {"unterstrichen", {.underline = true}},
        {"typewriter", {.fixed = true}},
        {"red", {.colour = 0xC02020}},
        {"Chord", {.bold = true}},
        {"E *|-|-", {.fixed = true, .size = 20}},
    };
    std::vector<help::Run> runs;
    for (const help::Paragraph& p : read("song.rtf"))
        runs.insert(runs.end(), p.runs.begin(), p.runs.end());
    for (const LookRow& row : rows)
        EXPECT_NE(std::ranges::find(runs, help::Run{row.text, row.look}), runs.end()) << row.text;
}

TEST(WordProcessor, listitems_hangOut)
{
    const auto song = read("song.rtf");
    EXPECT_EQ(song.at(2).format.left, 709);
    EXPECT_EQ(song.at(2).format.first, -283);
    EXPECT_EQ(song.at(4).format.left, 1418); // an item of an item's list
    EXPECT_EQ(read("page.rtf").at(1).format.alignment, help::Alignment::centre);
}

} // namespace
