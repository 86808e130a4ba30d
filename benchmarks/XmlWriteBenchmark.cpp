#include "SettingsText.h"

#include <IXMLStreamer/XMLWriter.h>

#include <benchmark/benchmark.h>
#include <pugixml.hpp>
#include <tinyxml2.h>

#include <ostream>
#include <sstream>

namespace Benchmarks
{

namespace
{

using Vek::Framework::IXMLStreamer::Native::XMLWriter;

std::vector<Group> const& GetGroups()
{
    static std::vector<Group> const groups = []
    {
        std::vector<Group> made = MakeGroups(10'000'000, Codes::Few);
        for (Group& group : made)
            for (Setting& setting : group.settings)
                if (setting.value == "A4 &amp; A3")
                    setting.value = "A4 & A3"; // the writers escape
        return made;
    }();
    return groups;
}

std::size_t WriteWithOurs(std::ostream& stream)
{
    XMLWriter writer;
    writer.StartWriting(stream, true);
    writer.WriteBeginStructure("settings", [](XMLWriter::AttributeEmitter const& emit) { emit("format", "2"); });
    for (Group const& group : GetGroups())
    {
        writer.WriteBeginStructure("group",
                                   [&](XMLWriter::AttributeEmitter const& emit)
                                   {
                                       emit("name", group.name);
                                       emit("id", group.id);
                                   });
        for (Setting const& setting : group.settings)
            writer.WriteContentValue("setting", setting.value,
                                     [&](XMLWriter::AttributeEmitter const& emit)
                                     {
                                         emit("name", setting.name);
                                         emit("type", setting.type);
                                     });
        writer.WriteEndStructure();
    }
    writer.WriteEndStructure();
    writer.FinishWriting();
    return static_cast<std::size_t>(stream.tellp());
}

std::size_t WriteWithTinyxml2()
{
    tinyxml2::XMLPrinter printer;
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

/// Counts bytes and drops them, so that the writers are measured and not the memory they write to.
class CountingBuffer : public std::streambuf
{
protected:
    std::streamsize xsputn(char const* text, std::streamsize size) override
    {
        benchmark::DoNotOptimize(text);
        m_size += size;
        return size;
    }
    int_type overflow(int_type c) override
    {
        ++m_size;
        return traits_type::not_eof(c);
    }
    pos_type seekoff(off_type, std::ios_base::seekdir, std::ios_base::openmode) override { return m_size; }

private:
    std::streamsize m_size = 0;
};

template <class Write>
void Run(benchmark::State& state, Write const& write)
{
    GetGroups();
    GetTree();
    std::size_t size = 0;
    for (auto _ : state)
        size = write();
    if (size < 8'000'000)
        state.SkipWithError("wrote too little");
    state.SetBytesProcessed(static_cast<std::int64_t>(size) * static_cast<std::int64_t>(state.iterations()));
}

void XmlWrite_ours(benchmark::State& state)
{
    Run(state,
        []
        {
            CountingBuffer buffer;
            std::ostream stream(&buffer);
            return WriteWithOurs(stream);
        });
}
BENCHMARK(XmlWrite_ours)->Name("XmlWrite10MB/ours")->Unit(benchmark::kMillisecond);

void XmlWriteMemory_ours(benchmark::State& state)
{
    Run(state,
        []
        {
            std::ostringstream stream;
            return WriteWithOurs(stream);
        });
}
BENCHMARK(XmlWriteMemory_ours)->Name("XmlWriteToMemory10MB/ours")->Unit(benchmark::kMillisecond);

void XmlWrite_tinyxml2(benchmark::State& state)
{
    Run(state, WriteWithTinyxml2);
}
BENCHMARK(XmlWrite_tinyxml2)->Name("XmlWrite10MB/tinyxml2")->Unit(benchmark::kMillisecond);
BENCHMARK(XmlWrite_tinyxml2)->Name("XmlWriteToMemory10MB/tinyxml2")->Unit(benchmark::kMillisecond);

void XmlWrite_pugixml(benchmark::State& state)
{
    Run(state,
        []
        {
            CountingBuffer buffer;
            std::ostream stream(&buffer);
            GetTree().save(stream, "\t", pugi::format_default, pugi::encoding_utf8);
            return static_cast<std::size_t>(stream.tellp());
        });
}
BENCHMARK(XmlWrite_pugixml)->Name("XmlWrite10MB/pugixml_tree")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace Benchmarks
