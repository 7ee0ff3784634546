// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/notes.h"
#include "instruments/families.h"
#include "instruments/layouts.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace instruments {

/// One way to tune one instrument.
struct Tuning {
    Family family;
    std::string_view name;   ///< as listed
    std::string_view setter; ///< the tuning itself: names with one setter are the same tuning
    StringLayout layout;
    std::string_view notes; ///< open notes from row 5 upward, in sharp names, a blank between; see `opennote`

    /// Open note of grid row `row` (0..5); empty above the tuning's highest row.
    constexpr std::string_view opennote(int row) const;
    /// Highest grid row that the tuning writes. Rows above the layout's first row are written too, but stay hidden.
    constexpr int toprow() const { return lastrow - static_cast<int>(std::ranges::count(notes, ' ')); }
};

constexpr std::string_view Tuning::opennote(int row) const
{
    std::string_view rest = notes;
    for (int skip = lastrow - row; skip > 0; --skip) {
        const auto end = rest.find(' ');
        if (end == std::string_view::npos)
            return {};
        rest.remove_prefix(end + 1);
    }
    return rest.substr(0, rest.find(' '));
}

namespace detail {
using enum Family;
using enum StringLayout;

// The figures are the program's own catalogue. Some differ from what a name suggests; they are kept as they are.
// The two basses tuned as a guitar less its high strings write the guitar's notes into the hidden rows as well.
// clang-format off
inline constexpr auto tunings = std::to_array<Tuning>({
//  family     name as listed               setter               layout        open notes, row 5 upward
  { guitar,    "Standard 6 or 12 string",   "string6gn",         sixstrings,   "E A D G B E"         },
  { guitar,    "Drop D tuning",             "string6gdropd",     sixstrings,   "D A D G B E"         },
  { guitar,    "Drop D tuning 2",           "string6gdropd2",    sixstrings,   "D A D G B D"         },
  { guitar,    "Open G tuning",             "string6gopeng",     sixstrings,   "D G D G B D"         },
  { guitar,    "Open C tuning 1",           "string6gopenc1",    sixstrings,   "C G C G C E"         },
  { guitar,    "Open C tuning 2",           "string6gopenc2",    sixstrings,   "C G C E G C"         },
  { guitar,    "Open D tuning",             "string6gopend",     sixstrings,   "D A D F# A D"        },
  { guitar,    "Open g minor",              "string6gopengm",    sixstrings,   "D A# G D G D"        },
  { guitar,    "D modal DADGAD",            "string6gdmodal",    sixstrings,   "D A D G A D"         },
  { guitar,    "D modal DADDAD",            "string6gdmodal2",   sixstrings,   "D A D D A D"         },
  { guitar,    "D minor",                   "string6gdmin",      sixstrings,   "D A D F A D"         },
  { guitar,    "Fourths",                   "string6g4th",       sixstrings,   "E A D G C F"         },
  { guitar,    "G 6th",                     "string6gG6",        sixstrings,   "D G D G B E"         },
  { guitar,    "C 6th",                     "string6gC6",        sixstrings,   "C G C G A E"         },
  { guitar,    "Low C",                     "string6glowc",      sixstrings,   "C G D G A D"         },
  { guitar,    "Open E",                    "string6gopene2",    sixstrings,   "E B E G# B E"        },
  { guitar,    "Standard -1",               "string6gm1",        sixstrings,   "D# G# C# F# A# D#"   },
  { guitar,    "Standard -2",               "string6gm2",        sixstrings,   "D G C F A D"         },
  { guitar,    "Standard -3",               "string6gm3",        sixstrings,   "C# F# B E G# C#"     },
  { guitar,    "Standard -4",               "string6gm4",        sixstrings,   "C F A# D# G C"       },
  { guitar,    "Soprano Guitar",            "string6gsoprano",   sixstrings,   "E A D G B E"         },
  { guitar,    "Alto Guitar",               "string6galto",      sixstrings,   "B E A D F# B"        },
  { guitar,    "Tenor Guitar 1 GDAE",       "string4gt1",        fourstrings,  "G D A E"             },
  { guitar,    "Tenor Guitar 2 DGBE",       "string4gt2",        fourstrings,  "D G B E"             },
  { guitar,    "Treble Guitar",             "string6gtreble",    sixstrings,   "A D G C E A"         },
  { guitar,    "Baritone Guitar",           "string6gbari",      sixstrings,   "A D G C E A"         },
  { guitar,    "Bass Guitar",               "string6gbass",      sixstrings,   "B E A D F# B"        },
  { guitar,    "Contra Guitar",             "string6gcontrag",   sixstrings,   "E A D G B E"         },
  { guitar,    "Contra Bass",               "string6gcontrab",   sixstrings,   "E A D G B E"         },
  { guitar,    "Terz Guitar",               "string6gterz",      sixstrings,   "G C F A# D G"        },
  { guitar,    "Lute Guitar Tuning",        "string6glute",      sixstrings,   "E A D F# B E"        },
  { guitar,    "Requinto  G tuning",        "string6greqg",      sixstrings,   "G C F A# D G"        },
  { guitar,    "Requinto  A tuning",        "string6greqa",      sixstrings,   "A D G C E A"         },
  { guitar,    "Quint Guitar",              "string6quint",      sixstrings,   "B E A D F# B"        },
  { guitar,    "Vihuelita",                 "string6gvih",       fivestrings,  "C F A# D G"          },
  { guitar,    "Tiple 1  DGBE",             "string4gtip1",      fourstrings,  "D G B E"             },
  { guitar,    "Tiple 2  CEAD",             "string4gtip2",      fourstrings,  "C E A D"             },
  { guitar,    "Tiple 3  ADF#B",            "string4gtip3",      fourstrings,  "A D F# B"            },

  { bass,      "4 string normal EADG",      "bstring4n1",        fourstrings,  "E A D G B E"         },
  { bass,      "4 string tenor ADGC",       "bstringn2",         fourstrings,  "A D G C"             },
  { bass,      "4 string Drop D  DADG",     "bstring4dropd",     fourstrings,  "D A D G"             },
  { bass,      "4 string Drop D,G  DGDG",   "bstring4dropdg",    fourstrings,  "D G D G"             },
  { bass,      "5 string normal BEADG",     "bstring5n1",        fivestrings,  "B E A D G"           },
  { bass,      "5 string higher EADGC",     "bstring5n2",        fivestrings,  "E A D G C"           },
  { bass,      "5 string guitar EADGB",     "bstring5n3",        fivestrings,  "E A D G B E"         },
  { bass,      "6 string normal BEADGC",    "bstring6n1",        sixstrings,   "B E A D G C"         },
  { bass,      "6 string guitar EADGBE",    "bstring6n2",        sixstrings,   "E A D G B E"         },
  { bass,      "6 string B top  BEADGB",    "bstring6nbt",       sixstrings,   "B E A D G B"         },

  { ukulele,   "Standard Tuning",           "string4uc",         fourstrings,  "G C E A"             },
  { ukulele,   "C tuning",                  "string4uc",         fourstrings,  "G C E A"             },
  { ukulele,   "G tuning",                  "string4ug",         fourstrings,  "D G B E"             },
  { ukulele,   "D tuning",                  "string4ud",         fourstrings,  "A D F# B"            },
  { ukulele,   "Soprano Ukulele",           "string4uc",         fourstrings,  "G C E A"             },
  { ukulele,   "Concert Ukulele",           "string4uc",         fourstrings,  "G C E A"             },
  { ukulele,   "Tenor Ukulele",             "string4uc",         fourstrings,  "G C E A"             },
  { ukulele,   "Baritone Ukulele",          "string4ug",         fourstrings,  "D G B E"             },

  { banjo,     "5 string normal",           "string5bg",         shortfifth,   "G D G B D"           },
  { banjo,     "5 string G Major",          "string5bg",         shortfifth,   "G D G B D"           },
  { banjo,     "5 string G minor",          "string5bgmin",      shortfifth,   "G D G A# D"          },
  { banjo,     "5 string G modal",          "string5bgmod",      shortfifth,   "G D G C D"           },
  { banjo,     "5 string D Major",          "string5bdmaj",      shortfifth,   "F# D F# A D"         },
  { banjo,     "5 string D Major A low",    "string5bdmaja",     shortfifth,   "A D F# A D"          },
  { banjo,     "5 string D minor",          "string5bdmin",      shortfifth,   "A D F A D"           },
  { banjo,     "5 string C tuning",         "string5bc",         shortfifth,   "G C G B D"           },
  { banjo,     "5 string Double C",         "string5bc2",        shortfifth,   "G C G C D"           },
  { banjo,     "4 string normal, Jazz",     "string4bn",         fourstrings,  "C G B D"             },
  { banjo,     "4 string Chicago tune",     "string4bchi",       fourstrings,  "D G B E"             },
  { banjo,     "4 string Celtic tune",      "string4bcel",       fourstrings,  "G D A E"             },
  { banjo,     "Banjo Mandolin",            "string4bman",       fourstrings,  "G D A E"             },
  { banjo,     "Banjo Ukulele",             "string4buke",       fourstrings,  "G C E A"             },

  { mandolin,  "Standard Tuning",           "string4ms",         fourstrings,  "G D A E"             },
  { mandolin,  "Mandola  CGDA",             "string4mola",       fourstrings,  "C G D A"             },
  { mandolin,  "Octave Mandolin  GDAE",     "string4moct",       fourstrings,  "G D A E"             },
  { mandolin,  "Mando - Cello  CGDA",       "string4mcello",     fourstrings,  "C G D A"             },
  { mandolin,  "Bouzouki 1  DADA",          "string4mbouz1",     fourstrings,  "D A D A"             },
  { mandolin,  "Bouzouki 2  DGBE",          "string4mbouz2",     fourstrings,  "D G B E"             },
  { mandolin,  "Bouzouki 3  GDAE",          "string4mbouz3",     fourstrings,  "G D A E"             },
  { mandolin,  "Bouzouki 4  DAFC",          "string4mbouz4",     fourstrings,  "D A F C"             },
  { mandolin,  "Bouzouki 5  GDAD",          "string4mbouz5",     fourstrings,  "G D A D"             },
  { mandolin,  "Bouzouki 6  ADAD",          "string4mbouz6",     fourstrings,  "A D A D"             },
  { mandolin,  "Bouzouki 7  DAEA",          "string4mbouz7",     fourstrings,  "D A E A"             },
  { mandolin,  "Bouzouki 8  ADAE",          "string4mbouz8",     fourstrings,  "A D A E"             },
  { mandolin,  "Cittern normal  GDAE",      "string4mcit1",      fourstrings,  "G D A E"             },
  { mandolin,  "Cittern Open G  DGCD",      "string4mcit2",      fourstrings,  "D G C D"             },
  { mandolin,  "Cittern  3   DGCD",         "string4mcit3",      fourstrings,  "D G C D"             },
  { mandolin,  "Cittern  4   ADAD",         "string4mcit4",      fourstrings,  "A D A D"             },
  { mandolin,  "Cittern  5   ADAE",         "string4mcit5",      fourstrings,  "A D A E"             },
  { mandolin,  "Cittern  6   DAEA",         "string4mcit6",      fourstrings,  "D A E A"             },
  { mandolin,  "Cittern  7   GCGC",         "string4mcit7",      fourstrings,  "G C G C"             },
  { mandolin,  "Cittern  8   GDGD",         "string4mcit8",      fourstrings,  "G D G D"             },
  { mandolin,  "Cittern  9   CGDAE",        "string4mcit9",      fivestrings,  "C G D A E"           },
  { mandolin,  "Cittern  10   DGDAD",       "string4mcit10",     fivestrings,  "D G D A D"           },
  { mandolin,  "Cittern  11   DGDGD",       "string4mcit11",     fivestrings,  "D G D G D"           },
  { mandolin,  "Cittern  12   DADAD",       "string4mcit12",     fivestrings,  "D A D A D"           },
  { mandolin,  "Cittern  13   DAEAE",       "string4mcit13",     fivestrings,  "D A E A E"           },
  { mandolin,  "Cittern  14   GDAEA",       "string4mcit14",     fivestrings,  "G D A E A"           },
  { mandolin,  "Cittern  15   GDAEB",       "string4mcit15",     fivestrings,  "G D A E B"           },
  { mandolin,  "Cittern  16   GDADA",       "string4mcit16",     fivestrings,  "G D A D A"           },
  { mandolin,  "Cittern  17   GDADG",       "string4mcit17",     fivestrings,  "G D A D G"           },
  { mandolin,  "Cittern  18   ADADA",       "string4mcit18",     fivestrings,  "A D A D A"           },

  { violin,    "Violin (or Fiddle)",        "string4vnorm",      fourstrings,  "G D A E"             },
  { violin,    "Viola",                     "string4viola",      fourstrings,  "C G D A"             },
  { violin,    "Cello",                     "string4vcello",     fourstrings,  "C G D A"             },
  { violin,    "Soprano Violin",            "string4vsoprano",   fourstrings,  "C G D A"             },
  { violin,    "Treble Violin",             "string4vtreble",    fourstrings,  "G D A E"             },
  { violin,    "Tenor Violin",              "string4vtenor",     fourstrings,  "G D A E"             },
  { violin,    "Baritone Violin",           "string4vbaritone",  fourstrings,  "C G D A"             },
  { violin,    "Bass Violin",               "string4vbass",      fourstrings,  "E A D G"             },
  { violin,    "Double Bass",               "string4vbass",      fourstrings,  "E A D G"             },
  { violin,    "Contrabass",                "string4vbass",      fourstrings,  "E A D G"             },
  { violin,    "Bass (Bull) Fiddle",        "string4vbass",      fourstrings,  "E A D G"             },
  { violin,    "Viol   Treble",             "stringvvioltreb",   sixstrings,   "D G C E A D"         },
  { violin,    "Viol   Tenor",              "stringvvioltenor",  sixstrings,   "G C F A D G"         },
  { violin,    "Viol   Bass",               "stringvviolbass",   sixstrings,   "D G C E A D"         },

  { steel,     "Open G",                    "stringsdopeng",     sixstrings,   "G B D G B D"         },
  { steel,     "Open A",                    "stringsdopena",     sixstrings,   "A C# E A C# E"       },
  { steel,     "Open E",                    "stringsdopene",     sixstrings,   "E B E G# B E"        },
  { steel,     "Open D",                    "stringsdopend",     sixstrings,   "D A D F# A D"        },
  { steel,     "C 6th",                     "stringsdc61",       sixstrings,   "A C E G C E"         },
  { steel,     "C 6th 2",                   "stringsdc62",       sixstrings,   "G C G A C E"         },
  { steel,     "G 6th",                     "stringsdg61",       sixstrings,   "G B E G B D"         },
  { steel,     "G 6th 2",                   "stringsdg62",       sixstrings,   "G B D E G B"         },
  { steel,     "Low Bass A, Hawaiian A",    "stringsdlba",       sixstrings,   "E A E A C# E"        },
  { steel,     "Low Bass G",                "stringsdlbg",       sixstrings,   "D G D G B D"         },
  { steel,     "E minor 7th 1",             "stringsdemin1",     sixstrings,   "E B D G B E"         },
  { steel,     "E minor 7th 2",             "stringsdemin2",     sixstrings,   "E B D G B D"         },

  { lute,      "Lute new  GCFADG",          "stringsln",         sixstrings,   "G C F A D G"         },
  { lute,      "Lute sharp  GCFACE",        "stringslsh",        sixstrings,   "G C F A C E"         },
  { lute,      "Lute Flat  GCFG#CD#",       "stringslflat",      sixstrings,   "G C F G# C D#"       },
  { lute,      "Accord Nouveau ADFADF",     "stringslacn",       sixstrings,   "A D F A D F"         },
  { lute,      "Oud Standard DGADGC",       "stringson",         sixstrings,   "D G A D G C"         },
  { lute,      "Oud classical ADEADG",      "stringsocl",        sixstrings,   "A D E A D G"         },
  { lute,      "Oud new  F#BEADG",          "stringsonew",       sixstrings,   "F# B E A D G"        },
  { lute,      "Oud Turk-Arm EABEAD",       "stringsota1",       sixstrings,   "E A B E A D"         },
  { lute,      "Oud Turk-Arm 2 C#F#BEAD",   "stringsota2",       sixstrings,   "C# F# B E A D"       },
  { lute,      "Cumbus  DEADGC",            "stringscum",        sixstrings,   "D E A D G C"         },
});
// clang-format on

constexpr bool notesfitlayout(const Tuning& t)
{
    for (int row = t.toprow(); row < rowcount; ++row)
        if (std::ranges::find(core::sharpnames, t.opennote(row)) == core::sharpnames.end())
            return false;
    return t.toprow() <= layoutrow(t.layout).firstrow;
}
} // namespace detail

using detail::tunings;

static_assert(tunings.size() == 136);
static_assert(std::ranges::all_of(tunings, detail::notesfitlayout));
static_assert(std::ranges::is_sorted(tunings, {}, &Tuning::family));

/// The tuning that a family lists under `name`, exactly as written; none: nullptr.
constexpr const Tuning* findtuning(Family family, std::string_view name)
{
    const auto* found =
        std::ranges::find_if(tunings, [&](const Tuning& t) { return t.family == family && t.name == name; });
    return found == tunings.end() ? nullptr : found;
}

} // namespace instruments
