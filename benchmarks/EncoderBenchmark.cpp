// Bytes as Base64 and hexadecimal text and back, and hashes of text. Each contestant makes a fresh result; ours is wide
// text with 32 bits a unit on Linux, modp's has 8.

#include "Contest.h"
#include "Samples.h"

#include <Utilities/Base64.h>
#include <Utilities/HashBuilder.h>
#include <Utilities/HexConverter.h>
#include <Utilities/WStringHelper.h>

#include <memory>
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

unsigned char const* AsBytes(std::string const& text)
{
    return reinterpret_cast<unsigned char const*>(text.data());
}

std::string ToText(std::unique_ptr<SizedArray<unsigned char>> const& bytes)
{
    return std::string(reinterpret_cast<char const*>(bytes->GetData()), bytes->GetSize());
}

void RegisterBase64(std::string const& size, std::string const& bytes)
{
    auto const encode = [=] { return Base64::Encode(AsBytes(bytes), bytes.size()); };
    Register("Base64Encode" + size + "/ours", bytes.size(), encode);
    Register(
        "Base64Decode" + size + "/ours", bytes.size(), [text = encode()] { return Base64::Decode(text); }, ToText);
}

std::string ReadByteByByte(std::wstring const& text)
{
    std::string bytes(text.size() / 2, '\0');
    for (std::size_t at = 0; at < bytes.size(); ++at)
        bytes[at] = static_cast<char>(HexConverter::ReadByte(text, at));
    return bytes;
}

std::unique_ptr<SizedArray<unsigned char>> ReadAllBytes(std::wstring const& text)
{
    std::unique_ptr<SizedArray<unsigned char>> bytes;
    unsigned long long errorPosition = 0;
    HexConverter::TryReadBytes(text, bytes, errorPosition);
    return bytes;
}

void RegisterHex(std::string const& size, std::string const& bytes)
{
    auto const encode = [=] { return WStringHelper::GetHex(AsBytes(bytes), static_cast<unsigned>(bytes.size())); };
    Register("HexEncode" + size + "/ours", bytes.size(), encode,
             [](std::wstring const& digits) { return WStringHelper::ToLowerCase(digits); });
    std::wstring const text = encode();
    Register("HexDecodeByteWise" + size + "/ours", bytes.size(), [=] { return ReadByteByByte(text); });
    Register(
        "HexDecode" + size + "/ours", bytes.size(), [=] { return ReadAllBytes(text); }, ToText);
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
    Register("Fnv1aWide/ours", 2 * text.size(), [=] { return HashBuilder().Add(text).GetResult(); });
    Register("Fnv1aWide/plain_loop", 2 * text.size(), [=] { return HashBuilder().Add(HashPlainly(text)).GetResult(); });
}

bool const c_isRegistered = []
{
    for (auto const& [name, size] : c_attachments)
    {
        RegisterBase64(name, MakeBytes(size));
        RegisterHex(name, MakeBytes(size));
    }
    RegisterHash();
    return true;
}();

} // namespace

} // namespace Benchmarks
