// Decimal beside other decimal types: amounts of up to 12 digits with two of them behind the point, and numbers of 34
// digits. Every contestant goes through the same thousand operands.

#include "DecimalContestants.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace Benchmarks
{

namespace
{

constexpr std::size_t c_count = 1024;

enum class Size
{
    Money,
    Full
};

std::vector<std::string> MakeTexts(Size size, unsigned seed)
{
    std::mt19937_64 engine(seed);
    std::vector<std::string> texts;
    for (std::size_t i = 0; i < c_count; ++i)
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

template <class Operation>
void Register(std::string const& name, Operation const& operation)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [operation = Operation(operation)](benchmark::State& state) mutable
                                 {
                                     for (auto _ : state)
                                         for (std::size_t i = 0; i < c_count; ++i)
                                             benchmark::DoNotOptimize(operation(i));
                                     state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(c_count));
                                 });
}

/// A result is right if it prints like ours. Boost does not round to 34 digits and is let off by a little.
template <class Contestant>
bool IsNear(double ours, typename Contestant::Number const& result)
{
    double value = 0;
    if constexpr (requires { Contestant::ToDouble(result); })
        value = Contestant::ToDouble(result);
    else
    {
        decNumber number;
        char text[DECIMAL128_String];
        decNumberToString(decimal128ToNumber(reinterpret_cast<decimal128 const*>(&result), &number), text);
        value = std::strtod(text, nullptr);
    }
    return std::abs(value - ours) <= 1e-14 * std::abs(ours);
}

template <class Contestant, class Operation, class OurOperation>
void RegisterChecked(std::string const& workload, std::string const& contestant, Operation const& operation,
                     OurOperation const& ours)
{
    for (std::size_t i = 0; i < c_count; ++i)
        if (!IsNear<Contestant>(ours(i).ToDouble(), operation(i)))
        {
            benchmark::RegisterBenchmark((workload + "/" + contestant).c_str(), [](benchmark::State& state)
                                         { state.SkipWithError("another result than the others"); });
            return;
        }
    Register(workload + "/" + contestant, operation);
}

template <class Contestant>
void RegisterArithmetic(std::string const& size, std::string const& contestant, std::vector<std::string> const& first,
                        std::vector<std::string> const& second)
{
    auto const a = Parse<Contestant>(first);
    auto const b = Parse<Contestant>(second);
    auto const x = Parse<Ours>(first);
    auto const y = Parse<Ours>(second);
    auto const add = [&](std::string const& workload, auto const& operation, auto const& ours)
    {
        RegisterChecked<Contestant>(
            size + workload, contestant, [=](std::size_t i) { return operation(a[i], b[i]); },
            [=](std::size_t i) { return ours(x[i], y[i]); });
    };
    add("Add", Contestant::Add, Ours::Add);
    add("Subtract", Contestant::Subtract, Ours::Subtract);
    add("Multiply", Contestant::Multiply, Ours::Multiply);
    add("Divide", Contestant::Divide, Ours::Divide);
    Register(size + "Compare/" + contestant, [=](std::size_t i) { return Contestant::IsLess(a[i], b[i]); });
}

template <class Contestant>
void RegisterTexts(std::string const& size, std::string const& contestant, std::vector<std::string> const& texts)
{
    std::vector<typename Contestant::Text> sources;
    for (std::string const& text : texts)
        sources.push_back(Contestant::MakeText(text));
    auto const numbers = Parse<Contestant>(texts);
    Register(size + "Parse/" + contestant, [=](std::size_t i) { return Contestant::Parse(sources[i]); });
    Register(size + "Format/" + contestant, [=](std::size_t i) { return Contestant::Format(numbers[i]); });
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
                                     state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(c_count));
                                 });
    if constexpr (requires { Contestant::RoundToCents(a[0]); })
    {
        std::vector<typename Contestant::Number> products;
        auto const b = Parse<Contestant>(second);
        for (std::size_t i = 0; i < c_count; ++i)
            products.push_back(Contestant::Multiply(a[i], b[i]));
        Register("MoneyRoundProduct/" + contestant,
                 [=](std::size_t i) { return Contestant::RoundToCents(products[i]); });
    }
}

template <class Contestant>
void RegisterDoubles(std::string const& size, std::string const& contestant, std::vector<std::string> const& texts)
{
    auto const numbers = Parse<Contestant>(texts);
    std::vector<double> doubles;
    for (std::string const& text : texts)
        doubles.push_back(std::strtod(text.c_str(), nullptr) / (size == "Full" ? 1e9 : 1.0)); // else it has no fraction
    Register(size + "FromDouble/" + contestant, [=](std::size_t i) { return Contestant::FromDouble(doubles[i]); });
    Register(size + "ToDouble/" + contestant, [=](std::size_t i) { return Contestant::ToDouble(numbers[i]); });
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

bool const c_isRegistered = []
{
    RegisterAll<Ours>("ours");
    RegisterAll<Intel>("Intel");
    RegisterAll<PlainDecNumber>("decNumber");
    RegisterAll<Quad>("decQuad");
    RegisterAll<Boost>("Boost");
    return true;
}();

} // namespace

} // namespace Benchmarks
