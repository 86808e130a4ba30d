#include "InvoiceLine.h"

#include "ValueLine.h"

#include <algorithm>

using namespace Vek::Framework::Utilities;

namespace Example
{

namespace
{

enum Column : std::size_t
{
    Quantity = 3,
    Price = 4,
    Discount = 5,
    TaxRate = 6,
    ColumnCount = 7
};

using Values = std::vector<std::wstring>;

constexpr std::array<wchar_t const*, ColumnCount> c_columnNames = { L"Rechnung", L"Datum",  L"Text",      L"Menge",
                                                                    L"Preis",    L"Rabatt", L"Steuersatz" };

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
    return TrySplitLine(text, ColumnCount, ColumnCount, values, fault) &&
           std::equal(values.begin(), values.end(), c_columnNames.begin(), c_columnNames.end());
}

bool TryReadInvoiceLine(std::wstring const& text, InvoiceLine& line, Fault& fault)
{
    Values values;
    if (!TrySplitLine(text, ColumnCount, ColumnCount, values, fault))
        return false;
    std::size_t const column = FindBadColumn(values, line, fault);
    if (column == ColumnCount)
        return true;
    fault = InLine(text, column, c_columnNames[column], values[column], fault);
    return false;
}

} // namespace Example
