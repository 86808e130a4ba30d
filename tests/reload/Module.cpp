// A program's module that uses the library: loading it loads the library, unloading it unloads that as well.
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <SysBase/ExceptionHandler.h>
#include <Utilities/Decimal.h>
#include <Utilities/TimeMeasure.h>
#include <Utilities/TimeMeasureContainer.h>
#include <Utilities/WStringHelper.h>

#include <memory>
#include <string>

using namespace Vek::Framework;
using namespace Vek::Framework::Utilities;

#if defined(_WIN32)
#    define MODULE_API extern "C" __declspec(dllexport)
#else
#    define MODULE_API extern "C" __attribute__((visibility("default")))
#endif

namespace
{

std::string s_report;

/// Measures when the library may be gone already, and its clock's memory with it.
struct LateMeasure
{
    LateMeasure() { measure = std::make_unique<TimeMeasure>("Early"); }
    ~LateMeasure()
    {
        measure.reset();
        TimeMeasure const last("Late");
        TimeMeasureContainer::SetCurrentNanoSecondsGetter([] { return 0; });
        TimeMeasureContainer::ResetCurrentNanoSecondsGetter();
        s_report = TimeMeasureContainer::GetResults() + std::to_string(last.GetMeasureInfo().GetMeasuresCount());
    }
    std::unique_ptr<TimeMeasure> measure;
};

void Convert()
{
    std::wstring const text = WStringHelper::GetUTF16FromUTF8("Stra\xC3\x9F"
                                                              "e \xD0\x96 \xE2\x82\xAC \xC4\x80");
    std::wstring lower = text;
    WStringHelper::MakeLowerCase(lower);
    lower[0] = WStringHelper::ToUpperCase(lower[5]);
    if (!WStringHelper::ContainsIgnoreCase(text, L"STRA") || !WStringHelper::EqualsIgnoreCase(text, text + L""))
        s_report += "searching fails\n";
    if (WStringHelper::GetCurrentCodepageString(text).empty() || WStringHelper::Empty() != std::wstring())
        s_report += "converting fails\n";
    if (Decimal(12.5).ToDouble() != 12.5)
        s_report += "calculating fails\n";
}

} // namespace

/// Empties the registry's report of what the module has measured before, works, and answers the report. Valid until the
/// module is unloaded.
MODULE_API char const* Work(long long nanoseconds)
{
    s_report.clear();
    {
        TimeMeasureContainer::SetCurrentNanoSecondsGetter([nanoseconds, now = 0LL]() mutable
                                                          { return now += nanoseconds; });
        TimeMeasure const measure("A name that is too long for a string without memory");
    }
    static LateMeasure s_late;
    Convert();
    s_report += TimeMeasureContainer::GetResults();
    return s_report.c_str();
}

/// Uses what the library keeps for later calls once it was used.
MODULE_API bool UseTheRest()
{
    IXMLStreamer::Native::XMLStreamer reader;
    std::string title;
    reader.CreateRootStructureElement("r").CreateContentElement("t").SetOnDo(1, [&title](auto&, auto& content)
                                                                             { return title = content, true; });
    reader.SetVersion(1);
    return reader.ProcessSource(std::string_view("<?xml version='1.0'?>\n<r><t>a&amp;b</t></r>")) && title == "a&b" &&
           Decimal::FromString(L"1.5", L'.') * 3 == Decimal::FromString(L"4,5", L',');
}

MODULE_API bool UseTheGuard()
{
    return !VekSysBase::ExceptionHandler::ExecuteSafe([] { throw 5; }, L"", L"", L"");
}
