// Decimal among the contestants of DecimalContest.h.

#include "DecimalContest.h"

#include <Utilities/Decimal.h>

#include <string>

namespace Benchmarks
{

namespace
{

struct Ours
{
    using Number = Vek::Framework::Utilities::Decimal;
    using Text = std::wstring;
    static Text MakeText(std::string const& text) { return { text.begin(), text.end() }; }
    static Number Parse(Text const& text) { return Number::FromString(text, L'.'); }
    static std::size_t Format(Number const& value)
    {
        static Text buffer;
        static Vek::Framework::Utilities::Nullable<Vek::Framework::Utilities::CodePoint> const noGrouping;
        buffer.clear();
        value.AppendToString(buffer, L'.', noGrouping);
        return buffer.size();
    }
    static Text FormatFresh(Number const& value) { return value.ToString(L'.'); }
    static Number Add(Number const& a, Number const& b) { return a + b; }
    static Number Subtract(Number const& a, Number const& b) { return a - b; }
    static Number Multiply(Number const& a, Number const& b) { return a * b; }
    static Number Divide(Number const& a, Number const& b) { return a / b; }
    static Number RoundToCents(Number const& a)
    {
        return a.Round(2, Vek::Framework::Utilities::RoundMode::HalfAwayFromZero, true);
    }
    static bool IsLess(Number const& a, Number const& b) { return a < b; }
    static Number FromDouble(double value) { return Number(value); }
    static double ToDouble(Number const& value) { return value.ToDouble(); }
};

bool const c_isRegistered = []
{
    RegisterAll<Ours>("ours");
    return true;
}();

} // namespace

} // namespace Benchmarks
