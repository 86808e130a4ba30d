#include <SysBase/VekDateEnv.h>

#include <SysBase/Internal/BusinessDays.h>

#include <array>
#include <cstddef>

namespace VekSysBase
{

namespace
{

using namespace Internal;

VekDateEx GetNext(FreeDays kind, VekDateEx const& date, unsigned int days)
{
    YearDay first;
    bool const isValid = TryGetYearDay(date, first);
    if (!isValid)
        first = GetYearDay(date);
    bool const isFirstFree = isValid ? Contains(kind, first) : Contains(kind, date);
    if (days == 0 && !isFirstFree)
        return date; // as it is, also if it is invalid
    long long freeDays = Count(kind, first, days + 1LL);
    if (!isValid) // it may stand for a holiday, but is none
        freeDays += (isFirstFree ? 1 : 0) - (Contains(kind, first) ? 1 : 0);
    return GetDate(FindOutside(kind, Add(first, days + freeDays), 1));
}

constexpr VekDateEx ComputeOstersonntag(unsigned int year)
{
    int const day = 22 + static_cast<int>(GetEaster(year)); // of March, running on into April
    auto const storedYear = static_cast<int>(year & 0xFFFF);
    return day <= 31 ? VekDateEx(day, 3, storedYear) : VekDateEx(day - 31, 4, storedYear);
}

constexpr auto c_ostersonntage = []
{
    std::array<VekDateEx, c_knownYears> dates{};
    for (std::size_t i = 0; i < dates.size(); ++i)
        dates[i] = ComputeOstersonntag(static_cast<unsigned int>(c_firstKnownYear + i));
    return dates;
}();

} // namespace

VekDateEx VekDateEnv::GetOstersonntag(unsigned int year) const noexcept
{
    std::size_t const known = year - static_cast<unsigned int>(c_firstKnownYear);
    return known < c_knownYears ? c_ostersonntage[known] : ComputeOstersonntag(year);
}

bool VekDateEnv::IsFeiertag(VekDateEx const& date) const noexcept
{
    return Contains(FreeDays::Feiertag, date);
}

VekDateEx VekDateEnv::GetNextWerktag(VekDateEx const& date, unsigned int days) const noexcept
{
    return GetNext(FreeDays::Werktag, date, days);
}

VekDateEx VekDateEnv::GetNextBankwerktag(VekDateEx const& date, unsigned int days) const noexcept
{
    return GetNext(FreeDays::Bankwerktag, date, days);
}

VekDateEx VekDateEnv::GetCurrentOrPreviousBankwerktag(VekDateEx const& date) const noexcept
{
    if (!Contains(FreeDays::Bankwerktag, date))
        return date;
    return GetDate(FindOutside(FreeDays::Bankwerktag, Add(GetYearDay(date), -1), -1));
}

bool VekDateEnv::GetFreeWerktag(VekDateEx const& date) const noexcept
{
    return Contains(FreeDays::Werktag, date);
}

bool VekDateEnv::GetFreeBankwerktag(VekDateEx const& date) const noexcept
{
    return Contains(FreeDays::Bankwerktag, date);
}

} // namespace VekSysBase
