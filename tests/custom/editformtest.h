// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "custom/editform.h"
#include "tests/support/names.h"
#include "tests/support/recordingdesktop.h"

#include <gtest/gtest.h>

namespace tests {

using custom::Entry;
using ui::Answer;
using enum instruments::StringLayout;

/// An edit form over a table of its own, on a recording desktop.
class EditFormTest : public testing::Test {
protected:
    void open(std::initializer_list<Entry> entries)
    {
        std::ranges::copy(entries, table.begin());
        form.formstart();
    }
    void fillall()
    {
        for (std::size_t i = 0; i < table.size(); ++i)
            table.at(i) = {"name " + std::to_string(i), "03444444"};
    }
    /// Writes a name and these notes into the boxes from 0 upward.
    void write(const std::string& name, std::string_view notes)
    {
        form.txtname_Change(name);
        for (std::size_t box = 0; const int pitch : tests::pitches(notes)) {
            form.cmdret_Click(pitch + 1);
            form.txtnote_Click(box++);
        }
    }
    void answer(Answer given) { desktop.answers.push_back(given); }

    /// Boxes 0..5, an empty one as "-".
    std::string boxes() const
    {
        std::string line;
        for (std::size_t box = 0; box < 6; ++box)
            line += (box == 0 ? "" : " ") + (form.txtnote.at(box).empty() ? "-" : form.txtnote.at(box));
        return line;
    }
    void expecttold(const std::vector<Told>& messages)
    {
        EXPECT_EQ(desktop.told, messages);
        desktop.told.clear();
    }
    void expectasked(const tests::Asked& question)
    {
        EXPECT_EQ(desktop.asked, std::vector{question});
        EXPECT_TRUE(desktop.answers.empty());
        desktop.asked.clear();
    }
    void expectcleared()
    {
        EXPECT_EQ(form.txtname, "");
        EXPECT_EQ(boxes(), "- - - - - -");
        EXPECT_EQ(form.txtnote[6], "");
        EXPECT_FALSE(form.chkleft);
        EXPECT_EQ(form.Option2, sixstrings);
    }

    custom::CustomTable table;
    core::NoteSpelling spelling;
    bool changed = false;
    tests::RecordingDesktop desktop;
    custom::EditForm form{table, spelling, changed, desktop};
};

} // namespace tests
