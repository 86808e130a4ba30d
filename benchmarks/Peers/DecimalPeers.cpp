// Other decimal types among the contestants of DecimalContest.h.

#include "DecimalContest.h"

#include <boost/multiprecision/cpp_dec_float.hpp>

#include <cstdint>
#include <cstdlib>
#include <string>

extern "C"
{
#include <decimal128.h>
#include <decNumber.h>
#include <decQuad.h>
}

#define DECIMAL_CALL_BY_REFERENCE 0
#define DECIMAL_GLOBAL_ROUNDING 0
#define DECIMAL_GLOBAL_EXCEPTION_FLAGS 0
#include <bid_conf.h>
#include <bid_functions.h>

namespace Benchmarks
{

namespace
{

struct Intel
{
    using Number = BID_UINT128;
    using Text = std::string;
    static constexpr unsigned c_halfAway = 4;
    static Text MakeText(std::string const& text) { return text; }
    static Number Parse(Text const& text)
    {
        unsigned flags = 0;
        return bid128_from_string(const_cast<char*>(text.c_str()), c_halfAway, &flags);
    }
    static std::size_t Format(Number const& value)
    {
        unsigned flags = 0;
        static char buffer[64];
        bid128_to_string(buffer, value, &flags);
        return static_cast<std::size_t>(buffer[0]);
    }
    static Text FormatFresh(Number const& value)
    {
        unsigned flags = 0;
        char buffer[64];
        bid128_to_string(buffer, value, &flags);
        return buffer;
    }
    static Number Add(Number const& a, Number const& b)
    {
        unsigned flags = 0;
        return bid128_add(a, b, c_halfAway, &flags);
    }
    static Number Subtract(Number const& a, Number const& b)
    {
        unsigned flags = 0;
        return bid128_sub(a, b, c_halfAway, &flags);
    }
    static Number Multiply(Number const& a, Number const& b)
    {
        unsigned flags = 0;
        return bid128_mul(a, b, c_halfAway, &flags);
    }
    static Number Divide(Number const& a, Number const& b)
    {
        unsigned flags = 0;
        return bid128_div(a, b, c_halfAway, &flags);
    }
    static Number RoundToCents(Number const& a)
    {
        static Number const cent = Parse("0.01");
        unsigned flags = 0;
        return bid128_quantize(a, cent, c_halfAway, &flags);
    }
    static bool IsLess(Number const& a, Number const& b)
    {
        unsigned flags = 0;
        return bid128_quiet_less(a, b, &flags) != 0;
    }
    static Number FromDouble(double value)
    {
        unsigned flags = 0;
        return binary64_to_bid128(value, c_halfAway, &flags);
    }
    static double ToDouble(Number const& value)
    {
        unsigned flags = 0;
        return bid128_to_binary64(value, c_halfAway, &flags);
    }
};

/// Decode, operate, encode.
struct PlainDecNumber
{
    using Number = decimal128;
    using Text = std::string;
    static decContext MakeContext()
    {
        decContext context;
        decContextDefault(&context, DEC_INIT_DECIMAL128);
        context.round = DEC_ROUND_HALF_UP;
        return context;
    }
    template <class Operation>
    static Number Apply(Operation operation, Number const& a, Number const& b)
    {
        decContext context = MakeContext();
        decNumber left;
        decNumber right;
        decNumber result;
        operation(&result, decimal128ToNumber(&a, &left), decimal128ToNumber(&b, &right), &context);
        Number encoded;
        decimal128FromNumber(&encoded, &result, &context);
        return encoded;
    }
    static Text MakeText(std::string const& text) { return text; }
    static Number Parse(Text const& text)
    {
        decContext context = MakeContext();
        Number result;
        decimal128FromString(&result, text.c_str(), &context);
        return result;
    }
    static std::size_t Format(Number const& value)
    {
        static char buffer[64];
        decimal128ToString(&value, buffer);
        return static_cast<std::size_t>(buffer[0]);
    }
    static Number Add(Number const& a, Number const& b) { return Apply(decNumberAdd, a, b); }
    static Number Subtract(Number const& a, Number const& b) { return Apply(decNumberSubtract, a, b); }
    static Number Multiply(Number const& a, Number const& b) { return Apply(decNumberMultiply, a, b); }
    static Number Divide(Number const& a, Number const& b) { return Apply(decNumberDivide, a, b); }
    static Number RoundToCents(Number const& a)
    {
        static Number const cent = Parse("0.01");
        return Apply(decNumberQuantize, a, cent);
    }
    static bool IsLess(Number const& a, Number const& b)
    {
        decContext context = MakeContext();
        decNumber left;
        decNumber right;
        decNumber result;
        decNumberCompare(&result, decimal128ToNumber(&a, &left), decimal128ToNumber(&b, &right), &context);
        return decNumberIsNegative(&result);
    }
    static double ToDouble(Number const& value)
    {
        char text[DECIMAL128_String];
        decimal128ToString(&value, text);
        return std::strtod(text, nullptr);
    }
};

struct Quad
{
    using Number = decQuad;
    using Text = std::string;
    static decContext* GetContext()
    {
        static decContext context = []
        {
            decContext made;
            decContextDefault(&made, DEC_INIT_DECQUAD);
            made.round = DEC_ROUND_HALF_UP;
            return made;
        }();
        return &context;
    }
    static Text MakeText(std::string const& text) { return text; }
    static Number Parse(Text const& text)
    {
        Number result;
        decQuadFromString(&result, text.c_str(), GetContext());
        return result;
    }
    static std::size_t Format(Number const& value)
    {
        static char buffer[64];
        decQuadToString(&value, buffer);
        return static_cast<std::size_t>(buffer[0]);
    }
    template <class Operation>
    static Number Apply(Operation operation, Number const& a, Number const& b)
    {
        Number result;
        operation(&result, &a, &b, GetContext());
        return result;
    }
    static Number Add(Number const& a, Number const& b) { return Apply(decQuadAdd, a, b); }
    static Number Subtract(Number const& a, Number const& b) { return Apply(decQuadSubtract, a, b); }
    static Number Multiply(Number const& a, Number const& b) { return Apply(decQuadMultiply, a, b); }
    static Number Divide(Number const& a, Number const& b) { return Apply(decQuadDivide, a, b); }
    static Number RoundToCents(Number const& a)
    {
        static Number const cent = Parse("0.01");
        return Apply(decQuadQuantize, a, cent);
    }
    static bool IsLess(Number const& a, Number const& b)
    {
        Number const result = Apply(decQuadCompare, a, b);
        return decQuadIsSigned(&result) != 0 && decQuadIsZero(&result) == 0;
    }
    static double ToDouble(Number const& value)
    {
        char text[DECQUAD_String];
        decQuadToString(&value, text);
        return std::strtod(text, nullptr);
    }
};

/// No IEEE type: 34 digits and more, never rounded to exactly 34.
struct Boost
{
    using Number =
        boost::multiprecision::number<boost::multiprecision::cpp_dec_float<34>, boost::multiprecision::et_off>;
    using Text = std::string;
    static Text MakeText(std::string const& text) { return text; }
    static Number Parse(Text const& text) { return Number(text); }
    static std::size_t Format(Number const& value) { return value.str().size(); }
    static Number Add(Number const& a, Number const& b) { return a + b; }
    static Number Subtract(Number const& a, Number const& b) { return a - b; }
    static Number Multiply(Number const& a, Number const& b) { return a * b; }
    static Number Divide(Number const& a, Number const& b) { return a / b; }
    static bool IsLess(Number const& a, Number const& b) { return a < b; }
    static Number FromDouble(double value) { return Number(value); }
    static double ToDouble(Number const& value) { return value.convert_to<double>(); }
};

bool const c_isRegistered = []
{
    RegisterAll<Intel>("Intel");
    RegisterAll<PlainDecNumber>("decNumber");
    RegisterAll<Quad>("decQuad");
    RegisterAll<Boost>("Boost");
    return true;
}();

} // namespace

} // namespace Benchmarks
