// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "custom/customtable.h"
#include "custom/datafile.h"
#include "custom/settings.h"
#include "fuzz/fuzz.h"
#include "mainscreen/session.h"
#include "tests/support/recordingdesktop.h"

#include <algorithm>
#include <cstring>

// Takes any bytes for what stands behind the signature of a data file, and the session takes them over: settings, own
// tunings, the family. What it packs then it reads again as the same; an entry that is edited and saved unchanged is
// the same tuning.

namespace {

using fuzz::expect;
using mainscreen::Session;

/// Numbers of any size are packed into their columns; what stands there then is read and packed as the same.
void expectpacked(std::string_view input)
{
    std::array<std::int16_t, 11> numbers{};
    std::memcpy(numbers.data(), input.data(), std::min(input.size(), sizeof numbers));
    const auto& n = numbers;
    const custom::Settings any{n[0], n[1], n[2], n[3], n[4], n[5], n[6], n[7], n[8], n[9], n[10]};
    const std::string packed = custom::packsettings(any);
    expect(packed.size() == custom::settingslength);
    const custom::Settings read = custom::unpacksettings(packed);
    expect(custom::unpacksettings(custom::packsettings(read)) == read);
}

/// What of an entry's data means something.
std::string meaning(const custom::Entry& entry)
{
    std::string known{custom::dataat(entry, 0) == '0' ? '0' : '1',
                      static_cast<char>('0' + static_cast<int>(custom::layoutof(custom::dataat(entry, 1))))};
    for (std::size_t i = 2; i < custom::datalength; ++i)
        known += custom::getnotedata(custom::getnotename(custom::dataat(entry, i), {}));
    return known;
}

/// Saves an entry from the edit screen as it was loaded there.
void expectsaved(Session& session, tests::RecordingDesktop& desktop, const custom::Entry& entry)
{
    session.customtable = {};
    session.customtable.front() = entry;
    desktop.answers = {ui::Answer::yes};
    desktop.told.clear();
    session.editform.formstart();
    session.editform.cmddown_Click();
    expect(session.editform.txtname == entry.name);
    session.editform.txtname_Click();
    expect(!session.editform.guarded());
    session.editform.cmdsave_Click();
    const custom::Entry& saved = session.customtable.front();
    expect(saved.name == entry.name);
    const bool refused = core::charactercount(entry.name) > custom::longestname;
    expect(saved.data == (refused ? entry.data : meaning(entry)));
    expect(desktop.told.empty() == !refused);
}

void expectentries(Session& session, tests::RecordingDesktop& desktop)
{
    const custom::CustomTable table = session.customtable;
    for (const custom::Entry& entry : table) {
        if (entry.name.empty())
            continue;
        const auto place = custom::findentry(table, entry.name);
        expect(place && table.at(*place).name == entry.name);
        expectsaved(session, desktop, entry);
    }
}

/// The session packs what it took over; that is whole, and is taken over again as the same.
void expectagain(Session& session)
{
    session.checksave();
    session.getoutstring();
    const custom::Unpacked packed = custom::unpack(session.customout + std::string(custom::lineend));
    expect(packed.reading == custom::Reading::whole);
    expect(packed.header && packed.header->name == session.cbotype.text);
    expect(packed.header->data == session.optionsdata);
    expect(packed.entries == session.customtable);
    const std::string first = session.customout;
    session.customtext = first;
    session.getinstring();
    session.getoutstring();
    expect(session.customout == first);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string input = fuzz::text(bytes, size);
    expectpacked(input);
    tests::RecordingDesktop desktop;
    Session session(desktop);
    session.initvariables();
    session.customtext = std::string(custom::signature) + core::decode(input);
    session.getinstring();
    session.presets();
    session.gettuning();
    session.doflatsetup();
    expect(session.pagesettings.fontsize >= 0 && session.pagesettings.charactersperline >= 0);
    expect(std::ranges::find(session.cbotype.items, session.cbotype.text) != session.cbotype.items.end());
    expectagain(session);
    expectentries(session, desktop);
    return 0;
}
