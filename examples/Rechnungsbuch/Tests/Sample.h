#pragma once

#include "BookDocument.h"
#include "FieldInput.h"
#include "SampleBook.h"

#include <Utilities/AmountText.h>
#include <Utilities/WStringHelper.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace Invoicing
{

inline VekSysBase::VekDateEx const c_today(31, 3, 2025); // the last day of the sample, which is not moved then

inline std::string ToUtf8(std::wstring const& text)
{
    return Vek::Framework::Utilities::WStringHelper::GetUTF8FromUTF16(text);
}

inline Vek::Framework::Utilities::Decimal Amount(std::wstring const& text)
{
    Vek::Framework::Utilities::Decimal amount;
    InputFault fault;
    EXPECT_TRUE(TryReadAmount(text, amount, fault)) << ToUtf8(text);
    return amount;
}

inline Invoice MakeInvoice(std::wstring const& number)
{
    return { number, L"Huber", c_today, { Terms::Basis::InvoiceDate, 30 }, { { L"Ware", Amount(L"1,00"), 20 } }, {} };
}

inline std::string Write(std::vector<Invoice> const& invoices)
{
    std::ostringstream stream;
    EXPECT_TRUE(BookDocument::TryWrite(stream, invoices));
    return stream.str();
}

inline std::string ReadFile(std::wstring const& path)
{
    std::ifstream stream(std::filesystem::path(path), std::ios::binary);
    return { std::istreambuf_iterator<char>(stream), {} };
}

} // namespace Invoicing
