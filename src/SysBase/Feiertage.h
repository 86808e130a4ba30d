#pragma once

#include <SysBase/VekDateEx.h>
#include <VekApi.h>

#include <array>
#include <string_view>

namespace VekSysBase
{

/// The Austrian holidays of VekDateEnv.
enum class Feiertag : int
{
    None = 0,
    Neujahr = 1,
    HeiligeDreiKoenige = 2,
    Ostermontag = 3,
    Staatsfeiertag = 4,
    ChristiHimmelfahrt = 5,
    Pfingstmontag = 6,
    Fronleichnam = 7,
    MariaeHimmelfahrt = 8,
    Nationalfeiertag = 9,
    Allerheiligen = 10,
    MariaeEmpfaengnis = 11,
    Christtag = 12,
    Stefanitag = 13,
};

/// None for any other day. Where two meet, as on 1 May 2008, the Staatsfeiertag.
VEK_API Feiertag GetFeiertag(VekDateEx const& date) noexcept;

/// As it is called in Austria, in German; empty for None and for what is no holiday. Valid for ever.
VEK_API std::wstring_view GetFeiertagName(Feiertag feiertag) noexcept;

struct FeiertagDate
{
    VekDateEx date;
    Feiertag feiertag = Feiertag::None;
};

/// The thirteen holidays of the year by date; where two meet, the Staatsfeiertag first. Of a year outside 0 to 65535
/// the low 16 bits count.
VEK_API std::array<FeiertagDate, 13> GetFeiertage(int year) noexcept;

} // namespace VekSysBase
