// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "custom/datafile.h"
#include "mainscreen/session.h"
#include "tests/support/recordingdesktop.h"

#include <benchmark/benchmark.h>

namespace {

/// A session with a chord, the camera set to strings.
struct Player {
    tests::RecordingDesktop desktop;
    mainscreen::Session session{desktop};

    Player()
    {
        session.initmain();
        session.initvariables();
        session.doflatsetup();
        session.key_Click(0);
        session.Crd_Click(0);
        session.mnuguitar_Click();
    }
};

/// A page of about `size` bytes, in lines as charts have them.
std::string pagetext(std::int64_t size)
{
    std::string text;
    while (text.size() < static_cast<std::size_t>(size))
        text += "E |---|---|-O-|---|---|---|---|---|---|---|---|\n";
    return text;
}

void snapshot(benchmark::State& state)
{
    Player player;
    while (state.KeepRunning()) {
        player.session.allclear();
        player.session.chordsnap();
    }
}
BENCHMARK(snapshot)->Unit(benchmark::kMicrosecond);

void flush100blocks(benchmark::State& state)
{
    constexpr int blocks = 100;
    Player player;
    player.session.chkmult_Click(true); // a block to each chord
    while (state.KeepRunning()) {
        player.session.allclear();
        for (int i = 0; i < blocks; ++i)
            player.session.chordsnap();
        player.session.printfill();
    }
}
BENCHMARK(flush100blocks)->Name("100 snapshots and their flush")->Unit(benchmark::kMicrosecond);

void unpack51(benchmark::State& state)
{
    std::string text = "Tonefret:       GUITAR;00 72 4 801 3 6000 0;";
    for (std::size_t i = 0; i < custom::CustomTable{}.size(); ++i)
        text += "Cigar box, three strings;0349279B;";
    while (state.KeepRunning())
        benchmark::DoNotOptimize(custom::unpack(text));
}
BENCHMARK(unpack51)->Name("unpacking of 51 entries")->Unit(benchmark::kMicrosecond);

constexpr std::int64_t smallest = 1 << 10;
constexpr std::int64_t largest = 10 << 20;

void loadpage(benchmark::State& state)
{
    Player player;
    const std::string text = pagetext(state.range(0));
    while (state.KeepRunning())
        player.session.loadpage(text);
    state.SetComplexityN(state.range(0));
}
BENCHMARK(loadpage)->Range(smallest, largest)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

void countlines(benchmark::State& state)
{
    Player player;
    player.session.page.text = pagetext(state.range(0));
    while (state.KeepRunning())
        player.session.page.getlinenumber();
    state.SetComplexityN(state.range(0));
}
BENCHMARK(countlines)->Range(smallest, largest)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

void flush(benchmark::State& state)
{
    Player player;
    const std::string text = pagetext(state.range(0));
    while (state.KeepRunning()) {
        player.session.page.text = text;
        player.session.chordsnap();
        player.session.printfill();
    }
    state.SetComplexityN(state.range(0));
}
BENCHMARK(flush)->Range(smallest, largest)->Complexity(benchmark::oN)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
