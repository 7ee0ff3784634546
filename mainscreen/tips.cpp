// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "mainscreen/tips.h"

#include <algorithm>

namespace mainscreen {
namespace {

/// The place of a single control's tip in the store.
struct StoredTip {
    std::size_t number;
    std::string_view Tips::*tip;
};

// clang-format off
constexpr auto storedtips = std::to_array<StoredTip>({
    { 32, &Tips::optd      },
    { 33, &Tips::optu      },
    { 34, &Tips::cbopreset },
    { 35, &Tips::cordtyp1  },
    { 36, &Tips::cordtyp2  },
    { 37, &Tips::topl      },
    { 38, &Tips::topr      },
    { 39, &Tips::botl      },
    { 40, &Tips::botr      },
    { 43, &Tips::cordcam   },
    { 44, &Tips::cboleft   },
    { 45, &Tips::cbotype   },
    { 46, &Tips::cbotuning },
});
// clang-format on
constexpr std::size_t resetnumber = 41; ///< of the Reset button, the last of the keys
static_assert(std::ranges::none_of(storedtips, [](const StoredTip& s) { return s.number == resetnumber; }));
static_assert(std::ranges::is_sorted(storedtips, {}, &StoredTip::number));
static_assert(storedtips.front().number > core::chordtypes.size() && storedtips.back().number < TipStore{}.size());

} // namespace

Tips::Tips()
{
    std::ranges::transform(core::chordtypes, Crd.begin(), &core::ChordType::tip);
    key.back() = "reset all";
}

void Tips::complete()
{
    fillarrays();
    std::ranges::replace(Crd, std::string_view{}, std::string_view{"chords .. enter note first"});
}

void Tips::fillarrays()
{
    Text1.fill("guitar readout / entry");
    std::fill_n(Text1.begin(), instruments::rowcount, "custom string retune");
    std::fill(key.begin(), key.end() - 1, "piano note entry / readout");
    trans1.fill("transpose readout");
    note.fill("data readout / no entry");
}

TipStore Tips::toolstore() const
{
    TipStore tipstore{};
    std::ranges::copy(Crd, tipstore.begin());
    for (const StoredTip& stored : storedtips)
        tipstore.at(stored.number) = this->*stored.tip;
    tipstore.at(resetnumber) = key.back();
    return tipstore;
}

void Tips::toolon(const TipStore& tipstore)
{
    fillarrays();
    std::copy_n(tipstore.begin(), Crd.size(), Crd.begin());
    for (const StoredTip& stored : storedtips)
        this->*stored.tip = tipstore.at(stored.number);
    key.back() = tipstore.at(resetnumber);
}

void Tips::tooloff()
{
    for (const StoredTip& stored : storedtips)
        this->*stored.tip = {};
    Text1.fill({});
    key.fill({});
    trans1.fill({});
    Crd.fill({});
    note.fill({});
}

} // namespace mainscreen
