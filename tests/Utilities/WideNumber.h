#pragma once

#include <cstdlib>
#include <memory>
#include <optional>
#include <string>

#include "PlainDecNumber.h"

namespace Tests
{

using Vek::Framework::Utilities::Decimal;

constexpr int c_greatestPrecision = 2000; // no operand is longer

/// A decNumber with room for more digits than 34.
class WideNumber
{
public:
    WideNumber() { decNumberZero(*this); }
    operator decNumber*() { return m_units.get(); }

private:
    struct Free
    {
        void operator()(decNumber* number) const { std::free(number); }
    };
    std::unique_ptr<decNumber, Free> m_units{ static_cast<decNumber*>(
        std::malloc(sizeof(decNumber) + c_greatestPrecision)) }; // three digits take two bytes
};

/// The encoding that a word such as #A2078000... spells out, high byte first.
inline std::optional<Decimal> FromHex(std::string const& word)
{
    if (word.size() != 33 || word[0] != '#')
        return std::nullopt;
    unsigned long long const words[] = { std::stoull(word.substr(17), nullptr, 16),
                                         std::stoull(word.substr(1, 16), nullptr, 16) };
    return std::bit_cast<Decimal>(words);
}

inline std::optional<Decimal> ToDecimal(std::string const& word)
{
    return word[0] == '#' ? FromHex(word) : Plain::Scan(word);
}

inline void ReadWide(std::string const& word, WideNumber& number)
{
    if (std::optional<Decimal> const encoded = FromHex(word))
    {
        auto const bytes = std::bit_cast<decimal128>(*encoded);
        decimal128ToNumber(&bytes, number);
        return;
    }
    decContext context;
    decContextDefault(&context, DEC_INIT_BASE);
    context.traps = 0;
    context.digits = c_greatestPrecision;
    decNumberFromString(number, word.c_str(), &context);
}

inline std::string PrintWide(decNumber const* number)
{
    std::string text(c_greatestPrecision + 14, '\0');
    decNumberToString(number, text.data());
    return text.c_str();
}

} // namespace Tests
