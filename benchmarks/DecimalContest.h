#pragma once

#include "Contest.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

/// The same operations on several kinds of decimal numbers, all rounding half away from zero where they can: amounts of
/// up to 12 digits with two of them behind the point, and numbers of 34 digits. Every contestant goes through the same
/// thousand operands.
namespace Benchmarks
{

constexpr std::size_t c_operandsCount = 1024;

enum class Size
{
    Money,
    Full
};

inline std::vector<std::string> MakeTexts(Size size, unsigned seed)
{
    std::mt19937_64 engine(seed);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < c_operandsCount; ++i)
    {
        std::size_t const length = size == Size::Full ? 34 : 3 + engine() % 10;
        std::string digits(length, '0');
        for (char& digit : digits)
            digit = static_cast<char>('0' + engine() % 10);
        digits[0] = static_cast<char>('1' + engine() % 9);
        std::size_t const whole = size == Size::Money ? length - 2 : 17 + engine() % 2;
        std::string text(engine() % 4 == 0 ? "-" : "");
        text.append(digits, 0, whole).append(1, '.').append(digits, whole);
        texts.push_back(text);
    }
    return texts;
}

template <class Contestant>
std::vector<typename Contestant::Number> Parse(std::vector<std::string> const& texts)
{
    std::vector<typename Contestant::Number> numbers;
    for (std::string const& text : texts)
        numbers.push_back(Contestant::Parse(Contestant::MakeText(text)));
    return numbers;
}

/// Results that are alike: Boost does not round to 34 digits and is let off by a little.
struct NearNumbers
{
    std::vector<double> values;

    bool operator==(NearNumbers const& other) const
    {
        auto const isNear = [](double a, double b) { return std::abs(a - b) <= 1e-14 * std::abs(a); };
        return std::equal(values.begin(), values.end(), other.values.begin(), other.values.end(), isNear);
    }
};

/// Goes through all operands by their places. Without `toDouble`, what the contestants answer cannot be compared.
template <class Operation, class ToDouble = std::nullptr_t>
void RegisterOperation(std::string const& name, Operation const& operation, ToDouble const& toDouble = nullptr)
{
    auto const run = [=](benchmark::State& state)
    {
        if constexpr (!std::is_same_v<ToDouble, std::nullptr_t>)
        {
            NearNumbers answers;
            for (std::size_t i = 0; i < c_operandsCount; ++i)
                answers.values.push_back(toDouble(operation(i)));
            if (!IsAnswerOfAll(GetWorkload(name), answers))
                state.SkipWithError("another result than the others");
        }
        for (auto _ : state)
            for (std::size_t i = 0; i < c_operandsCount; ++i)
                benchmark::DoNotOptimize(operation(i));
        Report(state, Items{ c_operandsCount });
    };
    benchmark::RegisterBenchmark(name.c_str(), run);
}

template <class Contestant>
void RegisterArithmetic(std::string const& size, std::string const& contestant, std::vector<std::string> const& first,
                        std::vector<std::string> const& second)
{
    auto const a = Parse<Contestant>(first);
    auto const b = Parse<Contestant>(second);
    auto const add = [&](std::string const& workload, auto const& operation)
    {
        RegisterOperation(
            size + workload + "/" + contestant, [=](std::size_t i) { return operation(a[i], b[i]); },
            Contestant::ToDouble);
    };
    add("Add", Contestant::Add);
    add("Subtract", Contestant::Subtract);
    add("Multiply", Contestant::Multiply);
    add("Divide", Contestant::Divide);
    RegisterOperation(
        size + "Compare/" + contestant, [=](std::size_t i) { return Contestant::IsLess(a[i], b[i]); },
        [](bool isLess) { return isLess ? 1.0 : 0.0; });
}

template <class Contestant>
void RegisterTexts(std::string const& size, std::string const& contestant, std::vector<std::string> const& texts)
{
    std::vector<typename Contestant::Text> sources;
    for (std::string const& text : texts)
        sources.push_back(Contestant::MakeText(text));
    auto const numbers = Parse<Contestant>(texts);
    RegisterOperation(
        size + "Parse/" + contestant, [=](std::size_t i) { return Contestant::Parse(sources[i]); },
        Contestant::ToDouble);
    RegisterOperation(size + "Format/" + contestant, [=](std::size_t i) { return Contestant::Format(numbers[i]); });
    if constexpr (requires { Contestant::FormatFresh(numbers[0]); })
        RegisterOperation(size + "FormatFresh/" + contestant,
                          [=](std::size_t i) { return Contestant::FormatFresh(numbers[i]); });
}

template <class Contestant>
void RegisterMoney(std::string const& contestant)
{
    auto const first = MakeTexts(Size::Money, 1);
    auto const second = MakeTexts(Size::Money, 2);
    RegisterArithmetic<Contestant>("Money", contestant, first, second);
    RegisterTexts<Contestant>("Money", contestant, first);
    auto const a = Parse<Contestant>(first);
    benchmark::RegisterBenchmark(("MoneySum/" + contestant).c_str(),
                                 [a](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         auto sum = a[0];
                                         for (auto const& amount : a)
                                             sum = Contestant::Add(sum, amount);
                                         benchmark::DoNotOptimize(&sum);
                                         benchmark::ClobberMemory();
                                     }
                                     Report(state, Items{ c_operandsCount });
                                 });
    if constexpr (requires { Contestant::RoundToCents(a[0]); })
    {
        std::vector<typename Contestant::Number> products;
        auto const b = Parse<Contestant>(second);
        for (std::size_t i = 0; i < c_operandsCount; ++i)
            products.push_back(Contestant::Multiply(a[i], b[i]));
        RegisterOperation(
            "MoneyRoundProduct/" + contestant, [=](std::size_t i) { return Contestant::RoundToCents(products[i]); },
            Contestant::ToDouble);
    }
}

template <class Contestant>
void RegisterDoubles(std::string const& size, std::string const& contestant, std::vector<std::string> const& texts)
{
    auto const numbers = Parse<Contestant>(texts);
    std::vector<double> doubles;
    for (std::string const& text : texts)
        doubles.push_back(std::strtod(text.c_str(), nullptr) / (size == "Full" ? 1e9 : 1.0)); // else it has no fraction
    // Ours drops digits by the rule of its contract, so that the answers differ.
    RegisterOperation(size + "FromDouble/" + contestant,
                      [=](std::size_t i) { return Contestant::FromDouble(doubles[i]); });
    RegisterOperation(
        size + "ToDouble/" + contestant, [=](std::size_t i) { return Contestant::ToDouble(numbers[i]); },
        [](double value) { return value; });
}

template <class Contestant>
void RegisterAll(std::string const& contestant)
{
    RegisterMoney<Contestant>(contestant);
    auto const first = MakeTexts(Size::Full, 3);
    RegisterArithmetic<Contestant>("Full", contestant, first, MakeTexts(Size::Full, 4));
    RegisterTexts<Contestant>("Full", contestant, first);
    if constexpr (requires { Contestant::FromDouble(1.0); })
    {
        RegisterDoubles<Contestant>("Money", contestant, MakeTexts(Size::Money, 1));
        RegisterDoubles<Contestant>("Full", contestant, first);
    }
}

} // namespace Benchmarks
