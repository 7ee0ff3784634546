// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/rtf.h"
#include "help/unicode.h"

#include <cstdint>
#include <cstdlib>
#include <string>

namespace {

void require(bool held)
{
    if (!held)
        std::abort();
}

/// What holds of every document, however damaged.
void check(const std::vector<help::Paragraph>& paragraphs)
{
    require(paragraphs.size() <= 100'000);
    for (const help::Paragraph& paragraph : paragraphs) {
        require(paragraph.format.tabs.size() <= 32);
        require(!paragraph.cell || (paragraph.cell->column >= 0 && paragraph.cell->column < 32));
        for (const help::Run& run : paragraph.runs) {
            require(!run.text.empty());
            require(run.format.size >= 2 && run.format.size <= 400);
            std::string again;
            for (std::string_view rest = run.text; !rest.empty();)
                help::appendutf8(again, help::takecharacter(rest));
            require(again == run.text); // well-formed UTF-8
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(data, data + size);
    check(help::readrtf(text));
    check(help::readrtf("{\\rtf1" + text));
    return 0;
}
