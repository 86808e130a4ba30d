// tinyxml2's printer and pugixml's tree with the settings of XmlWriteBenchmark.cpp.

#include "XmlWriteContest.h"

#include <pugixml.hpp>
#include <tinyxml2.h>

#include <ostream>
#include <sstream>

namespace Benchmarks
{

namespace
{

std::size_t WriteWithTinyxml2(tinyxml2::XMLPrinter& printer)
{
    printer.ClearBuffer();
    printer.PushDeclaration("xml version=\"1.0\"");
    printer.OpenElement("settings");
    printer.PushAttribute("format", "2");
    for (Group const& group : GetGroups())
    {
        printer.OpenElement("group");
        printer.PushAttribute("name", group.name.c_str());
        printer.PushAttribute("id", group.id.c_str());
        for (Setting const& setting : group.settings)
        {
            printer.OpenElement("setting");
            printer.PushAttribute("name", setting.name.c_str());
            printer.PushAttribute("type", setting.type.c_str());
            printer.PushText(setting.value.c_str());
            printer.CloseElement();
        }
        printer.CloseElement();
    }
    printer.CloseElement();
    return printer.CStrSize();
}

pugi::xml_document const& GetTree()
{
    static pugi::xml_document tree;
    if (!tree.document_element())
        tree.load_string((c_declaration + MakeBody(MakeGroups(10'000'000, Codes::Few))).c_str(),
                         pugi::parse_default | pugi::parse_declaration);
    return tree;
}

void WriteWithPrinter(benchmark::State& state)
{
    tinyxml2::XMLPrinter printer;
    RunWriter(state, [&printer] { return WriteWithTinyxml2(printer); });
}
BENCHMARK(WriteWithPrinter)->Name("XmlWrite10MB/tinyxml2")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteWithPrinter)->Name("XmlWriteToMemory10MB/tinyxml2")->Unit(benchmark::kMillisecond);

std::size_t SaveTree(std::ostream& stream)
{
    GetTree().save(stream, "\t", pugi::format_default, pugi::encoding_utf8);
    return static_cast<std::size_t>(stream.tellp());
}

void SaveTreeAndDrop(benchmark::State& state)
{
    RunWriter(state,
              []
              {
                  CountingBuffer buffer;
                  std::ostream stream(&buffer);
                  return SaveTree(stream);
              });
}
BENCHMARK(SaveTreeAndDrop)->Name("XmlWrite10MB/pugixml_tree")->Unit(benchmark::kMillisecond);

void SaveTreeToMemory(benchmark::State& state)
{
    std::ostringstream stream;
    RunWriter(state,
              [&stream]
              {
                  stream.seekp(0);
                  return SaveTree(stream);
              });
}
BENCHMARK(SaveTreeToMemory)->Name("XmlWriteToMemory10MB/pugixml_tree")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace Benchmarks
