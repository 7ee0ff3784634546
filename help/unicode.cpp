// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/unicode.h"

#include <array>

namespace help {
namespace {

struct Lead {
    unsigned char mask;
    unsigned char mark;
    char32_t smallest; ///< less than this has a shorter form
};
constexpr std::array<Lead, 4> leads{{{0x80, 0x00, 0}, {0xE0, 0xC0, 0x80}, {0xF0, 0xE0, 0x800}, {0xF8, 0xF0, 0x10000}}};

constexpr bool ischaracter(char32_t c)
{
    return c <= 0x10FFFF && (c < 0xD800 || c > 0xDFFF);
}

char tobyte(char32_t bits)
{
    return static_cast<char>(static_cast<unsigned char>(bits));
}

} // namespace

char32_t takecharacter(std::string_view& text)
{
    const auto first = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    for (std::size_t more = 0; more < leads.size(); ++more) {
        const Lead& lead = leads.at(more);
        if ((first & lead.mask) != lead.mark)
            continue;
        char32_t character = first & static_cast<unsigned char>(~lead.mask);
        for (std::size_t i = 0; i < more; ++i) {
            if (i >= text.size() || (static_cast<unsigned char>(text[i]) & 0xC0U) != 0x80U)
                return replacement;
            character = character << 6U | (static_cast<unsigned char>(text[i]) & 0x3FU);
        }
        if (character < lead.smallest || !ischaracter(character))
            return replacement;
        text.remove_prefix(more);
        return character;
    }
    return replacement;
}

void appendutf8(std::string& text, char32_t character)
{
    const char32_t c = ischaracter(character) ? character : replacement;
    if (c < 0x80) {
        text += tobyte(c);
        return;
    }
    const std::size_t more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    text += tobyte(leads.at(more).mark | c >> (6 * more));
    for (std::size_t i = more; i-- > 0;)
        text += tobyte(0x80U | (c >> (6 * i) & 0x3FU));
}

void appendutf16(std::u16string& text, char32_t character)
{
    const char32_t c = ischaracter(character) ? character : replacement;
    if (c < 0x10000) {
        text += static_cast<char16_t>(c);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10U));
    text += static_cast<char16_t>(0xDC00 + (c & 0x3FFU));
}

std::u16string toutf16(std::string_view text)
{
    std::u16string result;
    while (!text.empty())
        appendutf16(result, takecharacter(text));
    return result;
}

} // namespace help
