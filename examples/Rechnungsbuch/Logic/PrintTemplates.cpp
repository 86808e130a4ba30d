#include "PrintTemplates.h"

#include <PropertyStore/PropertyStore.h>
#include <Utilities/FileHelper.h>
#include <Utilities/IPropertyCollection/BooleanProperty.h>
#include <Utilities/IPropertyCollection/DecimalProperty.h>
#include <Utilities/IPropertyCollection/IntegerProperty.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>
#include <Utilities/IPropertyCollection/TextProperty.h>

#include <utility>

using namespace Vek::Framework::PropertyStore;
using namespace Vek::Framework::Utilities;
using namespace Vek::Framework::Utilities::IPropertyCollection::Native;

namespace Invoicing
{

namespace
{

wchar_t const* const c_standardName = L"Standard";

// The numbers stand in files: they are never used for anything else.
enum Kind : unsigned int
{
    Printer = 1,
    Heading = 2,
    Copies = 3,
    Duplex = 4,
    Margin = 5,
};

/// A value that its kind does not allow, with a text for the user.
struct RefusedValue
{
    std::wstring message;
};

template <class V>
void Set(PropertyCollection const& collection, Kind kind, V const& value)
{
    ValueProperty<V>& property = GetValueProperty<V>(collection, kind);
    try
    {
        property.SetValue(value);
    }
    catch (IllegalValueException const&)
    {
        PropertyInfo const& info = property.GetPropertyInfo();
        throw RefusedValue{ info.GetName() + L": " + info.GetDescription() };
    }
}

void SetAll(PropertyCollection const& collection, PrintSettings const& settings)
{
    Set(collection, Printer, settings.printer);
    Set(collection, Heading, settings.heading);
    Set<long long>(collection, Copies, settings.copies);
    Set(collection, Duplex, settings.isDuplex);
    Set(collection, Margin, settings.margin);
}

template <class V>
V const& GetValue(PropertyCollection const& collection, Kind kind)
{
    return GetValueProperty<V>(collection, kind).GetValue();
}

} // namespace

class PrintTemplates::Store : public PropertyCollectionFactory
{
public:
    Store() : PropertyCollectionFactory(c_standardName)
    {
        PrintSettings const usual;
        PropertyCollectionFactoryAccess access(*this);
        access.AddPropertyInfo(
            std::make_unique<TextPropertyInfo>(Printer, L"Drucker", L"Name im System", usual.printer));
        access.AddPropertyInfo(
            std::make_unique<TextPropertyInfo>(Heading, L"\u00dcberschrift", L"\u00fcber der Liste", usual.heading));
        access.AddPropertyInfo(std::make_unique<IntegerPropertyInfo>(Copies, L"Exemplare", L"1 bis 9 sind m\u00f6glich",
                                                                     usual.copies, 1, 9));
        access.AddPropertyInfo(
            std::make_unique<BooleanPropertyInfo>(Duplex, L"Duplex", L"beide Seiten", usual.isDuplex));
        access.AddPropertyInfo(std::make_unique<DecimalPropertyInfo>(
            Margin, L"Rand", L"0 bis 50 Millimeter sind m\u00f6glich", usual.margin, Decimal(0), Decimal(50)));
        for (unsigned int kind = Printer; kind <= Margin; ++kind)
            access.AddStandardProperty(kind);
    }
};

PrintTemplates::PrintTemplates() : m_store(std::make_unique<Store>())
{
}

PrintTemplates::PrintTemplates(PrintTemplates&&) noexcept = default;
PrintTemplates& PrintTemplates::operator=(PrintTemplates&&) noexcept = default;
PrintTemplates::~PrintTemplates() = default;

std::vector<std::wstring> PrintTemplates::GetNames() const
{
    std::vector<std::wstring> names;
    m_store->ForEachPropertyCollection(
        [&names](PropertyCollection const& collection) { names.push_back(collection.GetTemplateName()); }, {});
    return names;
}

bool PrintTemplates::Exists(std::wstring const& name) const
{
    return !name.empty() && m_store->ExistsTemplate(name);
}

PrintSettings PrintTemplates::Get(std::wstring const& name) const
{
    PropertyCollection const& collection = m_store->GetPropertyCollection(Exists(name) ? name : c_standardName);
    return { GetValue<std::wstring>(collection, Printer), GetValue<std::wstring>(collection, Heading),
             static_cast<int>(GetValue<long long>(collection, Copies)), GetValue<bool>(collection, Duplex),
             GetValue<Decimal>(collection, Margin) };
}

bool PrintTemplates::TrySet(std::wstring const& name, PrintSettings const& settings, std::wstring& message)
{
    if (name.find_first_not_of(L' ') == std::wstring::npos)
    {
        message = L"Der Name der Vorlage fehlt.";
        return false;
    }
    try
    {
        auto const edited = m_store->Create();
        edited->SetTemplateName(name);
        SetAll(*edited, settings);
        m_store->AssignTemplatePropertyCollection(*edited);
        return true;
    }
    catch (RefusedValue const& refused)
    {
        message = refused.message;
        return false;
    }
}

bool PrintTemplates::Delete(std::wstring const& name)
{
    if (!Exists(name) || name == c_standardName)
        return false;
    m_store->CleanUp([&name](PropertyCollection const& collection) { return collection.GetTemplateName() != name; },
                     false, true);
    return true;
}

std::wstring PrintTemplates::GetPath(std::wstring const& bookPath)
{
    return bookPath + L".vorlagen";
}

PropertyStoreResult PrintTemplates::Load(std::wstring const& path)
{
    auto loaded = std::make_unique<Store>();
    PropertyStoreResult result;
    if (FileHelper::GetExistenceState(path) != FileExistenceResult::NotExisting)
        result = PropertyStore::LoadFile(*loaded, path);
    if (result.IsSuccess())
        m_store = std::move(loaded);
    return result;
}

PropertyStoreResult PrintTemplates::Save(std::wstring const& path) const
{
    return PropertyStore::SaveFile(*m_store, path);
}

} // namespace Invoicing
