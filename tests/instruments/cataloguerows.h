// SPDX-FileCopyrightText: 2026 The tonefret developers
// SPDX-License-Identifier: MIT
#pragma once

#include <array>

namespace tests {

/// What a tuning lays out: so many strings, or a banjo's four and its short fifth.
enum class Strings { four, five, six, banjo };

/// A tuning as the catalogue must have it, in the order in which the families list them.
struct CatalogueRow {
    const char* family; ///< as its selector shows it
    const char* name;
    const char* setter;
    Strings strings;
    const char* notes; ///< open notes from row 5 upward, one for each string
};

inline constexpr auto four = Strings::four;
inline constexpr auto five = Strings::five;
inline constexpr auto six = Strings::six;
inline constexpr auto banjo = Strings::banjo;

// clang-format off
inline constexpr auto cataloguerows = std::to_array<CatalogueRow>({
    { "       GUITAR", "Standard 6 or 12 string",   "string6gn",         six,   "E A D G B E"         },
    { "       GUITAR", "Drop D tuning",             "string6gdropd",     six,   "D A D G B E"         },
    { "       GUITAR", "Drop D tuning 2",           "string6gdropd2",    six,   "D A D G B D"         },
    { "       GUITAR", "Open G tuning",             "string6gopeng",     six,   "D G D G B D"         },
    { "       GUITAR", "Open C tuning 1",           "string6gopenc1",    six,   "C G C G C E"         },
    { "       GUITAR", "Open C tuning 2",           "string6gopenc2",    six,   "C G C E G C"         },
    { "       GUITAR", "Open D tuning",             "string6gopend",     six,   "D A D F# A D"        },
    { "       GUITAR", "Open g minor",              "string6gopengm",    six,   "D A# G D G D"        },
    { "       GUITAR", "D modal DADGAD",            "string6gdmodal",    six,   "D A D G A D"         },
    { "       GUITAR", "D modal DADDAD",            "string6gdmodal2",   six,   "D A D D A D"         },
    { "       GUITAR", "D minor",                   "string6gdmin",      six,   "D A D F A D"         },
    { "       GUITAR", "Fourths",                   "string6g4th",       six,   "E A D G C F"         },
    { "       GUITAR", "G 6th",                     "string6gG6",        six,   "D G D G B E"         },
    { "       GUITAR", "C 6th",                     "string6gC6",        six,   "C G C G A E"         },
    { "       GUITAR", "Low C",                     "string6glowc",      six,   "C G D G A D"         },
    { "       GUITAR", "Open E",                    "string6gopene2",    six,   "E B E G# B E"        },
    { "       GUITAR", "Standard -1",               "string6gm1",        six,   "D# G# C# F# A# D#"   },
    { "       GUITAR", "Standard -2",               "string6gm2",        six,   "D G C F A D"         },
    { "       GUITAR", "Standard -3",               "string6gm3",        six,   "C# F# B E G# C#"     },
    { "       GUITAR", "Standard -4",               "string6gm4",        six,   "C F A# D# G C"       },
    { "       GUITAR", "Soprano Guitar",            "string6gsoprano",   six,   "E A D G B E"         },
    { "       GUITAR", "Alto Guitar",               "string6galto",      six,   "B E A D F# B"        },
    { "       GUITAR", "Tenor Guitar 1 GDAE",       "string4gt1",        four,  "G D A E"             },
    { "       GUITAR", "Tenor Guitar 2 DGBE",       "string4gt2",        four,  "D G B E"             },
    { "       GUITAR", "Treble Guitar",             "string6gtreble",    six,   "A D G C E A"         },
    { "       GUITAR", "Baritone Guitar",           "string6gbari",      six,   "A D G C E A"         },
    { "       GUITAR", "Bass Guitar",               "string6gbass",      six,   "B E A D F# B"        },
    { "       GUITAR", "Contra Guitar",             "string6gcontrag",   six,   "E A D G B E"         },
    { "       GUITAR", "Contra Bass",               "string6gcontrab",   six,   "E A D G B E"         },
    { "       GUITAR", "Terz Guitar",               "string6gterz",      six,   "G C F A# D G"        },
    { "       GUITAR", "Lute Guitar Tuning",        "string6glute",      six,   "E A D F# B E"        },
    { "       GUITAR", "Requinto  G tuning",        "string6greqg",      six,   "G C F A# D G"        },
    { "       GUITAR", "Requinto  A tuning",        "string6greqa",      six,   "A D G C E A"         },
    { "       GUITAR", "Quint Guitar",              "string6quint",      six,   "B E A D F# B"        },
    { "       GUITAR", "Vihuelita",                 "string6gvih",       five,  "C F A# D G"          },
    { "       GUITAR", "Tiple 1  DGBE",             "string4gtip1",      four,  "D G B E"             },
    { "       GUITAR", "Tiple 2  CEAD",             "string4gtip2",      four,  "C E A D"             },
    { "       GUITAR", "Tiple 3  ADF#B",            "string4gtip3",      four,  "A D F# B"            },

    { "         BASS", "4 string normal EADG",      "bstring4n1",        four,  "E A D G"             },
    { "         BASS", "4 string tenor ADGC",       "bstringn2",         four,  "A D G C"             },
    { "         BASS", "4 string Drop D  DADG",     "bstring4dropd",     four,  "D A D G"             },
    { "         BASS", "4 string Drop D,G  DGDG",   "bstring4dropdg",    four,  "D G D G"             },
    { "         BASS", "5 string normal BEADG",     "bstring5n1",        five,  "B E A D G"           },
    { "         BASS", "5 string higher EADGC",     "bstring5n2",        five,  "E A D G C"           },
    { "         BASS", "5 string guitar EADGB",     "bstring5n3",        five,  "E A D G B"           },
    { "         BASS", "6 string normal BEADGC",    "bstring6n1",        six,   "B E A D G C"         },
    { "         BASS", "6 string guitar EADGBE",    "bstring6n2",        six,   "E A D G B E"         },
    { "         BASS", "6 string B top  BEADGB",    "bstring6nbt",       six,   "B E A D G B"         },

    { "      UKULELE", "Standard Tuning",           "string4uc",         four,  "G C E A"             },
    { "      UKULELE", "C tuning",                  "string4uc",         four,  "G C E A"             },
    { "      UKULELE", "G tuning",                  "string4ug",         four,  "D G B E"             },
    { "      UKULELE", "D tuning",                  "string4ud",         four,  "A D F# B"            },
    { "      UKULELE", "Soprano Ukulele",           "string4uc",         four,  "G C E A"             },
    { "      UKULELE", "Concert Ukulele",           "string4uc",         four,  "G C E A"             },
    { "      UKULELE", "Tenor Ukulele",             "string4uc",         four,  "G C E A"             },
    { "      UKULELE", "Baritone Ukulele",          "string4ug",         four,  "D G B E"             },

    { "        BANJO", "5 string normal",           "string5bg",         banjo, "G D G B D"           },
    { "        BANJO", "5 string G Major",          "string5bg",         banjo, "G D G B D"           },
    { "        BANJO", "5 string G minor",          "string5bgmin",      banjo, "G D G A# D"          },
    { "        BANJO", "5 string G modal",          "string5bgmod",      banjo, "G D G C D"           },
    { "        BANJO", "5 string D Major",          "string5bdmaj",      banjo, "F# D F# A D"         },
    { "        BANJO", "5 string D Major A low",    "string5bdmaja",     banjo, "A D F# A D"          },
    { "        BANJO", "5 string D minor",          "string5bdmin",      banjo, "A D F A D"           },
    { "        BANJO", "5 string C tuning",         "string5bc",         banjo, "G C G B D"           },
    { "        BANJO", "5 string Double C",         "string5bc2",        banjo, "G C G C D"           },
    { "        BANJO", "4 string normal, Jazz",     "string4bn",         four,  "C G B D"             },
    { "        BANJO", "4 string Chicago tune",     "string4bchi",       four,  "D G B E"             },
    { "        BANJO", "4 string Celtic tune",      "string4bcel",       four,  "G D A E"             },
    { "        BANJO", "Banjo Mandolin",            "string4bman",       four,  "G D A E"             },
    { "        BANJO", "Banjo Ukulele",             "string4buke",       four,  "G C E A"             },

    { "     MANDOLIN", "Standard Tuning",           "string4ms",         four,  "G D A E"             },
    { "     MANDOLIN", "Mandola  CGDA",             "string4mola",       four,  "C G D A"             },
    { "     MANDOLIN", "Octave Mandolin  GDAE",     "string4moct",       four,  "G D A E"             },
    { "     MANDOLIN", "Mando - Cello  CGDA",       "string4mcello",     four,  "C G D A"             },
    { "     MANDOLIN", "Bouzouki 1  DADA",          "string4mbouz1",     four,  "D A D A"             },
    { "     MANDOLIN", "Bouzouki 2  DGBE",          "string4mbouz2",     four,  "D G B E"             },
    { "     MANDOLIN", "Bouzouki 3  GDAE",          "string4mbouz3",     four,  "G D A E"             },
    { "     MANDOLIN", "Bouzouki 4  DAFC",          "string4mbouz4",     four,  "D A F C"             },
    { "     MANDOLIN", "Bouzouki 5  GDAD",          "string4mbouz5",     four,  "G D A D"             },
    { "     MANDOLIN", "Bouzouki 6  ADAD",          "string4mbouz6",     four,  "A D A D"             },
    { "     MANDOLIN", "Bouzouki 7  DAEA",          "string4mbouz7",     four,  "D A E A"             },
    { "     MANDOLIN", "Bouzouki 8  ADAE",          "string4mbouz8",     four,  "A D A E"             },
    { "     MANDOLIN", "Cittern normal  GDAE",      "string4mcit1",      four,  "G D A E"             },
    { "     MANDOLIN", "Cittern Open G  DGCD",      "string4mcit2",      four,  "D G C D"             },
    { "     MANDOLIN", "Cittern  3   DGCD",         "string4mcit3",      four,  "D G C D"             },
    { "     MANDOLIN", "Cittern  4   ADAD",         "string4mcit4",      four,  "A D A D"             },
    { "     MANDOLIN", "Cittern  5   ADAE",         "string4mcit5",      four,  "A D A E"             },
    { "     MANDOLIN", "Cittern  6   DAEA",         "string4mcit6",      four,  "D A E A"             },
    { "     MANDOLIN", "Cittern  7   GCGC",         "string4mcit7",      four,  "G C G C"             },
    { "     MANDOLIN", "Cittern  8   GDGD",         "string4mcit8",      four,  "G D G D"             },
    { "     MANDOLIN", "Cittern  9   CGDAE",        "string4mcit9",      five,  "C G D A E"           },
    { "     MANDOLIN", "Cittern  10   DGDAD",       "string4mcit10",     five,  "D G D A D"           },
    { "     MANDOLIN", "Cittern  11   DGDGD",       "string4mcit11",     five,  "D G D G D"           },
    { "     MANDOLIN", "Cittern  12   DADAD",       "string4mcit12",     five,  "D A D A D"           },
    { "     MANDOLIN", "Cittern  13   DAEAE",       "string4mcit13",     five,  "D A E A E"           },
    { "     MANDOLIN", "Cittern  14   GDAEA",       "string4mcit14",     five,  "G D A E A"           },
    { "     MANDOLIN", "Cittern  15   GDAEB",       "string4mcit15",     five,  "G D A E B"           },
    { "     MANDOLIN", "Cittern  16   GDADA",       "string4mcit16",     five,  "G D A D A"           },
    { "     MANDOLIN", "Cittern  17   GDADG",       "string4mcit17",     five,  "G D A D G"           },
    { "     MANDOLIN", "Cittern  18   ADADA",       "string4mcit18",     five,  "A D A D A"           },

    { "       VIOLIN", "Violin (or Fiddle)",        "string4vnorm",      four,  "G D A E"             },
    { "       VIOLIN", "Viola",                     "string4viola",      four,  "C G D A"             },
    { "       VIOLIN", "Cello",                     "string4vcello",     four,  "C G D A"             },
    { "       VIOLIN", "Soprano Violin",            "string4vsoprano",   four,  "C G D A"             },
    { "       VIOLIN", "Treble Violin",             "string4vtreble",    four,  "G D A E"             },
    { "       VIOLIN", "Tenor Violin",              "string4vtenor",     four,  "G D A E"             },
    { "       VIOLIN", "Baritone Violin",           "string4vbaritone",  four,  "C G D A"             },
    { "       VIOLIN", "Bass Violin",               "string4vbass",      four,  "E A D G"             },
    { "       VIOLIN", "Double Bass",               "string4vbass",      four,  "E A D G"             },
    { "       VIOLIN", "Contrabass",                "string4vbass",      four,  "E A D G"             },
    { "       VIOLIN", "Bass (Bull) Fiddle",        "string4vbass",      four,  "E A D G"             },
    { "       VIOLIN", "Viol   Treble",             "stringvvioltreb",   six,   "D G C E A D"         },
    { "       VIOLIN", "Viol   Tenor",              "stringvvioltenor",  six,   "G C F A D G"         },
    { "       VIOLIN", "Viol   Bass",               "stringvviolbass",   six,   "D G C E A D"         },

    { " STEEL, DOBRO", "Open G",                    "stringsdopeng",     six,   "G B D G B D"         },
    { " STEEL, DOBRO", "Open A",                    "stringsdopena",     six,   "A C# E A C# E"       },
    { " STEEL, DOBRO", "Open E",                    "stringsdopene",     six,   "E B E G# B E"        },
    { " STEEL, DOBRO", "Open D",                    "stringsdopend",     six,   "D A D F# A D"        },
    { " STEEL, DOBRO", "C 6th",                     "stringsdc61",       six,   "A C E G C E"         },
    { " STEEL, DOBRO", "C 6th 2",                   "stringsdc62",       six,   "G C G A C E"         },
    { " STEEL, DOBRO", "G 6th",                     "stringsdg61",       six,   "G B E G B D"         },
    { " STEEL, DOBRO", "G 6th 2",                   "stringsdg62",       six,   "G B D E G B"         },
    { " STEEL, DOBRO", "Low Bass A, Hawaiian A",    "stringsdlba",       six,   "E A E A C# E"        },
    { " STEEL, DOBRO", "Low Bass G",                "stringsdlbg",       six,   "D G D G B D"         },
    { " STEEL, DOBRO", "E minor 7th 1",             "stringsdemin1",     six,   "E B D G B E"         },
    { " STEEL, DOBRO", "E minor 7th 2",             "stringsdemin2",     six,   "E B D G B D"         },

    { "    LUTE, OUD", "Lute new  GCFADG",          "stringsln",         six,   "G C F A D G"         },
    { "    LUTE, OUD", "Lute sharp  GCFACE",        "stringslsh",        six,   "G C F A C E"         },
    { "    LUTE, OUD", "Lute Flat  GCFG#CD#",       "stringslflat",      six,   "G C F G# C D#"       },
    { "    LUTE, OUD", "Accord Nouveau ADFADF",     "stringslacn",       six,   "A D F A D F"         },
    { "    LUTE, OUD", "Oud Standard DGADGC",       "stringson",         six,   "D G A D G C"         },
    { "    LUTE, OUD", "Oud classical ADEADG",      "stringsocl",        six,   "A D E A D G"         },
    { "    LUTE, OUD", "Oud new  F#BEADG",          "stringsonew",       six,   "F# B E A D G"        },
    { "    LUTE, OUD", "Oud Turk-Arm EABEAD",       "stringsota1",       six,   "E A B E A D"         },
    { "    LUTE, OUD", "Oud Turk-Arm 2 C#F#BEAD",   "stringsota2",       six,   "C# F# B E A D"       },
    { "    LUTE, OUD", "Cumbus  DEADGC",            "stringscum",        six,   "D E A D G C"         },
});
// clang-format on

} // namespace tests
