#pragma once

#include "Booking.h"

#include <functional>
#include <stdexcept>
#include <string>

namespace Example
{

/// A filter expression that cannot be understood; what() says why and where, in UTF-8.
class FilterError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

using Filter = std::function<bool(Booking const&)>;

/// Understands, in UTF-8,
///
///     betrag > 100 && (waehrung == "EUR" || !(datum < "01.07.2025")) && text != ""
///
/// that is comparisons (==, !=, <, <=, >, >=) of a column with a value or another column of its kind, joined by &&, ||,
/// ! and parentheses; && binds closer than ||. `betrag` and `beleg`, the attachment's size in bytes, are numbers such
/// as 1234.50 or -5; `datum` is a date, `waehrung` and `text` are texts. An empty expression takes every booking.
/// Throws FilterError.
Filter ParseFilter(std::string const& expression);

} // namespace Example
