// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/chordmatch.h"

#include <benchmark/benchmark.h>

#include <bit>
#include <vector>

namespace {

/// A set of notes just before its last one is entered.
struct Entry {
    core::ChordSlots slots;
    core::PitchClass last = core::nonote;
};

/// Every set of two to six of the twelve notes; the lowest is entered last, so that all others make room for it.
std::vector<Entry> allsets()
{
    std::vector<Entry> sets;
    for (unsigned set = 0; set < 1U << 12; ++set) {
        if (std::popcount(set) < 2 || std::popcount(set) > 6)
            continue;
        Entry entry{.slots = {}, .last = std::countr_zero(set)};
        std::size_t filled = 0;
        for (core::PitchClass n = entry.last + 1; n < 12; ++n)
            if ((set >> n & 1U) != 0)
                entry.slots.notes.at(filled++) = n;
        sets.push_back(entry);
    }
    return sets;
}

/// Reads all sets in turn from fresh slots, names and alternates written out. The counter is the time of one reading,
/// which is to take 0.2 microseconds at most.
void readings(benchmark::State& state)
{
    const std::vector<Entry> sets = allsets();
    const core::NoteSpelling spelling{.mode = static_cast<core::SpellingMode>(state.range(0))};
    int chordindex = 0;
    while (state.KeepRunning())
        for (const Entry& entry : sets) {
            core::ChordSlots slots = entry.slots;
            core::PitchClass last = entry.last;
            core::chordmatch(last, slots, chordindex, spelling);
            benchmark::DoNotOptimize(slots);
        }
    using benchmark::Counter;
    state.counters["reading"] =
        Counter(static_cast<double>(sets.size()),
                static_cast<Counter::Flags>(Counter::kIsIterationInvariantRate | Counter::kInvert));
}
BENCHMARK(readings)->Name("reading of 2 to 6 notes, mode")->Arg(0)->Arg(3)->Repetitions(9)->ReportAggregatesOnly();

} // namespace

BENCHMARK_MAIN();
