// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#include "core/autospelling.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace core {
namespace {

struct RootModes {
    SpellingMode minor;
    SpellingMode other;
};

using enum SpellingMode;

// clang-format off
constexpr std::array<RootModes, 12> modesbyroot{{
//  minor          other
  { mostlyflats,   mix1         },  // C
  { mostlysharps,  mostlyflats  },  // C# Db
  { mix1,          mix2         },  // D
  { mostlyflats,   mostlyflats  },  // D# Eb
  { mix2,          mostlysharps },  // E
  { mostlyflats,   mix1         },  // F
  { mostlysharps,  mostlyflats  },  // F# Gb
  { mostlyflats,   mix2         },  // G
  { mostlysharps,  mostlyflats  },  // G# Ab
  { mix1,          mostlysharps },  // A
  { mostlyflats,   mostlyflats  },  // A# Bb
  { mix2,          mostlysharps },  // B
}};
// clang-format on
constexpr RootModes unknownroot{mostlyflats, mix1};

bool isminor(std::string_view chordname)
{
    constexpr std::string_view word{"minor"};
    const auto same = [](unsigned char c, char w) { return std::tolower(c) == w; };
    return !std::ranges::search(chordname, word, same).empty();
}

} // namespace

std::optional<SpellingMode> suitingmode(std::string_view chordname, std::string_view root)
{
    if (isblank(chordname) || isblank(root))
        return std::nullopt;
    const PitchClass pitch = notenumber(root);
    const RootModes modes = pitch == nonote ? unknownroot : modesbyroot.at(static_cast<std::size_t>(pitch));
    return isminor(chordname) ? modes.minor : modes.other;
}

} // namespace core
