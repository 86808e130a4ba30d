// modp with the bytes of EncoderBenchmark.cpp.

#include "Contest.h"
#include "Samples.h"

#include <modp_b16.h>
#include <modp_b64.h>

#include <string>

namespace Benchmarks
{

namespace
{

std::wstring WidenInLowerCase(std::string digits)
{
    for (char& digit : digits)
        digit = static_cast<char>(digit | 0x20);
    return Widen(digits);
}

bool const c_isRegistered = []
{
    std::string const bytes = MakeBytes();
    Register(
        "Base64Encode/modp", bytes.size(), [=] { return modp::b64_encode(bytes); }, Widen);
    Register("Base64Decode/modp", bytes.size(), [text = modp::b64_encode(bytes)] { return modp::b64_decode(text); });
    Register(
        "HexEncode/modp", bytes.size(), [=] { return modp::b16_encode(bytes); }, WidenInLowerCase);
    Register("HexDecodeByteWise/modp_bulk", bytes.size(),
             [text = modp::b16_encode(bytes)] { return modp::b16_decode(text); });
    return true;
}();

} // namespace

} // namespace Benchmarks
