#include <PropertyStore/Internal/StoreWriter.h>

#include <IXMLStreamer/XMLWriter.h>
#include <PropertyStore/Internal/LosslessText.h>
#include <PropertyStore/PropertyStore.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>
#include <Utilities/IPropertyCollection/StoredProperty.h>

#include <sstream>
#include <utility>

namespace Vek::Framework::PropertyStore::Internal
{

namespace
{

using namespace Utilities::IPropertyCollection::Native;
using IXMLStreamer::Native::XMLWriter;
using Emitter = XMLWriter::AttributeEmitter;

class StoreWriter
{
public:
    PropertyStoreResult Write(PropertyCollectionFactory& factory, std::string& document)
    {
        unsigned int const nextId = PropertyCollectionFactoryAccess(factory).GetNextId();
        std::ostringstream stream;
        m_writer.StartWriting(stream, true);
        m_writer.WriteBeginStructure("propertyStore",
                                     [nextId](Emitter const& emit)
                                     {
                                         emit("version", std::to_string(PropertyStore::c_version));
                                         emit("nextId", std::to_string(nextId));
                                     });
        factory.ForEachPropertyCollection([this](PropertyCollection const& collection) { WriteCollection(collection); },
                                          {});
        m_writer.WriteEndStructure();
        m_writer.FinishWriting();
        if (m_result.IsSuccess())
            document = std::move(stream).str();
        return m_result;
    }

private:
    void WriteCollection(PropertyCollection const& collection)
    {
        std::string name;
        if (!TryToLosslessBytes(collection.GetTemplateName(), name))
            Refuse(PropertyStoreResult::InvalidValue, L"Ung\u00fcltiger Name: " + collection.GetTemplateName());
        m_writer.WriteBeginStructure("collection",
                                     [&](Emitter const& emit)
                                     {
                                         emit("id", std::to_string(collection.GetId()));
                                         if (!name.empty())
                                             emit("name", name);
                                         emit("overridden", collection.IsOverriden() ? "1" : "0");
                                         emit("deletable", collection.IsDeletable() ? "1" : "0");
                                     });
        collection.ForEachProperty([this](Property const& property) { WriteProperty(property); });
        m_writer.WriteEndStructure();
    }

    void WriteProperty(Property const& property)
    {
        auto const* const stored = dynamic_cast<StoredProperty const*>(&property);
        if (stored == nullptr)
        {
            Refuse(PropertyStoreResult::KindWithoutStoredText,
                   L"Die Eigenschaft \"" + property.GetPropertyName() + L"\" kann nicht gespeichert werden.");
            return;
        }
        std::wstring const text = stored->GetStoredText();
        std::string bytes;
        if (!TryToLosslessBytes(text, bytes))
            Refuse(PropertyStoreResult::InvalidValue,
                   L"Ung\u00fcltiger Wert f\u00fcr \"" + property.GetPropertyName() + L"\": " + text);
        m_writer.WriteContentValue(
            "property", bytes, [&property](Emitter const& emit) { emit("kind", std::to_string(property.GetId())); });
    }

    /// The first refusal is told.
    void Refuse(PropertyStoreResult::Code code, std::wstring const& text)
    {
        if (m_result.IsSuccess())
            m_result = { code, text };
    }

    XMLWriter m_writer;
    PropertyStoreResult m_result;
};

} // namespace

PropertyStoreResult WriteStore(PropertyCollectionFactory const& factory, std::string& document)
{
    // Nothing is changed; walking the collections is no const operation of the factory, since its callbacks may.
    return StoreWriter().Write(const_cast<PropertyCollectionFactory&>(factory), document);
}

} // namespace Vek::Framework::PropertyStore::Internal
