#pragma once

#include "Contest.h"

#include <Utilities/DateTimeComponentInfo.h>

#include <random>
#include <string>
#include <vector>

namespace Benchmarks
{

constexpr std::size_t c_pointsCount = 1'000'000;
constexpr unsigned long long c_ticksTo1970 = 116'444'736'000'000'000;

/// A million random points from 1970 to 2069.
inline std::vector<unsigned long long> const& GetTicks()
{
    static auto const s_ticks = []
    {
        std::mt19937_64 engine(2024);
        std::vector<unsigned long long> ticks(c_pointsCount);
        for (unsigned long long& point : ticks)
            point = c_ticksTo1970 + engine() % (36'525ULL * 864'000'000'000);
        return ticks;
    }();
    return s_ticks;
}

inline unsigned long long ToNumber(Vek::Framework::Utilities::DateTimeComponentInfo const& value)
{
    unsigned long long number = static_cast<unsigned>(value.GetYear()) * 13U + value.GetMonth();
    for (unsigned part : { value.GetDayOfMonth() + 0U, static_cast<unsigned>(value.GetDayOfWeek()),
                           value.GetHour() + 0U, value.GetMinute() + 0U, value.GetSecond() + 0U })
        number = number * 61 + part;
    return number;
}

/// The first `count` points, each made into an operand.
template <class Make>
auto MakeAll(std::size_t count, Make const& make)
{
    return [=]
    {
        std::vector<decltype(make(GetTicks()[0]))> operands;
        for (std::size_t i = 0; i < count; ++i)
            operands.push_back(make(GetTicks()[i]));
        return operands;
    };
}

template <class Dates>
void RegisterSteps(std::string const& contestant)
{
    using Point = typename Dates::Point;
    auto const points = MakeAll(c_pointsCount, Dates::FromTicks);
    RegisterForEach(
        "DateToComponents/" + contestant, points, [](Point const& point) { return Dates::Split(point); }, ToNumber);
    RegisterForEach(
        "DateFromComponents/" + contestant,
        MakeAll(c_pointsCount, [](unsigned long long ticks) { return Dates::Split(Dates::FromTicks(ticks)); }),
        [](auto const& components) { return Dates::Join(components); }, Dates::ToTicks);
    for (int months : { 1, -18 })
    {
        auto const step = Dates::MakeMonths(months);
        RegisterForEach((months == 1 ? "DateNextMonth/" : "Date18MonthsBefore/") + contestant, points,
                        [step](Point const& point) { return Dates::AddMonths(point, step); }, Dates::ToTicks);
    }
}

template <class Dates>
void RegisterTexts(std::string const& contestant)
{
    auto const make = [](unsigned long long ticks) { return Dates::Format(Dates::FromTicks(ticks)); };
    constexpr std::size_t count = 10'000;
    auto const plain = [](auto const& text) { return std::string(text.begin(), text.end()); };
    RegisterForEach(
        "DateFormatGerman/" + contestant, MakeAll(count, Dates::FromTicks),
        [](typename Dates::Point const& point) { return Dates::Format(point); }, plain);
    RegisterForEach(
        "DateParseGerman/" + contestant, MakeAll(count, make), [](auto const& text) { return Dates::Parse(text); },
        Dates::ToTicks);
}

} // namespace Benchmarks
