// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/instruments/cataloguerows.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

// Every chord on every tuning, photographed for either hand.

namespace {

using tests::Started;

/// The first line of the snapshot that is not as wide as it should be; empty: none.
std::string unevenline(const print::Camera& camera)
{
    for (std::size_t i = 0; i < print::printedlines; ++i) {
        const std::string& line = camera.snapshot.line.at(i);
        if (!line.empty() && static_cast<int>(line.size()) != camera.BlockWidth)
            return std::to_string(i) + " [" + line + "]";
    }
    return "";
}

/// The open note as it must stand in its string's line: before the first cell, whichever way that runs.
bool showsname(const std::string& line, const std::string& name, bool left, int TopFret)
{
    const auto cells = static_cast<std::size_t>(2 * TopFret + 2);
    return line.substr(left ? cells : line.size() - cells - 2, 2) == (name.size() < 2 ? name + " " : name);
}

void checkshot(Started& s, const std::string& where, bool left)
{
    s.session.photochord();
    const print::Camera& camera = s.session.camera;
    ASSERT_EQ(unevenline(camera), "") << where;
    const int strings = 6 - instruments::layoutrow(s.session.fretboard.layout).firstrow;
    for (int row = 0; row < 6; ++row) {
        const std::string& line = camera.snapshot.line.at(static_cast<std::size_t>(row));
        ASSERT_EQ(line.empty(), row < 6 - strings) << where << ", string " << row;
        const bool named = line.empty() || showsname(line, s.cell(row, 0).text, left, camera.fingering.TopFret);
        ASSERT_TRUE(named) << where << ": " << line;
    }
}

TEST(EveryChord, onEveryTuning_hasLinesOfOneWidth)
{
    std::size_t turn = 0;
    Started s;
    s.session.mnuguitar_Click();
    for (const tests::CatalogueRow& tuning : tests::cataloguerows) {
        s.pickfamily(tuning.family);
        s.picktuning(tuning.name);
        for (int button = 0; button < 28; ++button, ++turn) {
            s.reset();
            s.session.key_Click(static_cast<int>(turn % 12));
            s.session.Crd_Click(button);
            s.session.cbopreset_Click(static_cast<int>(turn % 17));
            s.session.cboleft_Click(static_cast<int>(turn / 17 % 2));
            s.session.chkalt_Click(turn % 3 != 0);
            checkshot(s, std::string(tuning.name) + ", chord " + std::to_string(button), turn / 17 % 2 == 1);
        }
        s.session.allclear();
    }
    EXPECT_TRUE(s.desktop.told.empty());
}

} // namespace
