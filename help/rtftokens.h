// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace help {

/// The smallest part of an RTF text.
struct Token {
    enum class Kind : std::uint8_t {
        open,  ///< of a group
        close, ///< of a group
        word,  ///< a control word
        sign,  ///< a control symbol: a backslash and one character
        byte,  ///< of the text, in the code page that is in force
        end,
    };

    Kind kind = Kind::end;
    std::string_view word{};    ///< without backslash and number
    std::optional<int> value{}; ///< the word's number, held to 32 bits
    unsigned char byte = 0;     ///< the text's, or the sign's character
};

/// Cuts an RTF text into its parts. Line ends between them are no text; binary data behind "\bin" is passed over.
class Tokens {
public:
    explicit Tokens(std::string_view text) : rest(text) {}

    Token next();

private:
    Token control();
    Token word();
    Token hexbyte();
    std::optional<int> number();
    unsigned char take();

    std::string_view rest;
};

} // namespace help
