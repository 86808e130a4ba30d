// The scanners of re2c and flex with the text of TokenBenchmark.cpp.

#include "Contest.h"
#include "TokenScanners.h"

#include <string>

namespace Benchmarks
{

namespace
{

bool const c_isRegistered = []
{
    std::string const source = MakeTokenSource();
    for (std::string const workload : { "Tokenise", "TokeniseByStates" })
    {
        Register(workload + "/re2c", source.size(), [=] { return ScanAllWithRe2c(source); });
        Register(workload + "/flex", source.size(), [=] { return ScanAllWithFlex(source); });
    }
    return true;
}();

} // namespace

} // namespace Benchmarks
