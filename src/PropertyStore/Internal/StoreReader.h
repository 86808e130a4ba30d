#pragma once

#include <IXMLStreamer/XMLStreamer.h>
#include <PropertyStore/PropertyStoreResult.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactory.h>
#include <Utilities/IPropertyCollection/PropertyCollectionFactoryAccess.h>

#include <functional>
#include <istream>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

namespace Vek::Framework::PropertyStore::Internal
{

/// Reads a store into collections that no one has registered, and puts them into the factory when all is right.
class StoreReader
{
public:
    explicit StoreReader(Utilities::IPropertyCollection::Native::PropertyCollectionFactory& factory);

    PropertyStoreResult Read(std::istream& stream);

private:
    using Code = PropertyStoreResult::Code;

    void Describe();
    void DescribeCollection(IXMLStreamer::Native::XMLStructureElement& collection);
    void RegisterFromVersion2(IXMLStreamer::Native::XMLElement& element, char const* name,
                              std::function<bool(std::string const&)> read);
    void RefuseOtherAttributes(IXMLStreamer::Native::XMLElement& element);
    bool RefuseAttribute(std::string const& name);

    bool ChooseVersion(std::string const& value);
    bool BeginCollection();
    bool EndCollection();
    bool ReadProperty(std::string const& content);
    bool SetValue(unsigned int kind, std::wstring const& text);

    /// False, so that the reader stops at this place.
    bool Fail(Code code, std::wstring const& text);
    bool ReadNumber(std::string const& value, unsigned int greatest, unsigned int& number);
    PropertyStoreResult GetFailure() const;

    Utilities::IPropertyCollection::Native::PropertyCollectionFactoryAccess m_access;
    Utilities::IPropertyCollection::Native::PropertyCollectionFactory& m_factory;
    IXMLStreamer::Native::XMLStreamer m_streamer;
    PropertyStoreResult m_result;

    bool m_hasVersion = false;
    unsigned int m_nextId = 0;
    std::vector<std::unique_ptr<Utilities::IPropertyCollection::Native::PropertyCollection>> m_collections;
    std::unordered_set<unsigned int> m_ids;

    // Of the element that is being read.
    std::optional<unsigned int> m_id;
    std::optional<unsigned int> m_kind;
    std::wstring m_name;
    unsigned int m_isOverridden = 0;
    unsigned int m_isDeletable = 1;
};

} // namespace Vek::Framework::PropertyStore::Internal
