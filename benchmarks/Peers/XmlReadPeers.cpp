// The peers' readers with the documents of XmlReadBenchmark.cpp.

#include "XmlReadContest.h"
#include "XmlReaders.h"

#include <string>

namespace Benchmarks
{

namespace
{

std::size_t CountCodesBeyondAscii(std::string const& text)
{
    std::size_t count = 0;
    for (std::size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 1))
        count += text.compare(at, 6, "&euro;") == 0 ? 2 : text.compare(at, 5, "&amp;") == 0 ? 0 : 1;
    return count;
}

/// libxml2 answers in UTF-8, which has more bytes than ours in Windows-1252.
Totals ReadCodesWithLibxml2(std::string const& document)
{
    static std::size_t const s_more = CountCodesBeyondAscii(document);
    Totals totals = ReadWithLibxml2(document);
    totals.contentBytes -= s_more;
    return totals;
}

bool const c_isRegistered = []
{
    for (Document const& document : { c_settings10, c_settings100 })
    {
        RegisterReader("expat", document, ReadWithExpat);
        RegisterReader("libxml2", document, ReadWithLibxml2);
        RegisterReader("orcus", document, ReadWithOrcus);
        RegisterReader("rapidxml", document, ReadWithRapidxml);
        RegisterReader("pugixml", document, ReadWithPugixml);
    }
    RegisterReader("libxml2", c_coded10, ReadCodesWithLibxml2);
    RegisterReader("expat", c_strict10, ReadWithExpat);
    RegisterReader("libxml2", c_strict10, ReadWithLibxml2);
    RegisterReader("libxml2", c_nested10, ReadWithLibxml2);
    RegisterReader("orcus", c_nested10, ReadWithOrcus);
    for (Document const& document : { c_smallNew, c_smallAgain })
        RegisterReader("pugixml", document, ReadWithPugixml);
    return true;
}();

} // namespace

} // namespace Benchmarks
