#include <PropertyStore/Internal/StoreReader.h>

#include <PropertyStore/Internal/LosslessText.h>
#include <PropertyStore/PropertyStore.h>
#include <Utilities/IPropertyCollection/PropertyCollectionExceptions.h>
#include <Utilities/IPropertyCollection/StoredProperty.h>
#include <Utilities/WStringHelper.h>

#include <charconv>
#include <utility>

namespace Vek::Framework::PropertyStore::Internal
{

using namespace IXMLStreamer::Native;
using namespace Utilities::IPropertyCollection::Native;
using Utilities::WStringHelper;

namespace
{

constexpr unsigned int c_greatestNumber = 0xFFFFFFFF;

} // namespace

StoreReader::StoreReader(PropertyCollectionFactory& factory) : m_access(factory), m_factory(factory)
{
    Describe();
}

PropertyStoreResult StoreReader::Read(std::istream& stream)
{
    m_streamer.SetSyntax(XMLStreamer::Strict);
    m_streamer.SetVersion(1);
    bool const isRead = m_streamer.ProcessSource(stream);
    if (stream.bad())
        return { PropertyStoreResult::SourceNotReadable, L"Die Quelle ist nicht lesbar." };
    if (!isRead)
        return GetFailure();
    if (m_collections.empty())
        return { PropertyStoreResult::InvalidStandard, L"Der Standard fehlt." };
    m_access.RestoreCollections(std::move(m_collections), m_nextId);
    return {};
}

void StoreReader::Describe()
{
    XMLStructureElement& root = m_streamer.CreateRootStructureElement("propertyStore");
    root.RegisterAttribute(1, "version",
                           [this](std::string const&, std::string const& value) { return ChooseVersion(value); });
    RegisterFromVersion2(root, "nextId",
                         [this](std::string const& value) { return ReadNumber(value, c_greatestNumber, m_nextId); });
    root.SetOnBegin(1, [this](XMLStructureElement const&)
                    { return m_hasVersion || Fail(Code::UnknownVersion, L"Die Formatversion fehlt."); });
    RefuseOtherAttributes(root);
    DescribeCollection(root.CreateStructureElement("collection"));
    m_streamer.SetOnUnknownElement(
        1,
        [this](std::string const& name) {
            return Fail(Code::UnknownContent, L"Unbekanntes Element: " + WStringHelper::GetUTF16FromWindows1252(name));
        });
}

void StoreReader::DescribeCollection(XMLStructureElement& collection)
{
    collection.RegisterAttribute(1, "id",
                                 [this](std::string const&, std::string const& value)
                                 { return ReadNumber(value, PropertyCollection::c_no_id - 1, m_id.emplace()); });
    collection.RegisterAttribute(1, "name",
                                 [this](std::string const&, std::string const& value)
                                 {
                                     return TryFromLosslessBytes(value, m_name) ||
                                            Fail(Code::InvalidValue, L"Ung\u00fcltiger Name: " +
                                                                         WStringHelper::GetUTF16FromWindows1252(value));
                                 });
    RegisterFromVersion2(collection, "overridden",
                         [this](std::string const& value) { return ReadNumber(value, 1, m_isOverridden); });
    RegisterFromVersion2(collection, "deletable",
                         [this](std::string const& value) { return ReadNumber(value, 1, m_isDeletable); });
    RefuseOtherAttributes(collection);
    collection.SetOnBegin(1, [this](XMLStructureElement const&) { return BeginCollection(); });
    collection.SetOnEnd(1, [this](XMLStructureElement const&) { return EndCollection(); });
    XMLContentElement& property = collection.CreateContentElement("property");
    property.RegisterAttribute(1, "kind",
                               [this](std::string const&, std::string const& value)
                               { return ReadNumber(value, c_greatestNumber, m_kind.emplace()); });
    RefuseOtherAttributes(property);
    property.SetOnDo(1, [this](XMLContentElement const&, std::string const& content) { return ReadProperty(content); });
}

void StoreReader::RegisterFromVersion2(XMLElement& element, char const* name,
                                       std::function<bool(std::string const&)> read)
{
    element.RegisterAttribute(
        1, name, [this](std::string const& refused, std::string const&) { return RefuseAttribute(refused); });
    element.RegisterAttribute(
        2, name, [read = std::move(read)](std::string const&, std::string const& value) { return read(value); });
}

void StoreReader::RefuseOtherAttributes(XMLElement& element)
{
    element.RegisterUnspecifiedAttributes(1, [this](std::string const& name, std::string const&)
                                          { return RefuseAttribute(name); });
}

bool StoreReader::RefuseAttribute(std::string const& name)
{
    return Fail(Code::UnknownContent, L"Unbekanntes Attribut: " + WStringHelper::GetUTF16FromWindows1252(name));
}

// Version 1 until the attribute says otherwise; what is read from then on has the handlers of its version.
bool StoreReader::ChooseVersion(std::string const& value)
{
    unsigned int version = 0;
    if (!ReadNumber(value, c_greatestNumber, version))
        return false;
    if (version < 1 || version > PropertyStore::c_version)
        return Fail(Code::UnknownVersion,
                    L"Unbekannte Formatversion: " + WStringHelper::GetUTF16FromWindows1252(value));
    m_hasVersion = true;
    m_streamer.SetVersion(version);
    return true;
}

bool StoreReader::BeginCollection()
{
    if (!m_id)
        return Fail(Code::MissingAttribute, L"Die Nummer der Sammlung fehlt.");
    if (m_collections.empty() != (*m_id == PropertyCollectionFactory::c_standard_property_collection_id))
        return Fail(Code::InvalidStandard, L"Die erste Sammlung, und nur sie, hat die Nummer 0.");
    if (!m_ids.insert(*m_id).second)
        return Fail(Code::DuplicateId, L"Doppelte Nummer: " + std::to_wstring(*m_id));
    m_collections.push_back(m_access.CreateEmptyCollection(*m_id));
    m_id.reset();
    return true;
}

bool StoreReader::EndCollection()
{
    PropertyCollection& collection = *m_collections.back();
    collection.SetTemplateName(std::exchange(m_name, {}));
    collection.SetIsOverriden(std::exchange(m_isOverridden, 0U) != 0);
    collection.SetDeletable(std::exchange(m_isDeletable, 1U) != 0);
    m_factory.GetStdPropertyCollection().ForEachProperty(
        [&](Property const& property)
        {
            if (!collection.HasProperty(property.GetId()))
                m_access.AddProperty(collection, property.GetId());
        });
    return true;
}

bool StoreReader::ReadProperty(std::string const& content)
{
    if (!m_kind)
        return Fail(Code::MissingAttribute, L"Die Art der Eigenschaft fehlt.");
    unsigned int const kind = *std::exchange(m_kind, std::nullopt);
    PropertyInfo const* const info = m_access.FindPropertyInfo(kind);
    if (info == nullptr)
        return Fail(Code::UnknownKind, L"Unbekannte Art: " + std::to_wstring(kind));
    if (info->GetValueType() == PropertyInfo::ColorValue && m_streamer.GetVersion() == 1)
        return Fail(Code::UnknownKind, L"Formatversion 1 hat keine Farben: " + info->GetName());
    if (m_collections.back()->HasProperty(kind))
        return Fail(Code::DuplicateKind, L"Doppelte Eigenschaft: " + info->GetName());
    std::wstring text;
    if (!TryFromLosslessBytes(content, text))
        return Fail(Code::InvalidValue, L"Ung\u00fcltiger Text: " + WStringHelper::GetUTF16FromWindows1252(content));
    return SetValue(kind, text);
}

bool StoreReader::SetValue(unsigned int kind, std::wstring const& text)
{
    Property& property = m_access.AddProperty(*m_collections.back(), kind);
    auto* const stored = dynamic_cast<StoredProperty*>(&property);
    if (stored == nullptr)
        return Fail(Code::KindWithoutStoredText,
                    L"Die Eigenschaft \"" + property.GetPropertyName() + L"\" kann nicht gelesen werden.");
    try
    {
        stored->SetStoredText(text);
        return true;
    }
    catch (IllegalValueException const&)
    {
        return Fail(Code::InvalidValue,
                    L"Ung\u00fcltiger Wert f\u00fcr \"" + property.GetPropertyName() + L"\": " + text);
    }
}

bool StoreReader::Fail(Code code, std::wstring const& text)
{
    m_result.code = code;
    m_result.text = text;
    return false;
}

bool StoreReader::ReadNumber(std::string const& value, unsigned int greatest, unsigned int& number)
{
    char const* const end = value.data() + value.size();
    auto const [parsed, error] = std::from_chars(value.data(), end, number);
    return (error == std::errc() && parsed == end && number <= greatest) ||
           Fail(Code::InvalidNumber, L"Ung\u00fcltige Zahl: " + WStringHelper::GetUTF16FromWindows1252(value));
}

PropertyStoreResult StoreReader::GetFailure() const
{
    PropertyStoreResult failure = m_result;
    if (failure.code == PropertyStoreResult::Ok)
    {
        failure.code = PropertyStoreResult::InvalidDocument;
        failure.text = WStringHelper::GetUTF16FromWindows1252(m_streamer.GetError().GetDescription());
    }
    failure.line = m_streamer.GetParserResult().line;
    failure.column = m_streamer.GetParserResult().column;
    failure.path = m_streamer.GetOpenElementPath();
    return failure;
}

} // namespace Vek::Framework::PropertyStore::Internal
