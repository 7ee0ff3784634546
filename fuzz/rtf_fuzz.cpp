// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "fuzz/fuzz.h"
#include "help/rtf.h"
#include "help/unicode.h"

namespace {

using fuzz::expect;

/// What holds of every document, however damaged.
void check(const std::vector<help::Paragraph>& paragraphs)
{
    expect(paragraphs.size() <= 100'000);
    for (const help::Paragraph& paragraph : paragraphs) {
        expect(paragraph.format.tabs.size() <= 32);
        expect(!paragraph.cell || (paragraph.cell->column >= 0 && paragraph.cell->column < 32));
        for (const help::Run& run : paragraph.runs) {
            expect(!run.text.empty());
            expect(run.format.size >= 2 && run.format.size <= 400);
            std::string again;
            for (std::string_view rest = run.text; !rest.empty();)
                help::appendutf8(again, help::takecharacter(rest));
            expect(again == run.text); // well-formed UTF-8
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string text = fuzz::text(bytes, size);
    check(help::readrtf(text));
    check(help::readrtf("{\\rtf1" + text));
    return 0;
}
