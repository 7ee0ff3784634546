// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace help {

/// A stretch of the document's text, in UTF-16 units, as text areas count.
struct Match {
    std::size_t begin;
    std::size_t end;

    bool operator==(const Match&) const = default;
};

/// Searches the help document and remembers how far it came.
class Search {
public:
    /// Takes the document's plain text; nothing is remembered of another one.
    void loaddata(std::u16string text);

    /// Searches from the top for a topic's heading (UTF-8), exactly as written.
    std::optional<Match> findtopic(std::string_view heading);

    /// Searches on from the last match, without regard to case; from the top after a search that found nothing.
    /// An empty text is not searched for and changes nothing.
    std::optional<Match> findcommand(std::u16string_view text);

private:
    std::optional<Match> locate(std::u16string_view searched, std::u16string_view wanted);

    std::u16string document;
    std::u16string folded; ///< the document without regard to case, unit for unit
    std::u16string searchtext;
    std::optional<std::size_t> position; ///< behind the last match
};

/// The small letter of a capital in Latin-1, Latin Extended-A and Additional, modern Greek and Cyrillic with its
/// supplement; both small sigmas are one. Anything else as it is, and so the Turkish I with a dot, which would become
/// i.
char16_t smallletter(char16_t unit);

} // namespace help
