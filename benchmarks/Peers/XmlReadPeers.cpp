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
    for (std::size_t const megabytes : { 10, 100 })
    {
        RegisterReader("expat", megabytes, Codes::Few, ReadWithExpat);
        RegisterReader("libxml2", megabytes, Codes::Few, ReadWithLibxml2);
        RegisterReader("orcus", megabytes, Codes::Few, ReadWithOrcus);
        RegisterReader("rapidxml", megabytes, Codes::Few, ReadWithRapidxml);
        RegisterReader("pugixml", megabytes, Codes::Few, ReadWithPugixml);
    }
    RegisterReader("libxml2", 10, Codes::Many, ReadCodesWithLibxml2);
    return true;
}();

} // namespace

} // namespace Benchmarks
