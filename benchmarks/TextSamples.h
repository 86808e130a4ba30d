#pragma once

#include <string>

namespace Benchmarks
{

enum class Language
{
    English,
    German
};

/// Some 100 KB, in the second-level cache with its results.
inline std::string MakeUtf8(Language language)
{
    char const* const sentence =
        language == Language::German
            ? "Die Rechnung für die Lieferung der Büromöbel wird größtenteils gemäß Vertrag über Österreich geführt. "
            : "The invoice for the delivery of the office furniture goes through the books as agreed last week. ";
    std::string text;
    while (text.size() < 100'000)
        text += sentence;
    return text;
}

/// Two texts that differ in case only.
inline wchar_t const c_mixedCase[] = L"Stra\xDF"
                                     L"enbahnhaltestelle \xC4\xD6\xDC 1";
inline wchar_t const c_otherCase[] = L"STRA\xDF"
                                     L"ENBAHNHALTESTELLE \xE4\xF6\xFC 1";

/// A text of any contestant as UTF-16, to compare what they answer.
template <class Text>
std::u16string ToUtf16(Text const& text)
{
    return std::u16string(text.begin(), text.end());
}

} // namespace Benchmarks
