// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "custom/customtable.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace custom {

inline constexpr std::string_view signature{"Tonefret:"};
inline constexpr std::string_view lineend{"\r\n"}; ///< one stands at the end of every file that is written

/// What stands before the entries of a data text.
struct Header {
    std::string name; ///< the chosen family, as listed
    std::string data; ///< the packed settings, 20 characters

    bool operator==(const Header&) const = default;
};

/// How far a text could be read as a data text.
enum class Reading : std::uint8_t {
    foreign, ///< it does not begin with the signature; nothing was read
    broken,  ///< up to a fault in its structure, or up to the 52nd entry
    loose,   ///< to its end, but it holds text that no entry keeps
    whole,   ///< all of it
};

/// What a data text holds.
struct Unpacked {
    Reading reading = Reading::foreign;
    std::optional<Header> header; ///< nothing: the text ends, or is broken, before it is whole
    CustomTable entries;          ///< the whole ones in their order; data of one byte to a character
};

/// Whether a text begins as a data text does; the first letter may be small.
bool issigned(std::string_view text);

/// Reads a data text in UTF-8; lengths count characters. Behind the last ";" anything may stand, such as a line end.
Unpacked unpack(std::string_view text);

/// Whether a text holds anything that `unpack` does not take from it, so that it is not to be written over unkept.
bool losestext(std::string_view text);

/// What was written, and the first entry that could not be.
struct Packed {
    std::string text;
    std::optional<std::size_t> faulty; ///< its data is not 8 characters long; it and those behind it are left out
};

/// Writes a data text, without a line end: the entries up to the first free place.
Packed pack(const Header& header, const CustomTable& entries);

/// The two things that one file can hold.
struct PageAndData {
    std::optional<std::string> page; ///< nothing: there is none
    std::optional<std::string> data; ///< nothing: there is none
};

/// Tells what a file's text is. One that begins with the signature is a data text; one whose last line is a data text,
/// whole and with a header, is a page before it; any other is a page. A page's lines end with line feeds.
PageAndData split(const std::string& text);

/// Joins them as `split` takes them apart: an empty page leaves no line.
std::string join(const std::string& page, const std::string& data);

} // namespace custom
