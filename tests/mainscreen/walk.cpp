// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/mainscreen/walk.h"

#include <array>

namespace tests {
namespace {

using mainscreen::Reread;
using mainscreen::Session;

/// The user's own tunings number `i`: none to four of them, with odd characters now and then.
custom::CustomTable entries(int i)
{
    constexpr std::string_view digits{"0123456789AB?x"};
    constexpr std::string_view layouts{"01237"};
    std::mt19937 random(static_cast<unsigned>(i));
    const auto oneof = [&](std::string_view characters) { return characters[random() % characters.size()]; };
    custom::CustomTable table;
    for (std::size_t place = 0; place < static_cast<std::size_t>(i % 5); ++place) {
        table.at(place).name = "mine " + std::to_string(random() % 6);
        table.at(place).data = {oneof("01"), oneof(layouts)};
        for (int string = 0; string < 6; ++string)
            table.at(place).data += oneof(digits);
    }
    return table;
}

void setentries(Model& model, int i)
{
    const custom::CustomTable table = entries(i);
    for (std::size_t place = 0; place < table.size(); ++place) {
        model.customnames.at(place) = table.at(place).name;
        model.customdata.at(place) = table.at(place).data;
    }
}

template <typename Picked>
void picktuning(Picked& on, int i)
{
    if (const int count = static_cast<int>(on.cbotuning.items.size()); count > 0)
        on.cbotuning_Click(i % count);
}

/// Clears the notes and clicks those of chord type `i` / 12 on root `i` % 12, the root last.
template <typename Clicked>
void clickchord(Clicked& on, int i)
{
    on.key_Click(mainscreen::resetkey);
    const core::Intervals& intervals = core::chordtypes.at(static_cast<std::size_t>(i / 12)).intervals;
    for (const std::int8_t* note = intervals.end(); note != intervals.begin();)
        on.key_Click(i % 12 + *--note);
}

int nochord(int i)
{
    return i == 0 ? -1 : 27 + i;
}

struct Act {
    unsigned weight; ///< how often it is done, in proportion
    const char* name;
    unsigned choices; ///< its number is 0 to choices - 1
    void (*session)(Session&, int);
    void (*model)(Model&, int);
};

// clang-format off
constexpr auto acts = std::to_array<Act>({
    { 60, "key_Click",           25, [](Session& s, int i) { s.key_Click(i); },         [](Model& m, int i) { m.key_Click(i); } },
    { 12, "Reset",                1, [](Session& s, int)   { s.key_Click(25); },        [](Model& m, int)   { m.key_Click(25); } },
    { 40, "Text1_Click",        120, [](Session& s, int i) { s.Text1_Click(i); },       [](Model& m, int i) { m.Text1_Click(i); } },
    { 20, "notes of a chord",   336, [](Session& s, int i) { clickchord(s, i); },       [](Model& m, int i) { clickchord(m, i); } },
    { 30, "Crd_Click",           28, [](Session& s, int i) { s.Crd_Click(i); },         [](Model& m, int i) { m.Crd_Click(i); } },
    {  1, "no chord's number",    3, [](Session& s, int i) { s.findchord(nochord(i)); },[](Model& m, int i) { m.findchord(nochord(i)); } },
    {  3, "dosharps",             1, [](Session& s, int)   { s.dosharps(); },           [](Model& m, int)   { m.choosespelling("dosharps"); } },
    {  3, "doflats",              1, [](Session& s, int)   { s.doflats(); },            [](Model& m, int)   { m.choosespelling("doflats"); } },
    {  3, "domix1",               1, [](Session& s, int)   { s.domix1(); },             [](Model& m, int)   { m.choosespelling("domix1"); } },
    {  3, "domix2",               1, [](Session& s, int)   { s.domix2(); },             [](Model& m, int)   { m.choosespelling("domix2"); } },
    { 12, "doauto",               1, [](Session& s, int)   { s.doauto(); },             [](Model& m, int)   { m.choosespelling("doauto"); } },
    {  6, "mnuboth_Click",        1, [](Session& s, int)   { s.mnuboth_Click(); },      [](Model& m, int)   { m.mnuboth_Click(); } },
    {  4, "topl_Click",           1, [](Session& s, int)   { s.topl_Click(); },         [](Model& m, int)   { m.topl_Click(); } },
    {  4, "topr_Click",           1, [](Session& s, int)   { s.topr_Click(); },         [](Model& m, int)   { m.topr_Click(); } },
    { 10, "botl_Click",           1, [](Session& s, int)   { s.botl_Click(); },         [](Model& m, int)   { m.botl_Click(); } },
    { 10, "botr_Click",           1, [](Session& s, int)   { s.botr_Click(); },         [](Model& m, int)   { m.botr_Click(); } },
    {  4, "transpose the type",  25, [](Session& s, int i) { s.transpose(i - 12, Reread::fromtype); },
                                     [](Model& m, int i)   { m.transpose(i - 12, 0); } },
    {  4, "transpose the notes", 25, [](Session& s, int i) { s.transpose(i - 12, Reread::fromnotes); },
                                     [](Model& m, int i)   { m.transpose(i - 12, 1); } },
    {  8, "cbotype_Click",        9, [](Session& s, int i) { s.cbotype_Click(i); },     [](Model& m, int i) { m.cbotype_Click(i); } },
    { 12, "cbotuning_Click",     60, [](Session& s, int i) { picktuning(s, i); },       [](Model& m, int i) { picktuning(m, i); } },
    {  6, "cboleft_Click",        2, [](Session& s, int i) { s.cboleft_Click(i); },     [](Model& m, int i) { m.cboleft_Click(i); } },
    { 12, "cbopreset_Click",     17, [](Session& s, int i) { s.cbopreset_Click(i); },   [](Model& m, int i) { m.cbopreset_Click(i); } },
    {  6, "optu_Click",           1, [](Session& s, int)   { s.optu_Click(); },         [](Model& m, int)   { m.optu_Click(); } },
    {  6, "optd_Click",           1, [](Session& s, int)   { s.optd_Click(); },         [](Model& m, int)   { m.optd_Click(); } },
    {  8, "cmdret_Click",        13, [](Session& s, int i) { s.cmdret_Click(i); s.frmretune_Unload(); },
                                     [](Model& m, int i)   { m.cmdret_Click(i); } },
    {  4, "own tunings",       1000, [](Session& s, int i) { s.customtable = entries(i); }, setentries },
    {  4, "CUSTOM",               1, [](Session& s, int)   { s.cbotype_Click(8); },     [](Model& m, int)   { m.cbotype_Click(8); } },
});
// clang-format on

constexpr unsigned weights = [] {
    unsigned sum = 0;
    for (const Act& act : acts)
        sum += act.weight;
    return sum;
}();

} // namespace

Walk::Walk(unsigned seed) : random(seed)
{
    model.Form_Load();
}

std::string Walk::step()
{
    unsigned at = below(weights);
    const Act* act = acts.data();
    while (at >= act->weight)
        at -= act++->weight;
    const int i = static_cast<int>(below(act->choices));
    act->session(s.session, i);
    act->model(model, i);
    return std::string(act->name) + " " + std::to_string(i);
}

} // namespace tests
