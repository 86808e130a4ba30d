// Bytes as Base64 and hexadecimal text and back, and hashes of text. Each contestant makes a fresh result; ours is wide
// text with 32 bits a unit on Linux, modp's has 8.

#include "Contest.h"

#include <Utilities/Base64.h>
#include <Utilities/HashBuilder.h>
#include <Utilities/HexConverter.h>
#include <Utilities/WStringHelper.h>

#include <modp_b16.h>
#include <modp_b64.h>

#include <algorithm>
#include <memory>
#include <random>
#include <string>

namespace Benchmarks
{

namespace
{

using Vek::Framework::Utilities::Base64;
using Vek::Framework::Utilities::HashBuilder;
using Vek::Framework::Utilities::HexConverter;
using Vek::Framework::Utilities::SizedArray;
using Vek::Framework::Utilities::WStringHelper;

/// The size of a small attachment, in the second-level cache with its results.
std::string MakeBytes()
{
    std::mt19937 random(20240229);
    std::string bytes(30'000, '\0');
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<char>(random()); });
    return bytes;
}

unsigned char const* AsBytes(std::string const& text)
{
    return reinterpret_cast<unsigned char const*>(text.data());
}

std::wstring Widen(std::string const& ascii)
{
    return std::wstring(ascii.begin(), ascii.end());
}

template <class Value>
Value AsItIs(Value const& value)
{
    return value;
}

void RegisterBase64()
{
    std::string const bytes = MakeBytes();
    std::string const text = modp::b64_encode(bytes);
    std::wstring const wide = Widen(text);
    Register(
        "Base64Encode/ours", bytes.size(), [=] { return Base64::Encode(AsBytes(bytes), bytes.size()); },
        AsItIs<std::wstring>, wide);
    Register(
        "Base64Encode/modp", bytes.size(), [=] { return modp::b64_encode(bytes); }, Widen,
        Base64::Encode(AsBytes(bytes), bytes.size()));
    auto const plain = [](std::unique_ptr<SizedArray<unsigned char>> const& array)
    { return std::string(reinterpret_cast<char const*>(array->GetData()), array->GetSize()); };
    Register(
        "Base64Decode/ours", bytes.size(), [=] { return Base64::Decode(wide); }, plain, bytes);
    Register(
        "Base64Decode/modp", bytes.size(), [=] { return modp::b64_decode(text); }, AsItIs<std::string>, bytes);
}

std::string ReadByteByByte(std::wstring const& text)
{
    std::string bytes(text.size() / 2, '\0');
    for (std::size_t at = 0; at < bytes.size(); ++at)
        bytes[at] = static_cast<char>(HexConverter::ReadByte(text, at));
    return bytes;
}

void RegisterHex()
{
    std::string const bytes = MakeBytes();
    std::string const text = modp::b16_encode(bytes);
    std::wstring const wide = Widen(text);
    auto const encode = [=] { return WStringHelper::GetHex(AsBytes(bytes), static_cast<unsigned>(bytes.size())); };
    auto const inLowerCase = [](std::wstring const& digits) { return WStringHelper::ToLowerCase(digits); };
    Register("HexEncode/ours", bytes.size(), encode, inLowerCase, WStringHelper::ToLowerCase(wide));
    Register(
        "HexEncode/modp", bytes.size(), [=] { return modp::b16_encode(bytes); },
        [=](std::string const& digits) { return inLowerCase(Widen(digits)); }, inLowerCase(encode()));
    Register(
        "HexDecodeByteWise/ours", bytes.size(), [=] { return ReadByteByByte(wide); }, AsItIs<std::string>, bytes);
    Register(
        "HexDecodeByteWise/modp_bulk", bytes.size(), [=] { return modp::b16_decode(text); }, AsItIs<std::string>,
        bytes);
}

/// FNV-1a over the two bytes of every unit, as its authors write it.
[[gnu::noinline]] unsigned long long HashPlainly(std::wstring const& text)
{
    unsigned long long hash = 0xCBF29CE484222325;
    for (wchar_t const unit : text)
    {
        hash = (hash ^ (static_cast<unsigned>(unit) & 0xFFU)) * 0x100000001B3;
        hash = (hash ^ (static_cast<unsigned>(unit) >> 8 & 0xFFU)) * 0x100000001B3;
    }
    return hash;
}

void RegisterHash()
{
    std::wstring text;
    while (text.size() < 10'000)
        text += L"Rechnung f\xFCr die Lieferung der B\xFCrom\xF6"
                L"bel; ";
    text += static_cast<wchar_t>(0x20AC);
    unsigned long long const expected = HashBuilder().Add(HashPlainly(text));
    auto const plain = AsItIs<unsigned long long>;
    Register(
        "Fnv1aWide/ours", 2 * text.size(), [=] { return HashBuilder().Add(text).GetResult(); }, plain, expected);
    Register(
        "Fnv1aWide/plain_loop", 2 * text.size(), [=] { return HashBuilder().Add(HashPlainly(text)).GetResult(); },
        plain, HashBuilder().Add(text).GetResult());
}

bool const c_isRegistered = []
{
    RegisterBase64();
    RegisterHex();
    RegisterHash();
    return true;
}();

} // namespace

} // namespace Benchmarks
