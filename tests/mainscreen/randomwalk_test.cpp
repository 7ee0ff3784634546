// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/mainscreen/comparison.h"
#include "tests/mainscreen/walk.h"
#include "tests/support/names.h"

#include <gtest/gtest.h>

#include <deque>

namespace {

using mainscreen::Session;
using tests::Walk;

constexpr int comparedsteps = 1700; // for each seed
constexpr int spelledsteps = 500;

/// The last acts before a failure, oldest first.
class Past {
public:
    void add(const std::string& act)
    {
        acts.push_back(act);
        if (acts.size() > 25)
            acts.pop_front();
    }
    std::string told() const
    {
        std::string all;
        for (const std::string& act : acts)
            all += act + "\n";
        return all;
    }

private:
    std::deque<std::string> acts;
};

class RandomWalk : public testing::TestWithParam<unsigned> {};

TEST_P(RandomWalk, everyAct_leavesWhatTheModelShows)
{
    Walk walk(GetParam());
    Past past;
    ASSERT_EQ(tests::differences(walk.s, walk.model), "") << "at the start";
    for (int step = 0; step < comparedsteps; ++step) {
        past.add(walk.step());
        ASSERT_EQ(tests::differences(walk.s, walk.model), "") << "step " << step << " after\n" << past.told();
        walk.s.desktop.told.clear();
        walk.model.messages.clear();
    }
}

/// The first text on the screen that is not written in the current mode; empty: none.
std::string misspelled(const Session& session)
{
    const int mode = static_cast<int>(session.spelling.mode);
    const auto wrong = [&](const std::string& text) {
        return text.size() >= 2 && tests::rewritten(text, mode) != text;
    };
    for (std::size_t i = 0; i < session.note.size(); ++i)
        if (wrong(session.note[i]))
            return "note " + std::to_string(i) + " " + session.note[i];
    if (wrong(session.cordtyp2))
        return "cordtyp2 " + session.cordtyp2;
    for (const core::ScaleRow& row : session.trans1)
        for (const std::string& name : row)
            if (wrong(name))
                return "trans1 " + name;
    for (const mainscreen::Key& key : session.keyboard.key)
        if (!session.spelling.both && wrong(key.caption))
            return "key " + key.caption;
    for (const instruments::Cell& cell : session.fretboard.cell)
        if (wrong(cell.text))
            return "cell " + cell.text;
    return "";
}

TEST_P(RandomWalk, everyName_followsTheMode)
{
    Walk walk(GetParam());
    Past past;
    for (int step = 0; step < spelledsteps; ++step) {
        past.add(walk.step());
        ASSERT_EQ(misspelled(walk.s.session), "") << "mode " << walk.s.mode() << ", step " << step << " after\n"
                                                  << past.told();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::Range(1U, 13U));

} // namespace
