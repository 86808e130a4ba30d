#include "UnitText.h"

#include <Utilities/WStringHelper.h>

using Vek::Framework::Utilities::WStringHelper;

// Text conversions and case against what others have published about them.
namespace
{

std::vector<std::string> ReadLines(std::string const& name)
{
    std::ifstream stream(VEK_PUBLISHED_DATA + name, std::ios::binary);
    EXPECT_TRUE(stream.is_open()) << name;
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

bool IsRefused(std::string const& text)
{
    return MessageOf<std::range_error>([&] { WStringHelper::GetUTF16FromUTF8(text); }) == "bad conversion";
}

/// The runs of bytes beyond ASCII.
std::vector<std::string> FindSequences(std::string line)
{
    auto const isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
    std::replace_if(line.begin(), line.end(), isAscii, ' ');
    std::istringstream sequences(line);
    return { std::istream_iterator<std::string>(sequences), {} };
}

/// The number that a line begins with, as "3.2.1"; empty for a line without.
std::string SectionOf(std::string const& line)
{
    std::string const number = line.substr(0, line.find(' '));
    return number.find_first_not_of("0123456789.") == std::string::npos ? number : "";
}

/// By its section the bytes beyond ASCII are malformed. What is boundary value or noncharacter is encoded well, unless
/// it lies above the last character.
bool IsMalformedSection(std::string const& section)
{
    static std::set<std::string> const s_aboveLastCharacter = { "2.1.5", "2.1.6", "2.2.4", "2.2.5", "2.2.6", "2.3.5" };
    bool const isMalformed = section.starts_with("3") || section.starts_with("4") || section.starts_with("5.1") ||
                             section.starts_with("5.2");
    return isMalformed || s_aboveLastCharacter.contains(section);
}

/// Simple case folding within 16 bits: the statuses C and S.
std::map<unsigned, unsigned> ReadCaseFolding()
{
    std::map<unsigned, unsigned> folding;
    for (std::string const& line : ReadLines("CaseFolding.txt"))
    {
        char status = 0;
        char separator = 0;
        unsigned unit = 0;
        unsigned folded = 0;
        std::istringstream fields(line);
        if (fields >> std::hex >> unit >> separator >> status >> separator >> folded && unit <= 0xFFFF &&
            (status == 'C' || status == 'S'))
            folding[unit] = folded;
    }
    return folding;
}

} // namespace

TEST(PublishedData, EveryMalformedSequenceOfTheUtf8StressTestIsRefused)
{
    std::string section;
    int refused = 0;
    int accepted = 0;
    for (std::string const& line : ReadLines("UTF-8-test.txt"))
    {
        section = SectionOf(line).empty() ? section : SectionOf(line); // a test may go on in the next lines
        bool const isMalformed = IsMalformedSection(section);
        std::vector<std::string> const sequences = FindSequences(line);
        EXPECT_EQ(isMalformed && !sequences.empty(), IsRefused(line)) << section;
        for (std::string const& sequence : sequences)
        {
            EXPECT_EQ(isMalformed, IsRefused(sequence)) << section << ' ' << ::testing::PrintToString(sequence);
            ++(isMalformed ? refused : accepted);
        }
    }
    EXPECT_EQ(124, refused);
    EXPECT_EQ(12, accepted);
}

TEST(PublishedData, LowerCaseIsSimpleCaseFoldingButForNamedUnits)
{
    // Folding goes to one of all partners, case only to one that leads back.
    // clang-format off
    Rows<unsigned, unsigned, char const*> const rows = {
        { 0xB5, 0xB5, "micro sign" }, { 0x17F, 0x17F, "long s" }, { 0x1C5, 0x1C5, "title-case dz with caron" },
        { 0x1C8, 0x1C8, "title-case lj" }, { 0x1CB, 0x1CB, "title-case nj" }, { 0x1F2, 0x1F2, "title-case dz" },
        { 0x345, 0x345, "combining iota" }, { 0x3C2, 0x3C2, "final sigma" }, { 0x3D0, 0x3D1, "beta and theta symbols" },
        { 0x3D5, 0x3D6, "phi and pi symbols" }, { 0x3F0, 0x3F1, "kappa and rho symbols" },
        { 0x3F4, 0x3F5, "capital theta and lunate epsilon symbols" },
        { 0x13A0, 0x13F5, "Cherokee capitals, to which its small letters fold" },
        { 0x13F8, 0x13FD, "Cherokee small letters" }, { 0x1C80, 0x1C88, "rounded Cyrillic letters" },
        { 0x1E9B, 0x1E9B, "long s with dot" }, { 0x1E9E, 0x1E9E, "capital sharp s" },
        { 0x1FBE, 0x1FBE, "iota written beside" }, { 0x2126, 0x2126, "Ohm sign" },
        { 0x212A, 0x212B, "Kelvin and Angstrom signs" }, { 0xAB70, 0xABBF, "more Cherokee small letters" },
    };
    // clang-format on
    std::map<unsigned, unsigned> folding = ReadCaseFolding();
    ASSERT_EQ(1194U, folding.size());
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    {
        auto const row = std::find_if(rows.begin(), rows.end(), [&](auto& r) { return unit <= std::get<1>(r); });
        bool const isNamed = row != rows.end() && unit >= std::get<0>(*row);
        unsigned const folded = folding.contains(unit) ? folding[unit] : unit;
        wchar_t const lower = WStringHelper::ToLowerCase(static_cast<wchar_t>(unit));
        EXPECT_EQ(!isNamed, lower == static_cast<wchar_t>(folded))
            << std::hex << unit << " to " << folded << (isNamed ? std::get<2>(*row) : "");
        EXPECT_EQ(lower == WStringHelper::ToLowerCase(static_cast<wchar_t>(folded)),
                  WStringHelper::EqualsIgnoreCase(MakeText({ unit }), MakeText({ folded })))
            << std::hex << unit << " and " << folded;
    }
}

TEST(PublishedData, ParseIntSkipsWhiteSpaceOnly)
{
    std::set<unsigned> whiteSpace;
    for (std::string const& line : ReadLines("PropList.txt"))
    {
        unsigned first = 0;
        unsigned last = 0;
        bool const isRange = std::sscanf(line.c_str(), "%4x..%4x", &first, &last) == 2;
        if (line.find("; White_Space") != std::string::npos && std::sscanf(line.c_str(), "%4x", &first) == 1)
            for (unsigned unit = first; unit <= (isRange ? last : first); ++unit)
                whiteSpace.insert(unit);
    }
    ASSERT_EQ(25U, whiteSpace.size());
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    {
        int const digit = unit >= '0' && unit <= '9' ? static_cast<int>(unit) - '0' : 0;
        EXPECT_EQ(whiteSpace.contains(unit) ? 7 : digit, WStringHelper::ParseInt(MakeText({ unit, '+', '7' }))) << unit;
    }
}

TEST(PublishedData, CodePageIsTheCharmapAndC1WhereThatHasNothing)
{
    std::map<unsigned, unsigned> charmap;
    for (std::string const& line : ReadLines("CP1252"))
    {
        unsigned unit = 0;
        unsigned byte = 0;
        if (std::sscanf(line.c_str(), "<U%4x> /x%2x", &unit, &byte) == 2)
            charmap[byte] = unit;
    }
    ASSERT_EQ(251U, charmap.size());
    std::string bytes;
    std::wstring units;
    for (unsigned byte = 0; byte < 0x100; ++byte)
    {
        bytes.push_back(static_cast<char>(byte));
        units += MakeText({ charmap.contains(byte) ? charmap[byte] : byte });
    }
    for (std::size_t shift = 0; shift < 16; ++shift) // every byte at every place of a block
    {
        EXPECT_EQ(units, WStringHelper::GetWStringFromCurrentCodepage(bytes));
        EXPECT_EQ(bytes, WStringHelper::GetCurrentCodepageString(units));
        EXPECT_EQ(units, WStringHelper::GetUTF16FromWindows1252(bytes));
        EXPECT_EQ(bytes, WStringHelper::GetWindows1252FromUTF16(units));
        std::string checked;
        unsigned long long errorPosition = 0;
        EXPECT_TRUE(WStringHelper::TryGetWindows1252FromUTF16(units, checked, errorPosition) && checked == bytes);
        bytes.insert(bytes.begin(), 'x');
        units.insert(units.begin(), L'x');
    }
}
