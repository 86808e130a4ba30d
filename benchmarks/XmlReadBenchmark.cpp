// Settings documents of 10 and 100 MB, and one whose umlauts are codes.

#include "ViewStream.h"
#include "XmlReadContest.h"
#include "XmlReaders.h"

namespace Benchmarks
{

namespace
{

Totals ReadOurs(std::string const& document)
{
    ViewStream stream(document);
    return ReadWithOurs(stream);
}

bool const c_isRegistered = []
{
    RegisterReader("ours", 10, Codes::Few, ReadOurs);
    RegisterReader("ours", 100, Codes::Few, ReadOurs);
    RegisterReader("ours", 10, Codes::Many, ReadOurs);
    return true;
}();

} // namespace

} // namespace Benchmarks
