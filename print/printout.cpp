// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "print/printout.h"

#include "core/textcode.h"

#include <algorithm>

namespace print {
namespace {

constexpr std::size_t tabwidth = 8;

/// Takes a text's first line off it, without its line feed.
std::string_view takeline(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

std::string withouttabs(std::string_view line)
{
    std::string plain;
    std::size_t column = 0;
    for (const char c : line) {
        if (c == '\t') {
            const std::size_t blanks = tabwidth - column % tabwidth;
            plain.append(blanks, ' ');
            column += blanks;
            continue;
        }
        plain += c;
        column += core::charactercount(std::string_view(&c, 1));
    }
    return plain;
}

/// Lines as they come out on paper.
class Pages {
public:
    explicit Pages(ui::PaperRoom paper)
        : characters(static_cast<std::size_t>(std::max(paper.characters, 1))),
          lines(static_cast<std::size_t>(std::max(paper.lines, 1)))
    {
    }

    void add(std::string_view line)
    {
        std::size_t end = fittingend(line);
        if (end < line.size())
            ++done.toolong;
        while (end < line.size()) {
            addfitting(line.substr(0, end));
            line.remove_prefix(end);
            end = fittingend(line);
        }
        addfitting(line);
    }

    Printout done;

private:
    /// Where what fits of a line ends; blanks at its end need no room.
    std::size_t fittingend(std::string_view& line) const
    {
        const std::size_t end = core::skipcharacters(line, 0, characters);
        if (end == std::string_view::npos)
            return line.size();
        if (line.find_first_not_of(' ', end) == std::string_view::npos)
            line = line.substr(0, end);
        return end;
    }

    void addfitting(std::string_view line)
    {
        if (done.pages.empty() || done.pages.back().size() == lines)
            done.pages.emplace_back();
        done.pages.back().emplace_back(line);
    }

    std::size_t characters;
    std::size_t lines;
};

} // namespace

std::string withmargins(std::string_view text, int top, int left)
{
    const std::string indent(static_cast<std::size_t>(left), ' ');
    std::string printed = indent;
    for (const char c : text) {
        printed += c;
        if (c == '\n')
            printed += indent;
    }
    if (left != 0)
        while (printed.size() >= 2 && printed.back() == ' ')
            printed.pop_back();
    return std::string(static_cast<std::size_t>(top), '\n') + printed;
}

Printout layoutpages(std::string_view text, ui::PaperRoom room)
{
    Pages pages(room);
    while (!text.empty())
        pages.add(withouttabs(takeline(text)));
    return std::move(pages.done);
}

} // namespace print
