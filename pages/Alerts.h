// The alerts of the show and apply routines, named by what they say. Their numbers
// are the ids of the string table, which are keys in language files.
#pragma once

#include <cstdint>

namespace korvane {

enum class Alert : std::uint16_t {
    None = 0,
    OnlyNt2000Xp = 2002,
    Only2000Xp = 2003,
    OnlyXp = 2004,
    MenuNameMissing = 2005,
    AlternatePathMissing = 2006,
    LogFolderMissing = 2007,
    DumpFileMissing = 2008,
    InstructionCountMissing = 2009,
    WaveFileMissing = 2010,
    Only2000MeXp = 2011,
    ProgramPathMissing = 2012,
    SmoothingFor9xOnNt = 2013,
    SmoothingForNtOn9x = 2014,
    Only98Me2000Xp = 2015,
    OnlyBeforeXp = 2016,
    Only9x2000Xp = 2017,
    Not95 = 2018,
    Only2000 = 2019,
    ResponseTimeMissing = 2020,
    OnlyMeXp = 2021,
    Only98 = 2022,
};

}  // namespace korvane
