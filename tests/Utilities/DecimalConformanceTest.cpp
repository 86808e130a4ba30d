// Decimal against the published test cases of the General Decimal Arithmetic (Cowlishaw).
//
// The cases state their own precision, exponents and rounding; a Decimal has only one of each. A case counts when
// decNumber gives the stated result under the settings of Decimal, too: that is settled without looking at what Decimal
// answers. What it must answer is the result that the case states, in every bit.

#include <Utilities/Decimal.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <optional>
#include <vector>

#include "PlainDecNumber.h"

namespace Tests
{

namespace
{

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::RoundMode;

/// A line "id operation operand... -> result condition..." without its quotes and comment.
using Words = std::vector<std::string>;

/// From the quote at `position` on, where a doubled quote stands for itself.
std::string ReadQuoted(std::string const& line, std::size_t& position)
{
    char const quote = line[position++];
    std::string word;
    for (; position < line.size(); ++position)
    {
        if (line[position] == quote && (++position == line.size() || line[position] != quote))
            break;
        word += line[position];
    }
    return word;
}

Words SplitWords(std::string const& line)
{
    Words words;
    constexpr char const* blanks = " \t\r";
    for (std::size_t i = line.find_first_not_of(blanks); i < line.size(); i = line.find_first_not_of(blanks, i))
    {
        if (line.compare(i, 2, "--") == 0)
            break;
        if (line[i] == '\'' || line[i] == '"')
        {
            words.push_back(ReadQuoted(line, i));
            continue;
        }
        std::size_t const end = std::min(line.find_first_of(blanks, i), line.size());
        words.push_back(line.substr(i, end - i));
        i = end;
    }
    return words;
}

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

/// An operation of one or two operands, with decNumber and as Decimal.
struct Operation
{
    std::size_t operands;
    std::function<Decimal(Decimal const&, Decimal const&)> plain;
    std::function<Decimal(Decimal const&, Decimal const&)> ours;
};

template <class Ours>
Operation Make(Plain::Binary plain, Ours ours)
{
    return { 2, [=](auto& a, auto& b) { return Plain::Apply(plain, a, b); }, ours };
}

/// CompareTo answers 0 for what is not ordered; here that is the NaN again.
Decimal CompareAsDecimal(Decimal const& a, Decimal const& b)
{
    int const result = a.CompareTo(b);
    Decimal const ordered = Plain::Apply(decNumberCompare, a, b);
    decNumber const number = Plain::Decode(ordered);
    return result == 0 && decNumberIsNaN(&number) ? ordered : Decimal(result);
}

/// To the exponent of `target`.
Decimal Round(Decimal const& a, decNumber const& target, bool keepsZeros = true)
{
    return a.Round(-target.exponent, RoundMode::HalfAwayFromZero, keepsZeros);
}

std::map<std::string, Operation> const& GetOperations()
{
    static Operation const toIntegral = {
        1, [](auto& a, auto&) { return Plain::Encode(Plain::Rescale(Plain::Decode(a), 0)); },
        [](auto& a, auto&) { return a.Round(0, RoundMode::HalfAwayFromZero, true); }
    };
    static std::map<std::string, Operation> const operations = {
        { "add", Make(decNumberAdd, [](auto& a, auto& b) { return a + b; }) },
        { "subtract", Make(decNumberSubtract, [](auto& a, auto& b) { return a - b; }) },
        { "multiply", Make(decNumberMultiply, [](auto& a, auto& b) { return a * b; }) },
        { "divide", Make(decNumberDivide, [](auto& a, auto& b) { return a / b; }) },
        { "power", Make(decNumberPower, [](auto& a, auto& b) { return a.Pow(b); }) },
        { "max", Make(decNumberMax, [](auto& a, auto& b) { return a.Max(b); }) },
        { "min", Make(decNumberMin, [](auto& a, auto& b) { return a.Min(b); }) },
        { "compare", Make(decNumberCompare, CompareAsDecimal) },
        { "minus",
          { 1, [](auto& a, auto&) { return Plain::Apply(decNumberMinus, a); }, [](auto& a, auto&) { return -a; } } },
        { "reduce",
          { 1, [](auto& a, auto&) { return Plain::Apply(decNumberReduce, a); },
            [](auto& a, auto&) { return Round(a, Plain::Decode(a), false); } } },
        { "tointegral", toIntegral },
        { "tointegralx", toIntegral },
        { "quantize", Make(decNumberQuantize, [](auto& a, auto& b) { return Round(a, Plain::Decode(b)); }) },
    };
    return operations;
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

bool IsSpecial(Decimal const& value)
{
    decNumber const number = Plain::Decode(value);
    return decNumberIsSpecial(&number);
}

/// Whether the case counts; its result is checked then.
bool Check(Words const& words)
{
    auto const arrow = std::find(words.begin(), words.end(), "->");
    if (words.size() < 4 || words.end() - arrow < 2)
        return false;
    std::string name = words[1];
    std::transform(name.begin(), name.end(), name.begin(), [](char c) { return static_cast<char>(std::tolower(c)); });
    bool const isText = name == "tosci" || name == "toeng" || name == "apply" || name == "canonical";
    auto const operation = GetOperations().find(name);
    std::size_t const operands = static_cast<std::size_t>(arrow - words.begin()) - 2;
    if (!isText && (operation == GetOperations().end() || operation->second.operands != operands))
        return false;
    std::optional<Decimal> const a = ToDecimal(words[2]);
    std::optional<Decimal> const b = ToDecimal(arrow[-1]);
    std::optional<Decimal> const stated = ToDecimal(arrow[1]);
    if (!a || !b || !stated || ((name == "quantize" || name == "reduce") && IsSpecial(*b)))
        return false;
    auto const isStated = [&](Decimal const& result)
    { return name == "toeng" ? PrintEngineering(result) == arrow[1] : Plain::HasSameBits(result, *stated); };
    if (!isStated(isText ? Plain::Encode(Plain::Decode(*a)) : operation->second.plain(*a, *b)))
        return false;
    Decimal const result = isText ? ReadText(words[2]) : operation->second.ours(*a, *b);
    EXPECT_TRUE(isStated(result)) << words[0] << " gives " << Plain::Print(result) << ", not " << arrow[1];
    return true;
}

} // namespace

TEST(DecimalConformance, PublishedCases)
{
    int counted = 0;
    for (auto const& entry : std::filesystem::directory_iterator(VEK_DECIMAL_CASES))
    {
        std::ifstream stream(entry.path());
        for (std::string line; entry.path().extension() == ".decTest" && std::getline(stream, line);)
            counted += Check(SplitWords(line));
    }
    EXPECT_GE(counted, 19759) << "what counted once counts again";
}

} // namespace Tests
