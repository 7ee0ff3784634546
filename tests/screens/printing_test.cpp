// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/support/directory.h"
#include "ui/qtdesktop.h"

#include <gtest/gtest.h>

// Real printing, into PDF files.

namespace {

std::size_t count(const std::string& text, const std::string& part)
{
    std::size_t found = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

TEST(PdfFile, pages_areWrittenOneEach)
{
    const tests::Directory directory;
    ui::QtDesktop desktop;
    EXPECT_EQ(desktop.print({.name = "chords",
                             .points = 11,
                             .pages = {{"one", "two"}, {"three"}, {"four"}},
                             .pdf = directory.path / "chords.pdf"}),
              "");
    const std::string pdf = directory.read("chords.pdf");
    EXPECT_TRUE(pdf.starts_with("%PDF-"));
    EXPECT_EQ(count(pdf, "/Type /Page\n"), 3U);
}

TEST(PdfFile, thatCannotBeWritten_isTold)
{
    const tests::Directory directory;
    ui::QtDesktop desktop;
    const std::filesystem::path file = directory.path / "none" / "chords.pdf";
    EXPECT_EQ(desktop.print({.name = "chords", .points = 11, .pages = {{"one"}}, .pdf = file}),
              "The file cannot be written: " + file.string());
}

TEST(PaperRoom, smallerCharacters_haveMoreRoom)
{
    ui::QtDesktop desktop;
    ui::PaperRoom before{0, 0};
    for (const int points : {14, 12, 11, 10, 9, 7, 5}) {
        const ui::PaperRoom room = desktop.paperroom(points);
        EXPECT_GT(room.characters, before.characters) << points;
        EXPECT_GT(room.lines, before.lines) << points;
        before = room;
    }
}

TEST(PaperRoom, defaultWidth_fits)
{
    ui::QtDesktop desktop;
    EXPECT_GE(desktop.paperroom(11).characters, 72 + 6);
}

} // namespace
