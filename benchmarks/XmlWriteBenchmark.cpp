// The settings of a document of 10 MB, written element by element.

#include "XmlWriteContest.h"

#include <IXMLStreamer/XMLWriter.h>

#include <ostream>
#include <sstream>

namespace Benchmarks
{

namespace
{

using Vek::Framework::IXMLStreamer::Native::XMLWriter;

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

void WriteAndDrop(benchmark::State& state)
{
    RunWriter(state,
              []
              {
                  CountingBuffer buffer;
                  std::ostream stream(&buffer);
                  return WriteWithOurs(stream);
              });
}
BENCHMARK(WriteAndDrop)->Name("XmlWrite10MB/ours")->Unit(benchmark::kMillisecond);

void WriteToMemory(benchmark::State& state)
{
    std::ostringstream stream;
    RunWriter(state,
              [&stream]
              {
                  stream.seekp(0);
                  return WriteWithOurs(stream);
              });
}
BENCHMARK(WriteToMemory)->Name("XmlWriteToMemory10MB/ours")->Unit(benchmark::kMillisecond);

} // namespace

} // namespace Benchmarks
