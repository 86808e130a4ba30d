// Settings documents of 10 and 100 MB, one whose umlauts are codes and one of groups in groups; and a small document.

#include "ViewStream.h"
#include "XmlReadContest.h"
#include "XmlReaders.h"

namespace Benchmarks
{

namespace
{

template <Totals (*read)(std::istream&)>
Totals ReadFromStream(std::string const& document)
{
    ViewStream stream(document);
    return read(stream);
}

bool const c_isRegistered = []
{
    for (Document const& document : { c_settings10, c_settings100, c_coded10 })
        RegisterReader("ours", document, ReadFromStream<ReadWithOurs>);
    RegisterReader("ours", c_strict10, ReadFromStream<ReadStrictlyWithOurs>);
    RegisterReader("ours", c_nested10, ReadFromStream<ReadNestedWithOurs>);
    RegisterReader("ours", c_smallNew, ReadFromStream<ReadInvoiceWithNewReader>);
    RegisterReader("ours", c_smallAgain, ReadFromStream<ReadInvoiceWithUsedReader>);
    return true;
}();

} // namespace

} // namespace Benchmarks
