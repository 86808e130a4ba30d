// A host's module: uses of the library what keeps something for later calls.

#include <Exceptions/UserException.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <SysBase/ExceptionHandler.h>
#include <Utilities/Decimal.h>
#include <Utilities/WStringHelper.h>

#include <sstream>

extern "C" bool Use()
{
    using namespace Vek::Framework;
    IXMLStreamer::Native::XMLStreamer reader;
    std::string title;
    reader.CreateRootStructureElement("r").CreateContentElement("t").SetOnDo(1, [&title](auto&, auto& content)
                                                                             { return title = content, true; });
    reader.SetVersion(1);
    std::istringstream document("<?xml version='1.0'?>\n<r><t>a&amp;b</t></r>");
    return reader.ProcessSource(document) && title == "a&b" &&
           Utilities::WStringHelper::ContainsIgnoreCase(L"UMSATZ \u00C4", L"\u00E4") &&
           Utilities::Decimal::FromString(L"1.5", L'.') * 3 == Utilities::Decimal::FromString(L"4,5", L',');
}

extern "C" bool UseGuard()
{
    return !VekSysBase::ExceptionHandler::ExecuteSafe([] { throw Vek::UserException("host"); }, L"", L"", L"");
}
