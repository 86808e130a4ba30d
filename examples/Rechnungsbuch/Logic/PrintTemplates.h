#pragma once

#include "InputFault.h"

#include <PropertyStore/PropertyStoreResult.h>
#include <Utilities/Decimal.h>

#include <memory>
#include <string>
#include <vector>

namespace Invoicing
{

/// How invoices are printed.
struct PrintSettings
{
    std::wstring printer;                 ///< empty: the system's own choice
    std::wstring heading = L"Rechnungen"; ///< stands above the list
    int copies = 1;                       ///< 1 to 9
    bool isDuplex = false;
    Vek::Framework::Utilities::Decimal margin{ 2000, -2 }; ///< millimetres, 0 to 50

    bool operator==(PrintSettings const&) const = default;
};

/// Print settings under names, and the standard that new ones begin with; kept in a property store beside the book.
class PrintTemplates
{
public:
    PrintTemplates();
    PrintTemplates(PrintTemplates&&) noexcept;
    PrintTemplates& operator=(PrintTemplates&&) noexcept;
    ~PrintTemplates();

    /// The standard first, then in the order in which they were made.
    std::vector<std::wstring> GetNames() const;
    bool Exists(std::wstring const& name) const;
    /// The standard's for a name that is not there.
    PrintSettings Get(std::wstring const& name) const;

    /// Makes the template or changes it. False, with a German text, for an empty name and for values that are not
    /// allowed; nothing has changed then.
    bool TrySet(std::wstring const& name, PrintSettings const& settings, std::wstring& message);
    /// False for the standard and for a name that is not there.
    bool Delete(std::wstring const& name);

    /// The file beside the book's: "Rechnungen.xml" has "Rechnungen.xml.vorlagen".
    static std::wstring GetPath(std::wstring const& bookPath);

    /// A missing file is none: the templates are those of a new book then. Anything that fails leaves the templates, or
    /// the file, as they were.
    Vek::Framework::PropertyStore::PropertyStoreResult Load(std::wstring const& path);
    Vek::Framework::PropertyStore::PropertyStoreResult Save(std::wstring const& path) const;

private:
    class Store;

    std::unique_ptr<Store> m_store;
};

} // namespace Invoicing
