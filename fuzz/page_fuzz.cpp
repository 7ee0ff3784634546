// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "custom/datafile.h"
#include "custom/settings.h"
#include "fuzz/fuzz.h"
#include "mainscreen/session.h"
#include "print/printout.h"
#include "print/typednumber.h"
#include "tests/support/recordingdesktop.h"

#include <algorithm>
#include <cmath>
#include <limits>

// Loads any bytes as a page, edits it, types into its boxes and presses its buttons, and prints and saves what came of
// it. The first record of an input is the page's file; each further one is an act: a letter, and what it acts with.

namespace {

using fuzz::expect;
using mainscreen::Session;

constexpr std::string_view byteordermark{"\xEF\xBB\xBF"};

void edit(Session& session, std::string_view act)
{
    const auto at = static_cast<unsigned char>(act.empty() ? '0' : act[0]);
    const auto removed = static_cast<unsigned char>(act.size() < 2 ? '0' : act[1]);
    const std::string& text = session.page.text;
    const std::size_t from = core::skipcharacters(text, 0, at % (core::charactercount(text) + 1));
    const std::size_t to = std::min(core::skipcharacters(text, from, removed % 8U), text.size());
    const std::size_t added = std::min(core::skipcharacters(act, 0, 2), act.size());
    session.rtbprint_Edit({from, to - from, core::withlinefeeds(act.substr(added))});
}

// What is typed into a box, and the buttons without anything more.
void perform(Session& session, std::string_view act)
{
    const std::string typed(act.substr(std::min<std::size_t>(1, act.size())));
    switch (act.empty() ? ' ' : act.front()) {
    // clang-format off
    case 'E': return edit(session, typed);
    case 'C': return session.txtchar_Change(typed);
    case 'S': return session.txtspace_Change(typed);
    case 'F': return session.txtfont_Change(typed);
    case 'T': return session.txttop_Change(typed);
    case 'L': return session.txtleft_Change(typed);
    case 'c': return session.cmdchardown_Click();
    case 'd': return session.cmdcharup_Click();
    case 's': return session.cmdspacedown_Click();
    case 't': return session.cmdspaceup_Click();
    case 'f': return session.cmddownfont_Click();
    case 'g': return session.cmdupfont_Click();
    case 'h': return session.cmdtopdown_Click();
    case 'i': return session.cmdtopup_Click();
    case 'l': return session.cmdleftdown_Click();
    case 'm': return session.cmdleftup_Click();
    case 'o': return session.mnuviewprint_Click();
    case 'x': return session.mexit();
    case 'w': return session.cmdshow_Click();
    case 'p': return session.chordprint();
    case 'k': return session.key_Click(typed.empty() ? 0 : static_cast<unsigned char>(typed[0]) % 25);
    case 'n': return session.photochord();
    case 'q': return session.cmdguitar_Click();
    case 'u': return session.cmdpiano_Click();
    case 'r': return session.mprint_cmdclear_Click();
    default:  return;
        // clang-format on
    }
}

void expectnumber(const std::string& box)
{
    const double number = print::typednumber(box);
    expect(!std::isnan(number));
    expect(print::typednumber(" \t" + box) == number);
    if (!box.empty() && (box[0] == '.' || (box[0] >= '0' && box[0] <= '9'))) {
        expect(print::typednumber("-" + box) == -number);
        expect(print::typednumber("+" + box) == number);
    }
    if (std::abs(number) < std::numeric_limits<int>::max())
        expect(std::abs(print::wholenumber(box) - number) <= 0.5);
    expect(print::typedmargin(box) >= 0 && print::typedmargin(box) <= 30);
}

void expectsound(const Session& session)
{
    const print::Page& page = session.page;
    expect(page.text.find('\r') == std::string::npos);
    expect(page.text.starts_with(byteordermark) || core::decode(page.text) == page.text);
    expect(session.pagesettings.fontsize >= 0 && session.pagesettings.fontsize <= 255);
    expect(session.camera.BlockWidth <= 255 && session.camera.RowWidth <= 255);
    for (const std::string& box : {page.txtchar, page.txtspace, page.txtfont})
        expectnumber(box);
}

std::string inked(std::string_view text)
{
    std::string ink;
    std::ranges::copy_if(text, std::back_inserter(ink), [](char c) { return c != ' ' && c != '\t' && c != '\n'; });
    return ink;
}

/// Every mark of the page comes out on the paper, in its order and within its edges.
void expectprinted(Session& session, tests::RecordingDesktop& desktop)
{
    session.printfill();
    desktop.room = {1 + static_cast<int>(session.page.text.size() % 100),
                    1 + static_cast<int>(session.page.text.size() % 70)};
    session.cmdprint_Click();
    expect(desktop.printed.size() == (session.page.text.empty() ? 0U : 1U));
    std::string all;
    for (const ui::PrintJob& job : desktop.printed)
        for (const auto& page : job.pages) {
            expect(page.size() <= static_cast<std::size_t>(desktop.room.lines));
            for (const std::string& line : page) {
                expect(core::charactercount(line) <= static_cast<std::size_t>(desktop.room.characters));
                all += line;
            }
        }
    expect(inked(all) == inked(session.page.text));
}

/// A page that is saved is loaded as it was, with the line end of its file.
void expectagain(const std::string& page)
{
    if (custom::issigned(page) || page.starts_with(byteordermark))
        return; // a data file, and a mark that every file may begin with
    const custom::PageAndData parts = custom::split(core::decode(page + std::string(custom::lineend)));
    if (!parts.data)
        expect(parts.page == page + "\n");
    else
        expect((parts.page ? *parts.page + "\n" : "") + *parts.data == page + "\n");
}

void expectsettings(Session& session)
{
    session.mexit();
    session.checksave();
    expect(session.optionsdata.size() == custom::settingslength);
    const custom::Settings read = custom::unpacksettings(session.optionsdata);
    expect(custom::unpacksettings(custom::packsettings(read)) == read);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string all = core::decode(fuzz::text(bytes, size));
    std::string_view input = all;
    tests::RecordingDesktop desktop;
    Session session(desktop);
    session.initvariables();
    session.page.show(session.pagesettings);
    session.loadpage(std::string(fuzz::takerecord(input)));
    expect(session.page.kept == session.page.text);
    expectsound(session);
    while (!input.empty()) {
        perform(session, fuzz::takerecord(input));
        expectsound(session);
    }
    expectprinted(session, desktop);
    expectagain(session.page.text);
    expectsettings(session);
    return 0;
}
