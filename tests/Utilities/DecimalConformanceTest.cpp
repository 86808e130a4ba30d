// Decimal against the published test cases of the General Decimal Arithmetic (Cowlishaw).
//
// The cases state their own precision, exponents and rounding; a Decimal has only one of each. A case counts when
// decNumber gives the same result under the stated settings as under those of Decimal: that is settled without looking
// at what Decimal answers. What it must answer is the result that the case states, in every bit.

#include <Utilities/Decimal.h>

#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <set>

#include "DecTestFile.h"
#include "PlainDecNumber.h"
#include "WideNumber.h"

namespace Tests
{

namespace
{

using Vek::Framework::Utilities::RoundMode;

/// The notation whose exponents are multiples of three: it hides the number's own.
std::string PrintEngineering(Decimal const& value)
{
    auto const bytes = std::bit_cast<decimal128>(value);
    char text[DECIMAL128_String];
    return decimal128ToEngString(&bytes, text);
}

/// What Decimal takes apart from numbers: the exponent to round to, and the rounding.
struct Settings
{
    int exponent;
    rounding mode;
};

/// An operation three times: under stated settings, under those of Decimal, and as Decimal.
struct Operation
{
    std::size_t operands;
    std::function<void(decNumber*, decNumber*, decNumber*, decContext*)> stated;
    std::function<Decimal(Decimal const&, Decimal const&, Settings)> plain;
    std::function<Decimal(Decimal const&, Decimal const&, Settings)> ours;
};

template <class Ours>
Operation Make(Plain::Unary plain, Ours ours)
{
    return { 1, [=](auto result, auto a, auto, auto context) { plain(result, a, context); },
             [=](auto& a, auto&, Settings) { return Plain::Apply(plain, a); },
             [=](auto& a, auto&, Settings) { return ours(a); } };
}

template <class Ours>
Operation Make(Plain::Binary plain, Ours ours)
{
    return { 2, [=](auto result, auto a, auto b, auto context) { plain(result, a, b, context); },
             [=](auto& a, auto& b, Settings) { return Plain::Apply(plain, a, b); },
             [=](auto& a, auto& b, Settings) { return ours(a, b); } };
}

Decimal RoundPlainly(Decimal const& a, Settings settings, bool keepsZeros)
{
    Decimal const rescaled =
        Plain::Encode(Plain::Rescale(Plain::Decode(a), settings.exponent, settings.mode), settings.mode);
    return keepsZeros ? rescaled : Plain::Apply(decNumberReduce, rescaled);
}

RoundMode ToRoundMode(rounding mode)
{
    return mode == DEC_ROUND_UP     ? RoundMode::AwayFromZero
           : mode == DEC_ROUND_DOWN ? RoundMode::TowardZero
                                    : RoundMode::HalfAwayFromZero;
}

template <class Stated>
Operation MakeRound(std::size_t operands, bool keepsZeros, Stated stated)
{
    return { operands, stated, [=](auto& a, auto&, Settings settings) { return RoundPlainly(a, settings, keepsZeros); },
             [=](auto& a, auto&, Settings settings)
             { return a.Round(-settings.exponent, ToRoundMode(settings.mode), keepsZeros); } };
}

/// CompareTo answers 0 for what is not ordered; here that is the NaN again.
Decimal CompareAsDecimal(Decimal const& a, Decimal const& b)
{
    int const result = a.CompareTo(b);
    Decimal const ordered = Plain::Apply(decNumberCompare, a, b);
    decNumber const number = Plain::Decode(ordered);
    return result == 0 && decNumberIsNaN(&number) ? ordered : Decimal(result);
}

std::map<std::string, Operation> MakeOperations()
{
    auto const unaryRound = [](Plain::Unary plain)
    { return [plain](auto result, auto a, auto, auto context) { plain(result, a, context); }; };
    return {
        { "add", Make(decNumberAdd, [](auto& a, auto& b) { return a + b; }) },
        { "subtract", Make(decNumberSubtract, [](auto& a, auto& b) { return a - b; }) },
        { "multiply", Make(decNumberMultiply, [](auto& a, auto& b) { return a * b; }) },
        { "divide", Make(decNumberDivide, [](auto& a, auto& b) { return a / b; }) },
        { "minus", Make(decNumberMinus, [](auto& a) { return -a; }) },
        { "power", Make(decNumberPower, [](auto& a, auto& b) { return a.Pow(b); }) },
        { "max", Make(decNumberMax, [](auto& a, auto& b) { return a.Max(b); }) },
        { "min", Make(decNumberMin, [](auto& a, auto& b) { return a.Min(b); }) },
        { "compare", Make(decNumberCompare, CompareAsDecimal) },
        { "quantize", MakeRound(2, true, decNumberQuantize) },
        { "rescale", MakeRound(2, true, decNumberRescale) },
        { "tointegral", MakeRound(1, true, unaryRound(decNumberToIntegralValue)) },
        { "tointegralx", MakeRound(1, true, unaryRound(decNumberToIntegralExact)) },
        { "reduce", MakeRound(1, false, unaryRound(decNumberReduce)) },
    };
}

std::map<std::string, Operation> const& GetOperations()
{
    static std::map<std::string, Operation> const operations = MakeOperations();
    return operations;
}

bool IsText(std::string const& operation)
{
    return operation == "tosci" || operation == "toeng" || operation == "apply" || operation == "canonical";
}

/// Where the operation rounds to, as an exponent; none if Round has no counts for it.
std::optional<int> GetTarget(DecTestCase const& test)
{
    if (test.operation.starts_with("tointegral"))
        return 0;
    bool const isReduce = test.operation == "reduce";
    if (!isReduce && test.operation != "quantize" && test.operation != "rescale")
        return 0;
    WideNumber number;
    ReadWide(test.operands[isReduce ? 0 : 1], number);
    decNumber const* const target = number;
    decContext context = Plain::MakeContext();
    int const exponent = test.operation == "rescale" ? decNumberToInt32(target, &context) : target->exponent;
    bool const isCount = isReduce || !decNumberIsSpecial(target);
    return isCount && context.status == 0 && std::abs(exponent / 2) < 10000 ? std::optional(exponent) : std::nullopt;
}

enum class Verdict
{
    Passed,
    Failed,
    OtherRounding,    // the stated rounding gives something else
    OtherRange,       // the stated digits or exponents do
    NothingComparable // an operand or result of another format, or one that the operation here cannot have
};

/// What decNumber gives under the settings of the case, or with another rounding.
std::string ApplyStated(DecTestCase const& test, rounding mode)
{
    decContext context = test.context;
    context.round = mode;
    WideNumber a;
    WideNumber b;
    WideNumber result;
    if (IsText(test.operation) && test.operands[0][0] != '#')
    {
        decNumberFromString(result, test.operands[0].c_str(), &context);
        return PrintWide(result);
    }
    ReadWide(test.operands[0], a);
    if (test.operands.size() == 2)
        ReadWide(test.operands[1], b);
    if (IsText(test.operation))
        return PrintWide(a);
    GetOperations().at(test.operation).stated(result, a, b, &context);
    return PrintWide(result);
}

/// Every encoding written anew: by a product, which keeps the exponent, or as text where a product would quieten it.
Decimal WriteAnew(Decimal const& value)
{
    std::wstring const text = value.ToString(L'.', {});
    bool const isSignalling = text.find(L's') != std::wstring::npos;
    return isSignalling ? Decimal::FromString(text, L'.') : value * Decimal(1);
}

Decimal ReadText(std::string const& text)
{
    if (std::optional<Decimal> const encoded = FromHex(text))
        return WriteAnew(*encoded);
    return Decimal::FromString(std::wstring(text.begin(), text.end()), L'.');
}

struct Results
{
    Decimal plain;
    Decimal ours;
    rounding mode;
};

std::optional<Results> Apply(DecTestCase const& test)
{
    std::optional<Decimal> const a = ToDecimal(test.operands[0]);
    std::optional<Decimal> const b = ToDecimal(test.operands.back());
    if (!a || !b)
        return std::nullopt;
    if (IsText(test.operation))
        return Results{ Plain::Encode(Plain::Decode(*a)), ReadText(test.operands[0]), DEC_ROUND_HALF_UP };
    std::optional<int> const target = GetTarget(test);
    if (!target)
        return std::nullopt;
    Operation const& operation = GetOperations().at(test.operation);
    rounding const stated = test.context.round;
    bool const isRound =
        test.operation == "quantize" || test.operation == "rescale" || test.operation.starts_with("tointegral");
    bool const hasMode = isRound && (stated == DEC_ROUND_UP || stated == DEC_ROUND_DOWN);
    Settings const settings{ *target, hasMode ? stated : DEC_ROUND_HALF_UP };
    return Results{ operation.plain(*a, *b, settings), operation.ours(*a, *b, settings), settings.mode };
}

Verdict Judge(DecTestCase const& test)
{
    std::optional<Decimal> const expected = ToDecimal(test.result);
    std::optional<Results> const results = Apply(test);
    if (!expected || !results)
        return Verdict::NothingComparable;
    // With fewer exponents than digits, decNumber does not fold the least ones.
    if (test.context.digits > c_greatestPrecision || test.context.digits > test.context.emax)
        return Verdict::OtherRange;
    decNumber const plain = Plain::Decode(results->plain);
    if (ApplyStated(test, test.context.round) != PrintWide(&plain))
        return ApplyStated(test, results->mode) == PrintWide(&plain) ? Verdict::OtherRounding : Verdict::OtherRange;
    bool const isSame = test.operation == "toeng" ? PrintEngineering(results->ours) == test.result
                                                  : Plain::HasSameBits(results->ours, *expected);
    EXPECT_TRUE(isSame) << test.id << ' ' << test.operation << ' ' << test.operands[0] << ' ' << test.operands.back()
                        << " gives " << Plain::Print(results->ours) << ", not " << Plain::Print(*expected);
    return isSame ? Verdict::Passed : Verdict::Failed;
}

bool IsOurs(DecTestCase const& test)
{
    auto const operation = GetOperations().find(test.operation);
    return IsText(test.operation) ||
           (operation != GetOperations().end() && operation->second.operands == test.operands.size());
}

using Tally = std::map<Verdict, int>;

int CountAll(Tally const& tally)
{
    int sum = 0;
    for (auto const& [verdict, count] : tally)
        sum += count;
    return sum;
}

void PrintTally(std::string const& title, Tally tally)
{
    std::cout << title << ": " << tally[Verdict::Passed] << " of " << CountAll(tally) << "; "
              << tally[Verdict::OtherRounding] << " other rounding, " << tally[Verdict::OtherRange]
              << " other digits or exponents, " << tally[Verdict::NothingComparable] << " not comparable\n";
}

} // namespace

TEST(DecimalConformance, PublishedCases)
{
    std::set<std::filesystem::path> files; // in the same order everywhere
    for (auto const& entry : std::filesystem::directory_iterator(VEK_DECIMAL_CASES))
        if (entry.path().extension() == ".decTest")
            files.insert(entry.path());

    Tally quad;
    Tally other;
    for (std::filesystem::path const& file : files)
    {
        Tally tally;
        for (DecTestCase const& test : ReadDecTestFile(file))
            if (IsOurs(test))
                ++tally[Judge(test)];
        std::string const name = file.stem().string();
        if (!tally.empty())
            PrintTally(name, tally);
        for (auto const& [verdict, count] : tally)
            (name.starts_with("dq") ? quad : other)[verdict] += count;
    }
    PrintTally("all dq files", quad);
    PrintTally("all other files", other);
    EXPECT_EQ(quad[Verdict::Failed] + other[Verdict::Failed], 0);
    // What counted once counts again; fewer mean that the files are not read as they should be.
    EXPECT_GE(quad[Verdict::Passed], 6081);
    EXPECT_GE(other[Verdict::Passed], 12662);
}

} // namespace Tests
