#pragma once

#include "SettingsText.h"

#include <istream>
#include <string>

// Each reads a whole settings document, counts what it is told, and throws std::runtime_error for one it refuses.
// The peers read from memory, which is the best they can do; ours reads from a stream, which is what it offers.

namespace Benchmarks
{

Totals ReadWithOurs(std::istream& stream);
Totals ReadStrictlyWithOurs(std::istream& stream);
/// Groups may hold groups, by one description that uses itself.
Totals ReadNestedWithOurs(std::istream& stream);
/// The small document, with ten elements described.
Totals ReadInvoiceWithNewReader(std::istream& stream);
Totals ReadInvoiceWithUsedReader(std::istream& stream);
Totals ReadWithExpat(std::string const& document);
Totals ReadWithLibxml2(std::string const& document);
Totals ReadWithOrcus(std::string const& document);
Totals ReadWithRapidxml(std::string const& document);
Totals ReadWithPugixml(std::string const& document);

/// The same block by block, for the memory they need.
Totals StreamWithExpat(std::istream& stream);
Totals StreamWithLibxml2(std::istream& stream);

} // namespace Benchmarks
