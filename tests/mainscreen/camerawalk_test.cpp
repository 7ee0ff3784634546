// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "tests/mainscreen/cameramodel.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <sstream>

// Long random walks over camera, page and print dialog, beside a model that was written apart from them.

namespace {

using mainscreen::Session;
using tests::CameraModel;
using ui::Screen;

/// Writes down what a desktop is asked, in the order in which it is; its paper holds everything.
class ListeningDesktop : public tests::RecordingDesktop {
public:
    std::vector<std::string> heard;

    void tell(ui::Icon icon, const std::string& text) override
    {
        heard.push_back((icon == ui::Icon::critical ? "critical: " : "information: ") + text);
    }
    ui::Answer ask(const std::string& text, const std::string& title) override
    {
        heard.push_back("ask: " + text);
        return RecordingDesktop::ask(text, title);
    }
    void open(Screen screen) override { heard.push_back("open " + nameof(screen)); }
    void close(Screen screen) override { heard.push_back("close " + nameof(screen)); }
    void beep() override { heard.emplace_back("beep"); }
    ui::PaperRoom paperroom(int /*points*/) override { return {1'000'000, 1'000'000}; }
    std::string print(const ui::PrintJob& job) override
    {
        std::string text;
        for (const auto& page : job.pages)
            for (const std::string& line : page)
                text += line + "\n";
        heard.push_back("print " + std::to_string(job.points) + ": " + text);
        return {};
    }

private:
    static std::string nameof(Screen screen)
    {
        static const std::map<Screen, std::string> names{{Screen::ccamera, "ccamera"},
                                                         {Screen::camquestion, "camquestion"},
                                                         {Screen::mprint, "mprint"},
                                                         {Screen::printdialog, "printdialog"}};
        return names.at(screen);
    }
};

/// Session and model side by side.
struct Pair {
    tests::Directory directory;
    ListeningDesktop desktop;
    Session session{desktop};
    CameraModel model{session};

    Pair() { session.Form_Load(); }
};

constexpr auto typednumbers = std::to_array<const char*>({"72", "40", "145", "60.5", "31", "200", "1", "20", "2.5", "",
                                                          "abc", "-3", "0", "99999", "300", "5", "14", " 12 x"});
constexpr auto pages = std::to_array<const char*>({"", "title", "a\r\nb\r\n", "one\rtwo", "\n\n", "x  \n  "});

struct Act {
    const char* name;
    unsigned choices;
    void (*act)(Pair&, int);
};

const char* typed(int i)
{
    return typednumbers.at(static_cast<std::size_t>(i));
}

const char* pagetext(int i)
{
    return pages.at(static_cast<std::size_t>(i));
}

void clearasked(Pair& p, int i)
{
    const bool yes = i % 2 == 0;
    const bool camera = i / 2 == 1;
    p.desktop.answers = {yes ? ui::Answer::yes : ui::Answer::no};
    const std::string first = "This will clear all photos and the \nprint page also.  ";
    if (camera) {
        p.session.ccamera_cmdclear_Click();
        p.model.ask(first + "It will also clear\nthe current photo just taken.\nClick yes to proceed", yes, true);
    } else {
        p.session.mnuphotoclear_Click();
        p.model.ask(first + "Proceed?", yes, false);
    }
}

constexpr unsigned numbers = typednumbers.size();
constexpr unsigned texts = pages.size();

// clang-format off
constexpr auto acts = std::to_array<Act>({
    {"key_Click",       25, [](Pair& p, int i) { p.session.key_Click(i); }},
    {"Reset",            1, [](Pair& p, int)   { p.session.key_Click(25); }},
    {"Crd_Click",       28, [](Pair& p, int i) { if (!core::isblank(p.session.note[0])) p.session.Crd_Click(i); }},
    {"Text1_Click",    114, [](Pair& p, int i) { p.session.Text1_Click(6 + i); }},
    {"cbotype",          8, [](Pair& p, int i) { p.session.cbotype_Click(i); }},
    {"cbotuning",       40, [](Pair& p, int i) { p.session.cbotuning_Click(i % static_cast<int>(p.session.cbotuning.items.size())); }},
    {"cboleft",          2, [](Pair& p, int i) { p.session.cboleft_Click(i); }},
    {"cbopreset",       17, [](Pair& p, int i) { p.session.cbopreset_Click(i); }},
    {"photochord",       1, [](Pair& p, int)   { p.session.photochord();        p.model.photochord(); }},
    {"photochord",       1, [](Pair& p, int)   { p.session.photochord();        p.model.photochord(); }},
    {"photochord",       1, [](Pair& p, int)   { p.session.photochord();        p.model.photochord(); }},
    {"photochord",       1, [](Pair& p, int)   { p.session.photochord();        p.model.photochord(); }},
    {"cmdguitar",        1, [](Pair& p, int)   { p.session.cmdguitar_Click();   p.model.question(0); }},
    {"cmdpiano",         1, [](Pair& p, int)   { p.session.cmdpiano_Click();    p.model.question(1); }},
    {"mnuguitar",        1, [](Pair& p, int)   { p.session.mnuguitar_Click();   p.model.setmode(0); }},
    {"mnupiano",         1, [](Pair& p, int)   { p.session.mnupiano_Click();    p.model.setmode(1); }},
    {"clear asked",      4, clearasked},
    {"camera okay",      1, [](Pair& p, int)   { p.session.ccamera_cmdret_Click();  p.model.told("close ccamera"); }},
    {"camera view",      1, [](Pair& p, int)   { p.session.ccamera_cmdview_Click(); p.model.view(); }},
    {"mnuviewprint",     1, [](Pair& p, int)   { p.session.mnuviewprint_Click();    p.model.openpage(); }},
    {"rtbprint", texts,     [](Pair& p, int i) { p.session.rtbprint_Change(pagetext(i)); p.model.text = pagetext(i); }},
    {"txtchar",  numbers,   [](Pair& p, int i) { p.session.txtchar_Change(typed(i));  p.model.txtchar = typed(i); }},
    {"txtspace", numbers,   [](Pair& p, int i) { p.session.txtspace_Change(typed(i)); p.model.txtspace = typed(i); }},
    {"txtfont",  numbers,   [](Pair& p, int i) { p.session.txtfont_Change(typed(i));  p.model.txtfont = typed(i); }},
    {"chkmult",          2, [](Pair& p, int i) { p.session.chkmult_Click(i == 1);  p.model.mult = i == 1; }},
    {"chkalt",           2, [](Pair& p, int i) { p.session.chkalt_Click(i == 1);   p.model.alt = i == 1; }},
    {"cmdchardown",      1, [](Pair& p, int)   { p.session.cmdchardown_Click();    p.model.press(p.model.txtchar, 0, -1, 40); }},
    {"cmdcharup",        1, [](Pair& p, int)   { p.session.cmdcharup_Click();      p.model.press(p.model.txtchar, 0, +1, 145); }},
    {"cmdspacedown",     1, [](Pair& p, int)   { p.session.cmdspacedown_Click();   p.model.press(p.model.txtspace, 1, -1, 1); }},
    {"cmdspaceup",       1, [](Pair& p, int)   { p.session.cmdspaceup_Click();     p.model.press(p.model.txtspace, 1, +1, 20); }},
    {"cmddownfont",      1, [](Pair& p, int)   { p.session.cmddownfont_Click();    p.model.press(p.model.txtfont, 2, -1, 5); }},
    {"cmdupfont",        1, [](Pair& p, int)   { p.session.cmdupfont_Click();      p.model.press(p.model.txtfont, 2, +1, 14); }},
    {"cmdshow",          1, [](Pair& p, int)   { p.session.cmdshow_Click();        p.model.printfill(); }},
    {"cmdclear",         1, [](Pair& p, int)   { p.session.mprint_cmdclear_Click(); p.model.allclear(); }},
    {"mexit",            1, [](Pair& p, int)   { p.session.mexit();                p.model.mexit(); }},
    {"loadpage", texts,     [](Pair& p, int i) { p.session.loadpage(pagetext(i));  p.model.loadpage(pagetext(i)); }},
    {"chordprint",       1, [](Pair& p, int)   { p.session.chordprint();           p.model.chordprint(); }},
    {"txttop",   numbers,   [](Pair& p, int i) { p.session.txttop_Change(typed(i));  p.model.txttop = typed(i); }},
    {"txtleft",  numbers,   [](Pair& p, int i) { p.session.txtleft_Change(typed(i)); p.model.txtleft = typed(i); }},
    {"cmdtopdown",       1, [](Pair& p, int)   { p.session.cmdtopdown_Click();     p.model.press(p.model.txttop, 5, -1, 0); }},
    {"cmdtopup",         1, [](Pair& p, int)   { p.session.cmdtopup_Click();       p.model.press(p.model.txttop, 5, +1, 30); }},
    {"cmdleftdown",      1, [](Pair& p, int)   { p.session.cmdleftdown_Click();    p.model.press(p.model.txtleft, 6, -1, 0); }},
    {"cmdleftup",        1, [](Pair& p, int)   { p.session.cmdleftup_Click();      p.model.press(p.model.txtleft, 6, +1, 30); }},
    {"cmdprint",         1, [](Pair& p, int)   { p.session.cmdprint_Click();       p.model.cmdprint(); }},
    {"cmdcancel",        1, [](Pair& p, int)   { p.session.cmdcancel_Click();      p.model.told("close printdialog"); }},
});
// clang-format on

class Differences {
public:
    template <typename Shown, typename Modelled>
    void compare(const char* what, const Shown& shown, const Modelled& modelled)
    {
        if (shown != modelled)
            out << what << ": [" << shown << "], model [" << modelled << "]\n";
    }
    void compare(const char* what, const std::vector<std::string>& shown, const std::vector<std::string>& modelled)
    {
        compare(what, joined(shown), joined(modelled));
    }
    std::string found() const { return out.str(); }

private:
    static std::string joined(const std::vector<std::string>& lines)
    {
        std::string all;
        for (const std::string& line : lines)
            all += line + "; ";
        return all;
    }

    std::ostringstream out;
};

void comparecamera(Differences& d, const print::Camera& camera, const CameraModel& model)
{
    d.compare("mode", static_cast<int>(camera.mode), model.piano);
    d.compare("chosen", camera.modechosen, model.chosen == 1);
    d.compare("mnuguitar", camera.marks.mnuguitar, model.chosen == 1 && model.piano == 0);
    d.compare("mnupiano", camera.marks.mnupiano, model.chosen == 1 && model.piano == 1);
    d.compare("SnapshotCount", camera.SnapshotCount, model.snapshots);
    d.compare("PageBlockCount", camera.PageBlockCount, model.blocks);
    d.compare("BlockWidth", camera.BlockWidth, model.blockwidth);
    d.compare("RowWidth", camera.RowWidth, model.rowwidth);
    for (std::size_t i = 0; i < 11; ++i) {
        d.compare("snapshot", camera.snapshot.line[i], model.shot[i]);
        d.compare("pending", camera.PendingBlock.line[i], model.pending[i]);
    }
    d.compare("lbltaken", camera.labels.lbltaken, model.taken);
    d.compare("lbllast", camera.labels.lbllast, model.last);
    d.compare("lbltype", camera.labels.lbltype, model.kind);
    d.compare("lblleft", camera.labels.lblleft, model.left);
}

void comparepage(Differences& d, const Session& session, const CameraModel& model)
{
    d.compare("open", session.page.open, model.open);
    d.compare("text", session.page.text, model.text);
    d.compare("kept", session.page.kept, model.kept);
    d.compare("txtlines", session.page.txtlines, model.lines);
    d.compare("txtchar", session.page.txtchar, model.txtchar);
    d.compare("txtspace", session.page.txtspace, model.txtspace);
    d.compare("txtfont", session.page.txtfont, model.txtfont);
    d.compare("fontsize", session.page.fontsize, model.points);
    d.compare("chkmult", session.page.chkmult, model.mult);
    d.compare("chkalt", session.page.chkalt, model.alt);
    d.compare("txttop", session.printdialog.txttop, model.txttop);
    d.compare("txtleft", session.printdialog.txtleft, model.txtleft);
    const print::PageSettings& kept = session.pagesettings;
    const std::array<int, 7> stored{kept.charactersperline, kept.spacing,   kept.fontsize,  kept.multiple ? 1 : 0,
                                    kept.alternate ? 1 : 0, kept.topmargin, kept.leftmargin};
    for (std::size_t i = 0; i < stored.size(); ++i)
        d.compare("stored", stored[i], model.stored[i]);
}

/// A printed line has a line feed behind it: the model's text ends as the page does.
std::vector<std::string> evenended(std::vector<std::string> heard)
{
    for (std::string& line : heard)
        if (line.starts_with("print ") && !line.ends_with('\n'))
            line += '\n';
    return heard;
}

std::string differences(const Pair& p)
{
    Differences d;
    comparecamera(d, p.session.camera, p.model);
    comparepage(d, p.session, p.model);
    d.compare("desktop", evenended(p.desktop.heard), evenended(p.model.heard));
    return d.found();
}

class CameraWalk : public testing::TestWithParam<unsigned> {};

TEST_P(CameraWalk, everyAct_leavesWhatTheModelShows)
{
    constexpr int steps = 2500;
    std::mt19937 random(GetParam());
    Pair p;
    ASSERT_EQ(differences(p), "") << "at the start";
    for (int step = 0; step < steps; ++step) {
        const Act& act = acts.at(random() % acts.size());
        const int i = static_cast<int>(random() % act.choices);
        act.act(p, i);
        ASSERT_EQ(differences(p), "") << "step " << step << ", " << act.name << " " << i;
        p.desktop.heard.clear();
        p.model.heard.clear();
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, CameraWalk, testing::Range(1U, 9U));

} // namespace
