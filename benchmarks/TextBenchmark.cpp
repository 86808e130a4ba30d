// Conversions and comparisons of text. Our wide text has 32 bits a unit on Linux and the peers' has 16, so that where
// storing is the limit, ours cannot be level here; on Windows it has 16.

#include "Contest.h"
#include "TextSamples.h"

#include <Utilities/WStringHelper.h>

#include <string>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::WStringHelper;

void RegisterLanguage(std::string const& name, Language language)
{
    std::string const utf8 = MakeUtf8(language);
    std::wstring const wide = WStringHelper::GetUTF16FromUTF8(utf8);
    Register(
        "Utf8ToUtf16" + name + "/ours", utf8.size(), [=] { return WStringHelper::GetUTF16FromUTF8(utf8); },
        ToUtf16<std::wstring>);
    Register("Utf16ToUtf8" + name + "/ours", utf8.size(), [=] { return WStringHelper::GetUTF8FromUTF16(wide); });
}

void RegisterCodePage()
{
    std::string const bytes =
        WStringHelper::GetCurrentCodepageString(WStringHelper::GetUTF16FromUTF8(MakeUtf8(Language::German)));
    Register(
        "CodePageToUtf16/ours", bytes.size(), [=] { return WStringHelper::GetWStringFromCurrentCodepage(bytes); },
        ToUtf16<std::wstring>);
}

/// Nothing is found, so that all of the text is looked through.
void RegisterSearch()
{
    std::wstring const text = WStringHelper::GetUTF16FromUTF8(MakeUtf8(Language::English));
    Register("ContainsIgnoreCase/ours", text.size(),
             [=] { return WStringHelper::ContainsIgnoreCase(text, L"Offices Furniture"); });
}

void RegisterComparison()
{
    std::wstring const a = c_mixedCase;
    std::wstring const b = c_otherCase;
    Register("EqualsIgnoreCase/ours", a.size(),
             [=]
             {
                 benchmark::DoNotOptimize(a.data());
                 return WStringHelper::EqualsIgnoreCase(a, b);
             });
}

bool const c_isRegistered = []
{
    RegisterLanguage("German", Language::German);
    RegisterLanguage("English", Language::English);
    RegisterCodePage();
    RegisterSearch();
    RegisterComparison();
    return true;
}();

} // namespace

} // namespace Benchmarks
