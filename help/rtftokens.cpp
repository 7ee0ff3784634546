// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "help/rtftokens.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace help {
namespace {

using Kind = Token::Kind;

bool isletter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

bool isdigit(char c)
{
    return c >= '0' && c <= '9';
}

} // namespace

unsigned char Tokens::take()
{
    const auto byte = static_cast<unsigned char>(rest.front());
    rest.remove_prefix(1);
    return byte;
}

Token Tokens::next()
{
    while (!rest.empty() && (rest.front() == '\r' || rest.front() == '\n' || rest.front() == '\0'))
        rest.remove_prefix(1);
    if (rest.empty())
        return {};
    const unsigned char byte = take();
    switch (byte) {
    case '{':
        return {.kind = Kind::open};
    case '}':
        return {.kind = Kind::close};
    case '\\':
        return control();
    default:
        return {.kind = Kind::byte, .byte = byte};
    }
}

Token Tokens::control()
{
    if (rest.empty())
        return {};
    if (isletter(rest.front()))
        return word();
    const unsigned char sign = take();
    if (sign == '\'')
        return hexbyte();
    return {.kind = Kind::sign, .byte = sign};
}

Token Tokens::hexbyte()
{
    unsigned value = 0;
    const std::string_view digits = rest.substr(0, 2);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error != std::errc{})
        return {.kind = Kind::sign, .byte = '\''};
    rest.remove_prefix(static_cast<std::size_t>(end - digits.data()));
    return {.kind = Kind::byte, .byte = static_cast<unsigned char>(value)};
}

Token Tokens::word()
{
    const auto length = static_cast<std::size_t>(std::ranges::find_if_not(rest, isletter) - rest.begin());
    Token token{.kind = Kind::word, .word = rest.substr(0, length)};
    rest.remove_prefix(length);
    token.value = number();
    if (!rest.empty() && rest.front() == ' ')
        rest.remove_prefix(1);
    if (token.word == "bin")
        rest.remove_prefix(std::min(rest.size(), static_cast<std::size_t>(std::max(token.value.value_or(0), 0))));
    return token;
}

std::optional<int> Tokens::number()
{
    const bool negative = rest.starts_with('-') && rest.size() > 1 && isdigit(rest[1]);
    if (!negative && (rest.empty() || !isdigit(rest.front())))
        return std::nullopt;
    int value = 0;
    const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
    if (error == std::errc::result_out_of_range)
        return negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
    return value;
}

} // namespace help
