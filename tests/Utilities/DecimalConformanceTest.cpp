// Decimal against the published test cases of the General Decimal Arithmetic (Cowlishaw).
//
// The cases state their own precision, exponents and rounding; a Decimal has only one of each. A case counts when
// decNumber gives the stated result under the settings of Decimal, too: that is settled without looking at what Decimal
// answers. What it must answer is the result that the case states, in every bit.

#include <Utilities/Decimal.h>

#include "DecTestFile.h"
#include "PlainDecNumber.h"

namespace
{

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::RoundMode;

/// The encoding that a word such as #A2078000... spells out, high byte first.
std::optional<Decimal> FromHex(std::string const& word)
{
    if (word.size() != 33 || word[0] != '#')
        return std::nullopt;
    unsigned long long const words[] = { std::stoull(word.substr(17), nullptr, 16),
                                         std::stoull(word.substr(1, 16), nullptr, 16) };
    return std::bit_cast<Decimal>(words);
}

std::optional<Decimal> ToDecimal(std::string const& word)
{
    return word[0] == '#' ? FromHex(word) : Plain::Scan(word);
}

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

/// An operation twice: with decNumber, and as Decimal.
struct Operation
{
    std::size_t operands;
    std::function<Decimal(Decimal const&, Decimal const&, Settings)> plain;
    std::function<Decimal(Decimal const&, Decimal const&, Settings)> ours;
};

template <class Ours>
Operation Make(Plain::Unary plain, Ours ours)
{
    return { 1, [=](auto& a, auto&, Settings) { return Plain::Apply(plain, a); },
             [=](auto& a, auto&, Settings) { return ours(a); } };
}

template <class Ours>
Operation Make(Plain::Binary plain, Ours ours)
{
    return { 2, [=](auto& a, auto& b, Settings) { return Plain::Apply(plain, a, b); },
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

Operation MakeRound(std::size_t operands, bool keepsZeros)
{
    return { operands, [=](auto& a, auto&, Settings settings) { return RoundPlainly(a, settings, keepsZeros); },
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
        { "quantize", MakeRound(2, true) },
        { "rescale", MakeRound(2, true) },
        { "tointegral", MakeRound(1, true) },
        { "tointegralx", MakeRound(1, true) },
        { "reduce", MakeRound(1, false) },
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
    std::optional<Decimal> const target = ToDecimal(test.operands[isReduce ? 0 : 1]);
    if (!target)
        return std::nullopt;
    decNumber const number = Plain::Decode(*target);
    decContext context = Plain::MakeContext();
    int const exponent = test.operation == "rescale" ? decNumberToInt32(&number, &context) : number.exponent;
    bool const isCount = isReduce || !decNumberIsSpecial(&number);
    return isCount && context.status == 0 && std::abs(exponent / 2) < 10000 ? std::optional(exponent) : std::nullopt;
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
};

std::optional<Results> Apply(DecTestCase const& test)
{
    std::optional<Decimal> const a = ToDecimal(test.operands[0]);
    std::optional<Decimal> const b = ToDecimal(test.operands.back());
    if (!a || !b)
        return std::nullopt;
    if (IsText(test.operation))
        return Results{ Plain::Encode(Plain::Decode(*a)), ReadText(test.operands[0]) };
    std::optional<int> const target = GetTarget(test);
    if (!target)
        return std::nullopt;
    Operation const& operation = GetOperations().at(test.operation);
    rounding const stated = test.mode;
    bool const isRound =
        test.operation == "quantize" || test.operation == "rescale" || test.operation.starts_with("tointegral");
    bool const hasMode = isRound && (stated == DEC_ROUND_UP || stated == DEC_ROUND_DOWN);
    Settings const settings{ *target, hasMode ? stated : DEC_ROUND_HALF_UP };
    return Results{ operation.plain(*a, *b, settings), operation.ours(*a, *b, settings) };
}

bool IsStated(DecTestCase const& test, Decimal const& result, Decimal const& stated)
{
    return test.operation == "toeng" ? PrintEngineering(result) == test.result : Plain::HasSameBits(result, stated);
}

/// Whether the case counts; its result is checked then.
bool Check(DecTestCase const& test)
{
    std::optional<Decimal> const stated = ToDecimal(test.result);
    std::optional<Results> const results = Apply(test);
    if (!stated || !results || !IsStated(test, results->plain, *stated))
        return false;
    EXPECT_TRUE(IsStated(test, results->ours, *stated))
        << test.id << ' ' << test.operation << ' ' << test.operands[0] << ' ' << test.operands.back() << " gives "
        << Plain::Print(results->ours) << ", not " << test.result;
    return true;
}

bool IsOurs(DecTestCase const& test)
{
    auto const operation = GetOperations().find(test.operation);
    return IsText(test.operation) ||
           (operation != GetOperations().end() && operation->second.operands == test.operands.size());
}

} // namespace

TEST(DecimalConformance, PublishedCases)
{
    std::set<std::filesystem::path> files; // in the same order everywhere
    for (auto const& entry : std::filesystem::directory_iterator(VEK_DECIMAL_CASES))
        if (entry.path().extension() == ".decTest")
            files.insert(entry.path());

    int quad = 0;
    int other = 0;
    for (std::filesystem::path const& file : files)
        for (DecTestCase const& test : ReadDecTestFile(file))
            (file.stem().string().starts_with("dq") ? quad : other) += IsOurs(test) && Check(test);
    // What counted once counts again; fewer mean that the files are not read as they should be.
    EXPECT_GE(quad, 6081);
    EXPECT_GE(other, 14227);
}
