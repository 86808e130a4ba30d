#include "SaxTotals.h"
#include "XmlReaders.h"

#include <expat.h>
#include <libxml/HTMLparser.h>
#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <orcus/sax_parser.hpp>

#include <cstring>
#include <stdexcept>
#include <vector>

namespace Benchmarks
{

namespace
{

SaxTotals& GetTotals(void* context)
{
    return *static_cast<SaxTotals*>(context);
}

// libxml2 knows the five codes of XML; the others of HTML 4 it asks for.
xmlEntityPtr FindEntity(void*, xmlChar const* name)
{
    if (xmlEntityPtr const known = xmlGetPredefinedEntity(name); known != nullptr)
        return known;
    static xmlChar content[8];
    static xmlEntity entity{};
    htmlEntityDesc const* const code = htmlEntityLookup(name);
    if (code == nullptr)
        return nullptr;
    int length = xmlCopyChar(0, content, static_cast<int>(code->value));
    content[length] = 0;
    entity.type = XML_ENTITY_DECL;
    entity.etype = XML_INTERNAL_PREDEFINED_ENTITY;
    entity.name = name;
    entity.content = content;
    entity.length = length;
    return &entity;
}

xmlSAXHandler MakeLibxml2Handler()
{
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.getEntity = FindEntity;
    handler.startElementNs = [](void* context, xmlChar const* name, xmlChar const*, xmlChar const*, int,
                                xmlChar const**, int count, int, xmlChar const** attributes)
    {
        GetTotals(context).BeginElement(std::strlen(reinterpret_cast<char const*>(name)));
        for (; count > 0; --count, attributes += 5)
            GetTotals(context).AddAttribute(std::strlen(reinterpret_cast<char const*>(attributes[0])),
                                            static_cast<std::size_t>(attributes[4] - attributes[3]));
    };
    handler.endElementNs = [](void* context, xmlChar const*, xmlChar const*, xmlChar const*)
    { GetTotals(context).EndElement(); };
    handler.characters = [](void* context, xmlChar const*, int size)
    { GetTotals(context).AddText(static_cast<std::size_t>(size)); };
    return handler;
}

class OrcusHandler : public orcus::sax_handler
{
public:
    void start_element(orcus::sax::parser_element const& element)
    {
        counted.BeginElement(element.name.size());
        for (auto const& attribute : m_attributes)
            counted.AddAttribute(attribute.first, attribute.second);
        m_attributes.clear();
    }
    void end_element(orcus::sax::parser_element const&) { counted.EndElement(); }
    void characters(std::string_view text, bool) { counted.AddText(text.size()); }
    void attribute(orcus::sax::parser_attribute const& attribute)
    {
        if (!m_isInDeclaration)
            m_attributes.emplace_back(attribute.name.size(), attribute.value.size());
    }
    void start_declaration(std::string_view) { m_isInDeclaration = true; }
    void end_declaration(std::string_view) { m_isInDeclaration = false; }

    SaxTotals counted;

private:
    std::vector<std::pair<std::size_t, std::size_t>> m_attributes; // come before their element
    bool m_isInDeclaration = false;
};

XML_Parser MakeExpatParser(SaxTotals& totals)
{
    XML_Parser const parser = XML_ParserCreate("ISO-8859-1");
    XML_SetUserData(parser, &totals);
    XML_SetElementHandler(
        parser,
        [](void* context, XML_Char const* name, XML_Char const** attributes)
        {
            GetTotals(context).BeginElement(std::strlen(name));
            for (; *attributes != nullptr; attributes += 2)
                GetTotals(context).AddAttribute(std::strlen(attributes[0]), std::strlen(attributes[1]));
        },
        [](void* context, XML_Char const*) { GetTotals(context).EndElement(); });
    XML_SetCharacterDataHandler(parser, [](void* context, XML_Char const*, int size)
                                { GetTotals(context).AddText(static_cast<std::size_t>(size)); });
    return parser;
}

/// Calls `parse` with block after block of the stream, the last one marked; false as soon as it answers false.
template <class Parse>
bool ForEachBlock(std::istream& stream, Parse const& parse)
{
    std::vector<char> block(1 << 20);
    for (bool isLast = false; !isLast;)
    {
        stream.read(block.data(), static_cast<std::streamsize>(block.size()));
        isLast = !stream;
        if (!parse(block.data(), static_cast<int>(stream.gcount()), isLast))
            return false;
    }
    return true;
}

} // namespace

Totals StreamWithExpat(std::istream& stream)
{
    SaxTotals totals;
    XML_Parser const parser = MakeExpatParser(totals);
    bool const isRead = ForEachBlock(stream, [parser](char const* text, int size, bool isLast)
                                     { return XML_Parse(parser, text, size, isLast) == XML_STATUS_OK; });
    XML_ParserFree(parser);
    if (!isRead)
        throw std::runtime_error("expat refused the document");
    return totals.totals;
}

Totals StreamWithLibxml2(std::istream& stream)
{
    SaxTotals totals;
    xmlSAXHandler handler = MakeLibxml2Handler();
    xmlParserCtxtPtr const parser = xmlCreatePushParserCtxt(&handler, &totals, nullptr, 0, nullptr);
    bool const isRead = ForEachBlock(stream, [parser](char const* text, int size, bool isLast)
                                     { return xmlParseChunk(parser, text, size, isLast) == 0; });
    xmlFreeParserCtxt(parser);
    if (!isRead)
        throw std::runtime_error("libxml2 refused the document");
    return totals.totals;
}

Totals ReadWithExpat(std::string const& document)
{
    SaxTotals totals;
    XML_Parser const parser = MakeExpatParser(totals);
    XML_Status const status = XML_Parse(parser, document.data(), static_cast<int>(document.size()), 1);
    XML_ParserFree(parser);
    if (status != XML_STATUS_OK)
        throw std::runtime_error("expat refused the document");
    return totals.totals;
}

Totals ReadWithLibxml2(std::string const& document)
{
    SaxTotals totals;
    xmlSAXHandler handler = MakeLibxml2Handler();
    if (xmlSAXUserParseMemory(&handler, &totals, document.data(), static_cast<int>(document.size())) != 0)
        throw std::runtime_error("libxml2 refused the document");
    return totals.totals;
}

Totals ReadWithOrcus(std::string const& document)
{
    OrcusHandler handler;
    orcus::sax_parser<OrcusHandler> parser(document.data(), document.size(), handler);
    parser.parse();
    return handler.counted.totals;
}

} // namespace Benchmarks
