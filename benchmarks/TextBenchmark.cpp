// Conversions and comparisons of text. Our wide text has 32 bits a unit on Linux and the peers' has 16, so that where
// storing is the limit, ours cannot be level here; on Windows it has 16.

#include <Utilities/WStringHelper.h>

#include <benchmark/benchmark.h>
#include <QString>
#include <unicode/ucnv.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>
#include <utf8.h>

#include <cwchar>
#include <string>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::WStringHelper;

enum class Language
{
    English,
    German
};

/// Some 100 KB, in the second-level cache with its results.
std::string MakeUtf8(Language language)
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

template <class Convert>
void Run(benchmark::State& state, std::size_t bytes, std::size_t expectedSize, Convert const& convert)
{
    std::size_t size = 0;
    for (auto _ : state)
        size = convert();
    if (size != expectedSize)
        state.SkipWithError("converted to something else than the others");
    state.SetBytesProcessed(static_cast<std::int64_t>(bytes) * static_cast<std::int64_t>(state.iterations()));
}

template <class Convert>
void Register(std::string const& name, std::size_t bytes, std::size_t expectedSize, Convert const& convert)
{
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) { Run(state, bytes, expectedSize, convert); });
}

/// Keeps the result alive for the optimiser and answers its size.
template <class Text>
std::size_t Use(Text const& text)
{
    benchmark::DoNotOptimize(text.data());
    return static_cast<std::size_t>(text.size());
}

void RegisterDecoding(std::string const& workload, Language language)
{
    std::string const utf8 = MakeUtf8(language);
    std::size_t const units = utf8::utf8to16(utf8).size();
    Register(workload + "/ours", utf8.size(), units, [=] { return Use(WStringHelper::GetUTF16FromUTF8(utf8)); });
    Register(workload + "/utf8cpp", utf8.size(), units, [=] { return Use(utf8::utf8to16(utf8)); });
    Register(workload + "/Qt", utf8.size(), units, [=] { return Use(QString::fromUtf8(utf8.data(), utf8.size())); });
    Register(workload + "/ICU", utf8.size(), units,
             [=]
             {
                 std::u16string text(utf8.size(), u'\0');
                 std::int32_t size = 0;
                 UErrorCode error = U_ZERO_ERROR;
                 u_strFromUTF8(text.data(), static_cast<std::int32_t>(text.size()), &size, utf8.data(),
                               static_cast<std::int32_t>(utf8.size()), &error);
                 text.resize(static_cast<std::size_t>(size));
                 return Use(text);
             });
}

void RegisterEncoding(std::string const& workload, Language language)
{
    std::string const utf8 = MakeUtf8(language);
    std::wstring const wide = WStringHelper::GetUTF16FromUTF8(utf8);
    std::u16string const utf16 = utf8::utf8to16(utf8);
    QString const qt = QString::fromStdString(utf8);
    Register(workload + "/ours", utf8.size(), utf8.size(), [=] { return Use(WStringHelper::GetUTF8FromUTF16(wide)); });
    Register(workload + "/utf8cpp", utf8.size(), utf8.size(), [=] { return Use(utf8::utf16to8(utf16)); });
    Register(workload + "/Qt", utf8.size(), utf8.size(), [=] { return Use(qt.toUtf8()); });
    Register(workload + "/ICU", utf8.size(), utf8.size(),
             [=]
             {
                 std::string text(3 * utf16.size(), '\0');
                 std::int32_t size = 0;
                 UErrorCode error = U_ZERO_ERROR;
                 u_strToUTF8(text.data(), static_cast<std::int32_t>(text.size()), &size, utf16.data(),
                             static_cast<std::int32_t>(utf16.size()), &error);
                 text.resize(static_cast<std::size_t>(size));
                 return Use(text);
             });
}

void RegisterCodePage()
{
    std::string const bytes =
        WStringHelper::GetCurrentCodepageString(WStringHelper::GetUTF16FromUTF8(MakeUtf8(Language::German)));
    Register("CodePageToUtf16/ours", bytes.size(), bytes.size(),
             [=] { return Use(WStringHelper::GetWStringFromCurrentCodepage(bytes)); });
    UErrorCode error = U_ZERO_ERROR;
    UConverter* const converter = ucnv_open("windows-1252", &error);
    Register("CodePageToUtf16/ICU", bytes.size(), bytes.size(),
             [=]
             {
                 std::u16string text(bytes.size(), u'\0');
                 UErrorCode result = U_ZERO_ERROR;
                 ucnv_toUChars(converter, text.data(), static_cast<std::int32_t>(text.size()), bytes.data(),
                               static_cast<std::int32_t>(bytes.size()), &result);
                 return Use(text);
             });
}

void RegisterComparison()
{
    std::wstring const a = L"Stra\xDF"
                           L"enbahnhaltestelle \xC4\xD6\xDC 1";
    std::wstring const b = L"STRA\xDF"
                           L"ENBAHNHALTESTELLE \xE4\xF6\xFC 1";
    QString const qtA = QString::fromStdWString(a);
    QString const qtB = QString::fromStdWString(b);
    locale_t const locale = newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
    Register("EqualsIgnoreCase/ours", a.size(), 1,
             [=]
             {
                 benchmark::DoNotOptimize(a.data());
                 return static_cast<std::size_t>(WStringHelper::EqualsIgnoreCase(a, b));
             });
    Register("EqualsIgnoreCase/Qt", a.size(), 1,
             [=]
             {
                 benchmark::DoNotOptimize(qtA.data());
                 return static_cast<std::size_t>(qtA.compare(qtB, Qt::CaseInsensitive) == 0);
             });
    Register("EqualsIgnoreCase/wcsncasecmp_l", a.size(), 1,
             [=]
             {
                 benchmark::DoNotOptimize(a.data());
                 return static_cast<std::size_t>(wcsncasecmp_l(a.c_str(), b.c_str(), a.size(), locale) == 0);
             });
}

bool const c_isRegistered = []
{
    RegisterDecoding("Utf8ToUtf16German", Language::German);
    RegisterDecoding("Utf8ToUtf16English", Language::English);
    RegisterEncoding("Utf16ToUtf8German", Language::German);
    RegisterEncoding("Utf16ToUtf8English", Language::English);
    RegisterCodePage();
    RegisterComparison();
    return true;
}();

} // namespace

} // namespace Benchmarks
