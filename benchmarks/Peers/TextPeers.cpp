// Qt, ICU and utf8cpp with the texts of TextBenchmark.cpp.

#include "Contest.h"
#include "TextSamples.h"

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

void RegisterDecoding(std::string const& workload, Language language)
{
    std::string const utf8 = MakeUtf8(language);
    Register(workload + "/utf8cpp", utf8.size(), [=] { return utf8::utf8to16(utf8); });
    Register(
        workload + "/Qt", utf8.size(), [=] { return QString::fromUtf8(utf8.data(), utf8.size()); },
        [](QString const& text) { return text.toStdU16String(); });
    Register(workload + "/ICU", utf8.size(),
             [=]
             {
                 std::u16string text(utf8.size(), u'\0');
                 std::int32_t size = 0;
                 UErrorCode error = U_ZERO_ERROR;
                 u_strFromUTF8(text.data(), static_cast<std::int32_t>(text.size()), &size, utf8.data(),
                               static_cast<std::int32_t>(utf8.size()), &error);
                 text.resize(static_cast<std::size_t>(size));
                 return text;
             });
}

void RegisterEncoding(std::string const& workload, Language language)
{
    std::string const utf8 = MakeUtf8(language);
    std::u16string const utf16 = utf8::utf8to16(utf8);
    QString const qt = QString::fromStdString(utf8);
    Register(workload + "/utf8cpp", utf8.size(), [=] { return utf8::utf16to8(utf16); });
    Register(
        workload + "/Qt", utf8.size(), [=] { return qt.toUtf8(); },
        [](QByteArray const& text) { return text.toStdString(); });
    Register(workload + "/ICU", utf8.size(),
             [=]
             {
                 std::string text(3 * utf16.size(), '\0');
                 std::int32_t size = 0;
                 UErrorCode error = U_ZERO_ERROR;
                 u_strToUTF8(text.data(), static_cast<std::int32_t>(text.size()), &size, utf16.data(),
                             static_cast<std::int32_t>(utf16.size()), &error);
                 text.resize(static_cast<std::size_t>(size));
                 return text;
             });
}

/// All of the text is Latin-1, where the code page has the bytes of ISO 8859-1.
std::string MakeLatin1()
{
    return QString::fromStdString(MakeUtf8(Language::German)).toLatin1().toStdString();
}

void RegisterCodePage()
{
    std::string const bytes = MakeLatin1();
    UErrorCode error = U_ZERO_ERROR;
    UConverter* const converter = ucnv_open("windows-1252", &error);
    Register("CodePageToUtf16/ICU", bytes.size(),
             [=]
             {
                 std::u16string text(bytes.size(), u'\0');
                 UErrorCode result = U_ZERO_ERROR;
                 ucnv_toUChars(converter, text.data(), static_cast<std::int32_t>(text.size()), bytes.data(),
                               static_cast<std::int32_t>(bytes.size()), &result);
                 return text;
             });
}

void RegisterComparison()
{
    std::wstring const a = c_mixedCase;
    std::wstring const b = c_otherCase;
    QString const qtA = QString::fromStdWString(a);
    QString const qtB = QString::fromStdWString(b);
    Register("EqualsIgnoreCase/Qt", a.size(),
             [=]
             {
                 benchmark::DoNotOptimize(qtA.data());
                 return qtA.compare(qtB, Qt::CaseInsensitive) == 0;
             });
    locale_t const locale = newlocale(LC_ALL_MASK, "C.UTF-8", nullptr);
    Register("EqualsIgnoreCase/wcsncasecmp_l", a.size(),
             [=]
             {
                 benchmark::DoNotOptimize(a.data());
                 return wcsncasecmp_l(a.c_str(), b.c_str(), a.size(), locale) == 0;
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
