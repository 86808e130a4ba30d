// Decimal against the published test cases of the General Decimal Arithmetic (Cowlishaw).
//
// The cases state their own precision, exponents and rounding; a Decimal has only one of each. A case counts when
// decNumber gives the stated result under the settings of Decimal, too: that is settled without looking at what Decimal
// answers. What it must answer is the result that the case states, in every bit.

#include <Utilities/DecimalClassification.h>

#include <cctype>
#include <filesystem>

#include "PlainDecNumber.h"

namespace
{

using Vek::Framework::Utilities::Decimal;
using Vek::Framework::Utilities::RoundMode;

/// One line of a file; the rounding that holds there, half up for those that Decimal does not know.
struct Case
{
    std::string id;
    std::string operation; // in lower case
    std::vector<std::string> operands;
    std::string result;
    rounding mode;
};

std::string ToLower(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

/// The words up to the comment, without their quotes.
std::vector<std::string> SplitWords(std::string const& line)
{
    std::vector<std::string> words;
    std::istringstream stream(line);
    for (std::string word; stream >> word && !word.starts_with("--"); words.push_back(word))
    {
        char const quote = word[0];
        if (quote != '\'' && quote != '"')
            continue;
        for (std::string rest; word.size() == 1 || word.back() != quote; word += rest + quote) // with blanks inside
            std::getline(stream, rest, quote);
        word = word.substr(1, word.size() - 2);
    }
    return words;
}

/// The cases in the order of the file.
std::vector<Case> ReadCases(std::filesystem::path const& path)
{
    std::ifstream file(path);
    rounding mode = DEC_ROUND_HALF_UP;
    std::vector<Case> cases;
    for (std::string line; std::getline(file, line);)
    {
        std::vector<std::string> const words = SplitWords(line);
        auto const arrow = std::find(words.begin(), words.end(), "->");
        if (arrow - words.begin() > 2 && words.end() - arrow > 1)
            cases.push_back({ words[0], ToLower(words[1]), { words.begin() + 2, arrow }, arrow[1], mode });
        else if (words.size() == 2 && ToLower(words[0]) == "rounding:")
            mode = ToLower(words[1]) == "up"     ? DEC_ROUND_UP
                   : ToLower(words[1]) == "down" ? DEC_ROUND_DOWN
                                                 : DEC_ROUND_HALF_UP;
    }
    return cases;
}

/// A number as text, or its encoding spelled out as #A2078000..., high byte first.
Decimal ToDecimal(std::string const& word)
{
    if (word.size() != 33 || word[0] != '#')
        return Plain::Scan(word);
    unsigned long long const words[] = { std::stoull(word.substr(17), nullptr, 16),
                                         std::stoull(word.substr(1, 16), nullptr, 16) };
    return std::bit_cast<Decimal>(words);
}

/// The answers of decNumber and of Decimal.
struct Results
{
    Decimal plain;
    Decimal ours;
};

/// CompareTo answers 0 for what is not ordered; here that is the NaN again.
Decimal CompareAsDecimal(Decimal const& a, Decimal const& b)
{
    return IsNaN(a) || IsNaN(b) ? Plain::Apply(decNumberCompare, a, b) : Decimal(a.CompareTo(b));
}

std::optional<Results> Calculate(std::string const& operation, Decimal const& a, Decimal const& b)
{
    using Operation = std::pair<Plain::Binary, Decimal (*)(Decimal const&, Decimal const&)>;
    static std::map<std::string, Operation> const operations = {
        { "add", { decNumberAdd, [](auto& x, auto& y) { return x + y; } } },
        { "subtract", { decNumberSubtract, [](auto& x, auto& y) { return x - y; } } },
        { "multiply", { decNumberMultiply, [](auto& x, auto& y) { return x * y; } } },
        { "divide", { decNumberDivide, [](auto& x, auto& y) { return x / y; } } },
        { "power", { decNumberPower, [](auto& x, auto& y) { return x.Pow(y); } } },
        { "max", { decNumberMax, [](auto& x, auto& y) { return x.Max(y); } } },
        { "min", { decNumberMin, [](auto& x, auto& y) { return x.Min(y); } } },
        { "compare", { decNumberCompare, CompareAsDecimal } },
    };
    auto const found = operations.find(operation);
    if (found == operations.end())
        return std::nullopt;
    auto const& [plain, ours] = found->second;
    return Results{ Plain::Apply(plain, a, b), ours(a, b) };
}

/// The exponent that the operation rounds to; none if Round has no counts for it.
std::optional<int> GetTarget(Case const& test, Decimal const& a, Decimal const& b)
{
    if (test.operation.starts_with("tointegral"))
        return 0;
    bool const isReduce = test.operation == "reduce";
    if (!isReduce && test.operation != "quantize" && test.operation != "rescale")
        return std::nullopt;
    decNumber const number = Plain::Decode(isReduce ? a : b);
    decContext context = Plain::MakeContext();
    int const exponent = test.operation == "rescale" ? decNumberToInt32(&number, &context) : number.exponent;
    bool const isCount = isReduce || !decNumberIsSpecial(&number);
    return isCount && context.status == 0 && std::abs(exponent / 2) < 10000 ? std::optional(exponent) : std::nullopt;
}

Results Round(Decimal const& a, int exponent, rounding mode, bool keepsZeros)
{
    RoundMode const ours = mode == DEC_ROUND_UP     ? RoundMode::AwayFromZero
                           : mode == DEC_ROUND_DOWN ? RoundMode::TowardZero
                                                    : RoundMode::HalfAwayFromZero;
    Decimal const plain = Plain::Encode(Plain::Rescale(Plain::Decode(a), exponent, mode), mode);
    return { keepsZeros ? plain : Plain::Apply(decNumberReduce, plain), a.Round(-exponent, ours, keepsZeros) };
}

std::optional<Results> Apply(Case const& test)
{
    std::string const& text = test.operands[0];
    Decimal const a = ToDecimal(text);
    Decimal const b = ToDecimal(test.operands.back());
    if (test.operation == "minus")
        return Results{ Plain::Apply(decNumberMinus, a), -a };
    bool const isText = test.operation == "tosci" || test.operation == "apply";
    if (test.operation == "canonical" || (isText && text[0] == '#'))
        return Calculate("multiply", a, Decimal(1)); // writes every encoding anew
    if (isText)
        return Results{ a, Decimal::FromString(std::wstring(text.begin(), text.end()), L'.') };
    if (std::optional<int> const target = GetTarget(test, a, b))
        return Round(a, *target, test.mode, test.operation != "reduce");
    return Calculate(test.operation, a, b);
}

/// Whether the case counts; its result is checked then.
bool Check(Case const& test)
{
    Decimal const stated = ToDecimal(test.result);
    std::optional<Results> const results = Apply(test);
    if (!results || !Plain::HasSameBits(results->plain, stated))
        return false;
    EXPECT_TRUE(Plain::HasSameBits(results->ours, stated))
        << test.id << ' ' << test.operation << ' ' << test.operands[0] << ' ' << test.operands.back() << " gives "
        << Plain::Print(results->ours) << ", not " << test.result;
    return true;
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
        for (Case const& test : ReadCases(file))
            (file.stem().string().starts_with("dq") ? quad : other) += Check(test);
    // What counted once counts again; fewer mean that the files are not read as they should be.
    EXPECT_GE(quad, 5913);
    EXPECT_GE(other, 14096);
}
