// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/textcode.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>

namespace core {
namespace {

constexpr std::string_view byteordermark{"\xEF\xBB\xBF"};

/// First bytes, from the row before up to `last`; how long the sequence is that they begin, 0 where they begin none,
/// and which second bytes it may have: no overlong forms, no surrogates, nothing above U+10FFFF.
struct Sequence {
    unsigned char last;
    std::size_t length;
    unsigned char secondfrom = 0;
    unsigned char secondto = 0;
};

// clang-format off
//  last  length  second byte
constexpr std::array<Sequence, 11> sequences{{
  { 0x7F, 1 },
  { 0xC1, 0 },
  { 0xDF, 2,      0x80, 0xBF },
  { 0xE0, 3,      0xA0, 0xBF },
  { 0xEC, 3,      0x80, 0xBF },
  { 0xED, 3,      0x80, 0x9F },
  { 0xEF, 3,      0x80, 0xBF },
  { 0xF0, 4,      0x90, 0xBF },
  { 0xF3, 4,      0x80, 0xBF },
  { 0xF4, 4,      0x80, 0x8F },
  { 0xFF, 0 },
}};
static_assert(std::ranges::is_sorted(sequences, {}, &Sequence::last) && sequences.back().last == 0xFF);

/// Windows-1252 where it differs from Latin-1: bytes 80 to 9F.
constexpr std::array<std::uint16_t, 32> upperhalf{
  0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
  0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

constexpr unsigned char byteof(char c)
{
    return static_cast<unsigned char>(c);
}

constexpr bool continues(char c)
{
    return (byteof(c) & 0xC0U) == 0x80U;
}

/// Length of the sequence at the head of `text`; 0 where it is none.
std::size_t sequencelength(std::string_view text)
{
    const unsigned char head = byteof(text.front());
    const auto* row = std::ranges::lower_bound(sequences, head, {}, &Sequence::last);
    if (row->length == 0 || row->length > text.size())
        return 0;
    if (row->length > 1 && (byteof(text[1]) < row->secondfrom || byteof(text[1]) > row->secondto))
        return 0;
    const std::string_view tail = text.substr(1, row->length - 1);
    return std::ranges::all_of(tail, continues) ? row->length : 0;
}

/// Length of the run of ASCII at the head of `text`, found eight bytes at a time; up to seven may be left out.
std::size_t asciirun(std::string_view text)
{
    constexpr std::uint64_t highbits = 0x8080808080808080U;
    std::size_t run = 0;
    for (std::uint64_t word = 0; run + sizeof word <= text.size(); run += sizeof word) {
        std::memcpy(&word, text.data() + run, sizeof word);
        if ((word & highbits) != 0)
            break;
    }
    return run;
}

bool isutf8(std::string_view text)
{
    while (!text.empty()) {
        std::size_t length = asciirun(text);
        if (length == 0)
            length = sequencelength(text);
        if (length == 0)
            return false;
        text.remove_prefix(length);
    }
    return true;
}

/// Writes a character below U+10000 in UTF-8 and returns the place behind it.
char* put(char* out, unsigned character)
{
    if (character < 0x80U) {
        *out++ = static_cast<char>(character);
        return out;
    }
    if (character < 0x800U) {
        *out++ = static_cast<char>(0xC0U | character >> 6U);
    } else {
        *out++ = static_cast<char>(0xE0U | character >> 12U);
        *out++ = static_cast<char>(0x80U | (character >> 6U & 0x3FU));
    }
    *out++ = static_cast<char>(0x80U | (character & 0x3FU));
    return out;
}

std::string fromwindows1252(std::string_view bytes)
{
    constexpr std::size_t longest = 3;
    constexpr std::size_t piece = 4096;
    std::array<char, longest * piece> room;
    std::string text;
    while (!bytes.empty()) {
        char* out = room.data();
        for (const char c : bytes.substr(0, piece)) {
            const unsigned byte = byteof(c);
            out = put(out, byte - 0x80U < upperhalf.size() ? upperhalf[byte - 0x80U] : byte);
        }
        text.append(room.data(), out);
        bytes.remove_prefix(std::min(piece, bytes.size()));
    }
    return text;
}

} // namespace

std::string decode(std::string bytes)
{
    if (bytes.starts_with(byteordermark))
        bytes.erase(0, byteordermark.size());
    return isutf8(bytes) ? bytes : fromwindows1252(bytes);
}

std::size_t charactercount(std::string_view text)
{
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continues));
}

std::size_t skipcharacters(std::string_view text, std::size_t from, std::size_t count)
{
    std::size_t at = from;
    for (; count > 0; --count) {
        if (at == text.size())
            return std::string_view::npos;
        ++at;
        while (at < text.size() && continues(text[at]))
            ++at;
    }
    return at;
}

std::string onebyteeach(std::string_view text)
{
    std::string ascii;
    for (const char c : text)
        if (!continues(c))
            ascii += byteof(c) < 0x80U ? c : '?';
    return ascii;
}

std::string withlinefeeds(std::string_view text)
{
    std::string lines;
    lines.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r')
            lines += text[i];
        else if (!text.substr(i + 1).starts_with('\n'))
            lines += '\n';
    }
    return lines;
}

} // namespace core
