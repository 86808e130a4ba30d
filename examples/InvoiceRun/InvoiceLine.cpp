#include "InvoiceLine.h"

#include <Utilities/CommaSeparatedValueReader.h>
#include <Utilities/WStringHelper.h>

#include <algorithm>
#include <stdexcept>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

constexpr wchar_t c_separator = L';';

enum Column : std::size_t
{
    Quantity = 3,
    Price = 4,
    Discount = 5,
    TaxRate = 6,
    ColumnCount = 7
};

using Values = std::array<std::wstring, ColumnCount>;

constexpr std::array<wchar_t const*, ColumnCount> c_columnNames = { L"Rechnung", L"Datum",  L"Text",      L"Menge",
                                                                    L"Preis",    L"Rabatt", L"Steuersatz" };

// A value's position lies further behind in the line: by the values before it and by every backslash on the way.
std::size_t PositionInLine(std::wstring const& text, std::size_t column, std::size_t positionInValue)
{
    std::size_t position = 0;
    for (std::size_t toPass = positionInValue; position < text.size() && (column > 0 || toPass > 0); ++position)
    {
        bool const isSeparator = text[position] == c_separator;
        if (text[position] == L'\\')
            ++position;
        if (isSeparator)
            --column;
        else if (column == 0)
            --toPass;
    }
    return std::min(position, text.size());
}

bool TrySplit(std::wstring const& text, Values& values, Fault& fault)
{
    CommaSeparatedValueReader reader(text, c_separator);
    std::size_t count = 0;
    try
    {
        for (; reader.MoveNext(); ++count)
            if (count < ColumnCount)
                values[count] = reader.GetCurrentValue();
    }
    catch (std::out_of_range const&)
    {
        fault = { text.size(), "nothing follows the backslash" };
        return false;
    }
    if (count != ColumnCount)
        fault = { text.size(), std::to_string(count) + " values instead of " + std::to_string(ColumnCount) };
    return count == ColumnCount;
}

bool TryReadDiscount(std::wstring const& text, Decimal& discount, Fault& fault)
{
    discount = Decimal::Zero();
    if (text.empty())
        return true;
    if (!TryReadAmount(text, 2, discount, fault))
        return false;
    if (discount >= 0 && discount <= 100)
        return true;
    fault = { 0, "a discount lies between 0 and 100" };
    return false;
}

bool TryReadTaxRate(std::wstring const& text, std::size_t& taxRate, Fault& fault)
{
    Decimal rate;
    if (!TryReadAmount(text, 0, rate, fault))
        return false;
    auto const found = std::find(c_taxRates.begin(), c_taxRates.end(), rate);
    taxRate = static_cast<std::size_t>(found - c_taxRates.begin());
    if (found != c_taxRates.end())
        return true;
    fault = { 0, "not a tax rate" };
    return false;
}

// The first column that is wrong, or ColumnCount.
std::size_t FindBadColumn(Values const& values, InvoiceLine& line, Fault& fault)
{
    if (!TryReadAmount(values[Quantity], 3, line.quantity, fault))
        return Quantity;
    if (!TryReadAmount(values[Price], 4, line.price, fault))
        return Price;
    if (!TryReadDiscount(values[Discount], line.discount, fault))
        return Discount;
    if (!TryReadTaxRate(values[TaxRate], line.taxRate, fault))
        return TaxRate;
    return ColumnCount;
}

} // namespace

bool IsInvoiceHeader(std::wstring const& text)
{
    Values values;
    Fault fault;
    return TrySplit(text, values, fault) &&
           std::equal(values.begin(), values.end(), c_columnNames.begin(), c_columnNames.end());
}

bool TryReadInvoiceLine(std::wstring const& text, InvoiceLine& line, Fault& fault)
{
    Values values;
    if (!TrySplit(text, values, fault))
        return false;
    std::size_t const column = FindBadColumn(values, line, fault);
    if (column == ColumnCount)
        return true;
    fault.position = PositionInLine(text, column, fault.position);
    fault.reason = WStringHelper::GetUTF8FromUTF16(std::wstring(c_columnNames[column]) + L" \"" + values[column]) +
                   "\": " + fault.reason;
    return false;
}

} // namespace Example
