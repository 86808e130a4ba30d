#pragma once

#include <Utilities/SizedArray.h>
#include <VekApi.h>

#include <memory>
#include <string>

namespace Vek::Framework::Utilities
{

/// Bytes as text and back, in the alphabet of RFC 4648 with "=" as filler and without line breaks.
class VEK_API Base64
{
public:
    Base64() = delete;

    /// Four characters for every three bytes begun; "" for none. `data` may be null when `size` is 0, else
    /// NullPointerException is thrown.
    static std::wstring Encode(unsigned char const* data, unsigned long long size);
    static std::wstring Encode(SizedArray<unsigned char> const& data);

    /// Throws std::invalid_argument for a length that is no multiple of 4 ("size must be multiple of 4") and then for
    /// more than two fillers at the end ("too many filler symbols (=)"), ArgumentException for a character outside the
    /// alphabet, white space included. A filler within the text counts as 0, and the bits that the last character has
    /// to spare are not looked at: data written by others has both.
    static std::unique_ptr<SizedArray<unsigned char>> Decode(std::wstring const& text);
};

} // namespace Vek::Framework::Utilities
