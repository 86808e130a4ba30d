#pragma once

#include "Contest.h"
#include "SettingsText.h"

#include <string>

namespace Benchmarks
{

/// What is read, and under which name. The text is made when a benchmark that reads it runs.
struct Document
{
    char const* workload;
    std::string const& (*get)();
};

template <std::size_t size, Codes codes>
std::string const& GetSettings()
{
    static std::string const s_text = c_declaration + MakeBody(MakeGroups(size, codes));
    return s_text;
}

inline std::string const& GetNestedSettings()
{
    static std::string const s_text = c_declaration + MakeNestedBody(MakeGroups(10'000'000, Codes::Few));
    return s_text;
}

inline std::string const& GetInvoice()
{
    static std::string const s_text = "<?xml version=\"1.0\"?>\n<rechnung><kopf><nummer>2024/17</nummer></kopf><posten>"
                                      "<artikel>Stuhl</artikel><menge einheit=\"St\">4</menge><preis>89,90</preis>"
                                      "</posten><summe>359,60</summe></rechnung>\n";
    return s_text;
}

constexpr Document c_settings10{ "XmlRead10MB", GetSettings<10'000'000, Codes::Few> };
constexpr Document c_settings100{ "XmlRead100MB", GetSettings<100'000'000, Codes::Few> };
constexpr Document c_coded10{ "XmlReadCodes10MB", GetSettings<10'000'000, Codes::Many> };
constexpr Document c_strict10{ "XmlReadStrict10MB", GetSettings<10'000'000, Codes::Few> };
constexpr Document c_nested10{ "XmlReadNested10MB", GetNestedSettings };
constexpr Document c_smallNew{ "XmlReadSmallNewReader", GetInvoice };
constexpr Document c_smallAgain{ "XmlReadSmallAgain", GetInvoice };

inline void Report(benchmark::State& state, Document const& document)
{
    Report(state, document.get().size());
}

/// `read` counts what the document holds.
template <class Read>
void RegisterReader(std::string const& contestant, Document const& document, Read const& read)
{
    Register(document.workload + ("/" + contestant), document, [=] { return read(document.get()); });
}

} // namespace Benchmarks
