#include "UnitText.h"

#include <Utilities/WStringHelper.h>

#include <windows.h>

#include <shlwapi.h>

using Vek::Framework::Utilities::WStringHelper;

namespace
{

bool IsFoundBySystem(std::wstring const& text, std::wstring const& part)
{
    return StrStrIW(text.c_str(), part.c_str()) != nullptr;
}

} // namespace

TEST(WStringHelperWindows, AsciiIsFoundWhereTheSystemFindsIt)
{
    for (unsigned unit = 1; unit < 0x80; ++unit)
        for (unsigned other = 1; other < 0x80; ++other)
        {
            std::wstring const text = MakeText({ 'x', unit, 'y', unit, other });
            for (std::wstring const& part : { MakeText({ other }), MakeText({ 'X', other, 'Y' }) })
                ASSERT_EQ(IsFoundBySystem(text, part), WStringHelper::ContainsIgnoreCase(text, part))
                    << unit << ' ' << other;
        }
    // What languages treat in a special way: hyphens, apostrophes, blanks, digraphs.
    std::mt19937 random(20240229);
    auto const make = [&](unsigned size)
    {
        std::wstring text;
        while (text.size() < size)
            text += L"aAcChHsSzZ-'. _1"[random() % 16];
        return text;
    };
    for (int i = 0; i < 100'000; ++i)
    {
        std::wstring const text = make(random() % 12);
        std::wstring const part = make(1 + random() % 3);
        ASSERT_EQ(IsFoundBySystem(text, part), WStringHelper::ContainsIgnoreCase(text, part));
    }
}

TEST(WStringHelperWindows, CodePageIsTheSystemsOverItsWholeDomain)
{
    std::wstring units;
    for (unsigned unit = 1; unit <= 0xFFFF; ++unit)
        units += static_cast<wchar_t>(unit);
    std::string encoded(units.size(), '\0');
    int const size = static_cast<int>(units.size());
    ASSERT_EQ(size, WideCharToMultiByte(CP_ACP, 0, units.data(), size, encoded.data(), size, nullptr, nullptr));
    EXPECT_TRUE(encoded == WStringHelper::GetCurrentCodepageString(units));

    std::string bytes;
    for (unsigned value = 0; value <= 0xFF; ++value)
        bytes += static_cast<char>(value);
    std::wstring decoded(bytes.size(), L'\0');
    ASSERT_EQ(256, MultiByteToWideChar(CP_ACP, 0, bytes.data(), 256, decoded.data(), 256));
    EXPECT_TRUE(decoded == WStringHelper::GetWStringFromCurrentCodepage(bytes));
}
