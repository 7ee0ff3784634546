// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace core {

/// The text of a file's bytes, in UTF-8. A byte order mark in front is dropped. Bytes that are UTF-8 stay as they are;
/// any others are read as Windows-1252, whose five unused bytes become control characters of the same number.
std::string decode(std::string bytes);

/// Number of Unicode characters of a text in UTF-8.
std::size_t charactercount(std::string_view text);

/// Offset of the byte behind `count` characters from offset `from`, at most the text's size;
/// npos where fewer characters are left. `text` is UTF-8, `from` <= its size.
std::size_t skipcharacters(std::string_view text, std::size_t from, std::size_t count);

/// The text with one byte to a character: "?" stands for every character beyond ASCII.
std::string onebyteeach(std::string_view text);

/// The text with its line ends (CR LF, CR, LF) as line feeds.
std::string withlinefeeds(std::string_view text);

} // namespace core
