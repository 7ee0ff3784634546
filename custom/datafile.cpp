// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "custom/datafile.h"

#include "core/textcode.h"
#include "custom/settings.h"

#include <algorithm>

namespace custom {
namespace {

constexpr char separator = ';';
constexpr std::string_view smallsignature{"tonefret:"};

/// Only blanks, line ends and other controls: nothing that a user would miss.
bool isempty(std::string_view text)
{
    return std::ranges::all_of(text, [](unsigned char c) { return c <= ' '; });
}

/// Takes a text apart from front to back.
class Reader {
public:
    explicit Reader(std::string_view taken) : text(taken) {}

    std::string_view rest() const { return text.substr(at); }

    /// Takes what stands before the next ";" and the ";"; nothing where there is none.
    std::optional<std::string_view> field()
    {
        const std::size_t end = text.find(separator, at);
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view taken = text.substr(at, end - at);
        at = end + 1;
        return taken;
    }

    /// Takes exactly so many characters, of any kind, and the ";" behind them; nothing where none stands there.
    std::optional<std::string> data(std::size_t length)
    {
        const std::size_t end = core::skipcharacters(text, at, length);
        if (end >= text.size() || text[end] != separator)
            return std::nullopt;
        std::string taken = core::onebyteeach(text.substr(at, end - at));
        at = end + 1;
        return taken;
    }

private:
    std::string_view text;
    std::size_t at = 0;
};

/// Reads headers until one bears a name: a text without entries yet and without a name gets another try.
/// Returns false at a fault.
bool readheaders(Reader& reader, std::optional<Header>& header)
{
    std::string name;
    while (name.empty()) {
        const auto field = reader.field();
        if (!field)
            return true;
        name = *field;
        if (auto data = reader.data(settingslength))
            header = Header{name, std::move(*data)};
        else
            return false;
    }
    return true;
}

/// Returns false at a fault, a table that is full among them.
bool readentries(Reader& reader, CustomTable& entries)
{
    for (std::size_t count = 0;; ++count) {
        const auto name = reader.field();
        if (!name)
            return true;
        auto data = reader.data(datalength);
        if (count == entries.size() || !data)
            return false;
        entries.at(count) = {std::string(*name), std::move(*data)};
    }
}

bool isnameless(const Entry& entry)
{
    return entry.name.empty() && !entry.data.empty();
}

} // namespace

bool issigned(std::string_view text)
{
    return text.starts_with(signature) || text.starts_with(smallsignature);
}

Unpacked unpack(std::string_view text)
{
    Unpacked result;
    if (!issigned(text))
        return result;
    Reader reader(text.substr(signature.size()));
    if (!readheaders(reader, result.header) || !readentries(reader, result.entries))
        result.reading = Reading::broken;
    else if (!isempty(reader.rest()) || std::ranges::any_of(result.entries, isnameless))
        result.reading = Reading::loose;
    else
        result.reading = Reading::whole;
    return result;
}

bool losestext(std::string_view text)
{
    return !isempty(text) && unpack(text).reading != Reading::whole;
}

Packed pack(const Header& header, const CustomTable& entries)
{
    Packed packed{.text = std::string(signature) + header.name + separator + header.data + separator, .faulty = {}};
    for (std::size_t i = 0; i < entries.size() && !entries.at(i).name.empty(); ++i) {
        const Entry& entry = entries.at(i);
        if (core::charactercount(entry.data) != datalength) {
            packed.faulty = i;
            break;
        }
        packed.text += entry.name + separator + entry.data + separator;
    }
    return packed;
}

PageAndData split(const std::string& text)
{
    if (issigned(text))
        return {.page = {}, .data = text};
    std::string page = core::withlinefeeds(text);
    const std::size_t before = page.rfind("\n" + std::string(signature));
    if (before != std::string::npos) {
        std::string data = page.substr(before + 1);
        const Unpacked last = unpack(data);
        if (last.reading == Reading::whole && last.header) {
            page.resize(before);
            return {.page = std::move(page), .data = std::move(data)};
        }
    }
    return {.page = std::move(page), .data = {}};
}

std::string join(const std::string& page, const std::string& data)
{
    return page.empty() ? data : page + std::string(lineend) + data;
}

} // namespace custom
