// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"
#include "custom/datafile.h"
#include "custom/settings.h"
#include "fuzz/fuzz.h"

// Reads any bytes as the program reads a data file. A fault is an abort: no text may crash the reader, what it keeps is
// whole, and what it read and wrote it reads again as the same.

namespace {

using fuzz::expect;

bool same(const custom::CustomTable& a, const custom::CustomTable& b)
{
    for (std::size_t i = 0; i < a.size(); ++i)
        if (a.at(i).name != b.at(i).name || a.at(i).data != b.at(i).data)
            return false;
    return true;
}

void expectwhole(const custom::Unpacked& read)
{
    if (read.header)
        expect(read.header->data.size() == custom::settingslength);
    for (const custom::Entry& entry : read.entries) {
        expect(entry.data.empty() || entry.data.size() == custom::datalength);
        expect(entry.name.empty() || !entry.data.empty());
        expect(entry.name.find(';') == std::string::npos);
    }
}

void expectagain(custom::Unpacked read)
{
    custom::datablankelim(read.entries);
    const custom::Packed packed = custom::pack(*read.header, read.entries);
    expect(!packed.faulty);
    const custom::Unpacked again = custom::unpack(packed.text + std::string(custom::lineend));
    expect(again.reading == custom::Reading::whole);
    expect(again.header == read.header && same(again.entries, read.entries));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string text = core::decode(fuzz::text(bytes, size));
    custom::Unpacked read = custom::unpack(text);
    expect((read.reading == custom::Reading::foreign) == !custom::issigned(text));
    expectwhole(read);
    if (read.header) {
        const custom::Settings settings = custom::unpacksettings(read.header->data);
        expect(custom::unpacksettings(custom::packsettings(settings)) == settings);
    }
    if (read.header && !read.header->name.empty())
        expectagain(std::move(read));
    const custom::PageAndData parts = custom::split(text);
    expect(parts.page || parts.data);
    return 0;
}
