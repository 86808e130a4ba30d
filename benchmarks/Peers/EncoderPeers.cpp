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

void RegisterModp(std::string const& size, std::string const& bytes)
{
    Register(
        "Base64Encode" + size + "/modp", bytes.size(), [=] { return modp::b64_encode(bytes); }, Widen);
    Register("Base64Decode" + size + "/modp", bytes.size(),
             [text = modp::b64_encode(bytes)] { return modp::b64_decode(text); });
    Register(
        "HexEncode" + size + "/modp", bytes.size(), [=] { return modp::b16_encode(bytes); }, WidenInLowerCase);
    auto const decode = [text = modp::b16_encode(bytes)] { return modp::b16_decode(text); };
    Register("HexDecodeByteWise" + size + "/modp_bulk", bytes.size(), decode);
    Register("HexDecode" + size + "/modp", bytes.size(), decode);
}

bool const c_isRegistered = []
{
    for (auto const& [name, size] : c_attachments)
        RegisterModp(name, MakeBytes(size));
    return true;
}();

} // namespace

} // namespace Benchmarks
