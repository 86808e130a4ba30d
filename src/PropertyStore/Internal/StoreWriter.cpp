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
        m_writer.WriteBeginStructure("collection",
                                     [&collection](Emitter const& emit)
                                     {
                                         emit("id", std::to_string(collection.GetId()));
                                         if (!collection.GetTemplateName().empty())
                                             emit("name", ToLosslessBytes(collection.GetTemplateName()));
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
            m_result.code = PropertyStoreResult::KindWithoutStoredText;
            m_result.text = L"Die Eigenschaft \"" + property.GetPropertyName() + L"\" kann nicht gespeichert werden.";
            return;
        }
        m_writer.WriteContentValue("property", ToLosslessBytes(stored->GetStoredText()),
                                   [&property](Emitter const& emit)
                                   { emit("kind", std::to_string(property.GetId())); });
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
