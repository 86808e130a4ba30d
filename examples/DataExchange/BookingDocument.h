#pragma once

#include "Booking.h"

#include <filesystem>
#include <vector>

namespace Example
{

/// The bookings as XML: their date, amount and currency as attributes, text and attachment as elements.
/// Throws DocumentError; a file that was there before is untouched then.
void WriteBookingDocument(std::filesystem::path const& path, std::vector<Booking> const& bookings);

/// Reads such a document again. Throws DocumentError for any other.
std::vector<Booking> ReadBookingDocument(std::filesystem::path const& path);

} // namespace Example
