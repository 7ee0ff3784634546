// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/custom/editmodel.h"
#include "tests/support/names.h"
#include "tests/support/started.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace {

using mainscreen::Session;
using tests::EditModel;

constexpr int steps = 2500; // for each seed

struct Act {
    unsigned weight; ///< how often it is done, in proportion
    const char* name;
    unsigned choices; ///< its number is 0 to choices - 1
    void (*session)(Session&, int);
    void (*model)(EditModel&, int);
};

std::string nametyped(int i)
{
    constexpr const char* odd[] = {"", " ", "a;b", "1234567890123456789012345", "12345678901234567890123456"};
    return i < 5 ? odd[i] : "tuning " + std::to_string(i);
}

/// Another file's entries: none, or as many as there are places. The screen begins anew, as after each load.
void loadplaces(Session& s, int i)
{
    for (std::size_t place = 0; place < 51; ++place)
        s.customtable.at(place) = {i == 0 ? "" : "full " + std::to_string(place), i == 0   ? ""
                                                                                  : i == 1 ? "02444444"
                                                                                           : "1179AB?x"};
    s.editform.formstart();
}

void loadplaces(EditModel& m, int i)
{
    for (std::size_t place = 0; place < 51; ++place) {
        m.customnames.at(place) = i == 0 ? "" : "full " + std::to_string(place);
        m.customdata.at(place) = i == 0 ? "" : i == 1 ? "02444444" : "1179AB?x";
    }
    m.formstart();
}

void opencustom(EditModel& m)
{
    if (!m.open)
        m.formstart();
    m.open = true;
}

/// A drop between two used places; nothing where there are none.
template <typename Dropped>
void dropany(int i, int used, Dropped drop)
{
    if (used > 0)
        drop(i % used, i / 51 % used);
}

int used(const Session& s)
{
    return static_cast<int>(custom::indexnew(s.customtable));
}

int used(const EditModel& m)
{
    return static_cast<int>(std::ranges::find(m.customnames, "") - m.customnames.begin());
}

// clang-format off
constexpr auto acts = std::to_array<Act>({
    { 30, "txtname_Change", 30, [](Session& s, int i) { s.editform.txtname_Change(nametyped(i)); }, [](EditModel& m, int i) { m.settext(nametyped(i)); } },
    {  8, "txtname_Click",   1, [](Session& s, int)   { s.editform.txtname_Click(); },          [](EditModel& m, int)   { m.clickname(); } },
    { 60, "txtnote_Click",   7, [](Session& s, int i) { s.editform.txtnote_Click(static_cast<std::size_t>(i)); }, [](EditModel& m, int i) { m.clicknote(i); } },
    { 10, "chkleft_Click",   1, [](Session& s, int)   { s.editform.chkleft_Click(); },          [](EditModel& m, int)   { m.clickleft(); } },
    { 20, "Option2_Click",   4, [](Session& s, int i) { s.editform.Option2_Click(static_cast<instruments::StringLayout>(i)); }, [](EditModel& m, int i) { m.clickoption(i); } },
    { 30, "cmdret_Click",   12, [](Session& s, int i) { s.editform.cmdret_Click(i + 1); },      [](EditModel& m, int i) { m.cmdret(i + 1); } },
    { 20, "cmdup_Click",     1, [](Session& s, int)   { s.editform.cmdup_Click(); },            [](EditModel& m, int)   { m.cmdup(); } },
    { 16, "cmddown_Click",   1, [](Session& s, int)   { s.editform.cmddown_Click(); },          [](EditModel& m, int)   { m.cmddown(); } },
    { 40, "cmdsave_Click",   1, [](Session& s, int)   { s.editform.cmdsave_Click(); },          [](EditModel& m, int)   { m.cmdsave(); } },
    {  4, "cmdclear_Click",  1, [](Session& s, int)   { s.editform.cmdclear_Click(); },         [](EditModel& m, int)   { m.cmdclear(); } },
    {  6, "cmddelentry",     1, [](Session& s, int)   { s.editform.cmddelentry_Click(); },      [](EditModel& m, int)   { m.cmddelentry(); } },
    { 20, "cmdsettings",     1, [](Session& s, int)   { s.cmdsettings_Click(); },               [](EditModel& m, int)   { m.cmdsettings(); } },
    {  8, "mnucustom_Click", 1, [](Session& s, int)   { s.mnucustom_Click(); },                 [](EditModel& m, int)   { opencustom(m); } },
    {  4, "customexit",      1, [](Session& s, int)   { s.customexit(); },                      [](EditModel& m, int)   { m.open = false; } },
    {  6, "mnuarrange",      1, [](Session& s, int)   { s.mnuarrange_Click(); },                [](EditModel& m, int)   { m.openarrange(); } },
    {  8, "txtx_DragDrop", 2601, [](Session& s, int i) { dropany(i, used(s), [&](int t, int f) { s.txtx_DragDrop(t, f); }); },
                                [](EditModel& m, int i) { dropany(i, used(m), [&](int t, int f) { m.drop(t, f); }); } },
    {  4, "endform",         1, [](Session& s, int)   { s.endform(); },                         [](EditModel& m, int)   { m.arranging = false; } },
    {  2, "loaded",          3, [](Session& s, int i) { loadplaces(s, i); },                    [](EditModel& m, int i) { loadplaces(m, i); } },
    { 12, "cbotype_Click",   9, [](Session& s, int i) { s.cbotype_Click(i); },                  [](EditModel&, int) {} },
    { 10, "cboleft_Click",   2, [](Session& s, int i) { s.cboleft_Click(i); },                  [](EditModel&, int) {} },
    {  3, "spelling",        2, [](Session& s, int i) { i == 0 ? s.doflats() : s.dosharps(); }, [](EditModel& m, int i) { m.mode = i == 0 ? 0 : 3; } },
});
// clang-format on

constexpr unsigned weights = [] {
    unsigned sum = 0;
    for (const Act& act : acts)
        sum += act.weight;
    return sum;
}();

class EditWalk : public testing::TestWithParam<unsigned> {
protected:
    unsigned below(unsigned n) { return static_cast<unsigned>(random() % n); }

    /// One act on both, with the same answers should it ask.
    std::string step()
    {
        unsigned at = below(weights);
        const Act* act = acts.data();
        while (at >= act->weight)
            at -= act++->weight;
        const bool yes = below(3) != 0;
        s.desktop.answers = {yes ? ui::Answer::yes : ui::Answer::no};
        model.answers = {yes};
        const int i = static_cast<int>(below(act->choices));
        act->session(s.session, i);
        act->model(model, i);
        readmain();
        return std::string(act->name) + " " + std::to_string(i) + (yes ? " yes" : " no");
    }

    /// The main screen has its own model; here it is read as it is.
    void readmain()
    {
        model.cboleft = s.session.cboleft.text;
        model.layout = static_cast<int>(s.session.fretboard.layout);
        for (std::size_t row = 0; row < 6; ++row)
            model.opencells.at(row) = s.session.fretboard.cell.at(row).text;
    }

    std::string spoken()
    {
        std::string all;
        for (const tests::Asked& asked : s.desktop.asked) // a question comes before what follows from its answer
            all += "question: " + asked.text;
        for (const tests::Told& told : s.desktop.told)
            all += (told.icon == ui::Icon::critical ? "critical: " : "information: ") + told.text;
        s.desktop.told.clear();
        s.desktop.asked.clear();
        return all;
    }

    std::string modelspoken()
    {
        std::string all;
        for (const std::string& text : model.spoken)
            all += text;
        model.spoken.clear();
        return all;
    }

    static std::string shown(const Session& session)
    {
        const custom::EditForm& form = session.editform;
        std::ostringstream out;
        out << form.txtnum() << '|' << form.txtname << '|' << form.txtinfo << '|' << form.chkleft << '|'
            << static_cast<int>(form.Option2) << '|' << session.customchanged << '|' << session.customshown << '|'
            << session.arrangeshown;
        for (std::size_t i = 0; i < 7; ++i)
            out << '|' << form.txtnote.at(i) << (form.boxvisible(i) ? "" : " hidden");
        for (const custom::Entry& entry : session.customtable)
            if (!entry.name.empty())
                out << '|' << entry.name << '=' << entry.data;
        return out.str();
    }

    static std::string shown(const EditModel& m)
    {
        std::ostringstream out;
        out << ' ' << m.txtnum << '|' << m.txtname << '|' << m.txtinfo << '|' << m.chkleft << '|' << m.option << '|'
            << m.customchanged << '|' << m.open << '|' << m.arranging;
        for (std::size_t i = 0; i < 7; ++i)
            out << '|' << m.txtnote.at(i) << (m.visible.at(i) ? "" : " hidden");
        for (std::size_t place = 0; place < 51; ++place)
            if (!m.customnames.at(place).empty())
                out << '|' << m.customnames.at(place) << '=' << m.customdata.at(place);
        return out.str();
    }

    tests::Started s;
    EditModel model;

private:
    std::mt19937 random{GetParam()};
};

TEST_P(EditWalk, everyAct_leavesWhatTheModelShows)
{
    readmain();
    s.session.mnucustom_Click();
    opencustom(model);
    std::string past;
    for (int i = 0; i < steps; ++i) {
        const std::string act = step();
        past.append(act).append("\n");
        past.erase(0, past.size() - std::min<std::size_t>(past.size(), 600));
        ASSERT_EQ(shown(s.session), shown(model)) << "step " << i << " after\n" << past;
        ASSERT_EQ(spoken(), modelspoken()) << "step " << i << " after\n" << past;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, EditWalk, testing::Range(1U, 9U));

} // namespace
