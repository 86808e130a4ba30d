#include "UnitText.h"

#include <Utilities/WStringHelper.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

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

TEST(PublishedData, LowerCaseIsSimpleCaseFoldingButForNamedUnits)
{
    // Folding goes to one of all partners, case only to one that leads back: symbols and final forms, title case,
    // Cherokee.
    // clang-format off
    struct { unsigned first, last; } const rows[] = {
        { 0xB5, 0xB5 }, { 0x17F, 0x17F }, { 0x1C5, 0x1C5 }, { 0x1C8, 0x1C8 }, { 0x1CB, 0x1CB }, { 0x1F2, 0x1F2 },
        { 0x345, 0x345 }, { 0x3C2, 0x3C2 }, { 0x3D0, 0x3D1 }, { 0x3D5, 0x3D6 }, { 0x3F0, 0x3F1 }, { 0x3F4, 0x3F5 },
        { 0x13A0, 0x13F5 }, { 0x13F8, 0x13FD }, { 0x1C80, 0x1C88 }, { 0x1E9B, 0x1E9B }, { 0x1E9E, 0x1E9E },
        { 0x1FBE, 0x1FBE }, { 0x2126, 0x2126 }, { 0x212A, 0x212B }, { 0xAB70, 0xABBF },
    };
    // clang-format on
    std::map<unsigned, unsigned> folding = ReadCaseFolding();
    ASSERT_EQ(1194U, folding.size());
    for (unsigned unit = 0; unit <= 0xFFFF; ++unit)
    {
        bool const isNamed = std::any_of(std::begin(rows), std::end(rows),
                                         [&](auto& row) { return unit >= row.first && unit <= row.last; });
        unsigned const folded = folding.contains(unit) ? folding[unit] : unit;
        wchar_t const lower = WStringHelper::ToLowerCase(static_cast<wchar_t>(unit));
        EXPECT_EQ(!isNamed, lower == static_cast<wchar_t>(folded)) << std::hex << unit << " to " << folded;
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
