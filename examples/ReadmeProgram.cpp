#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>

#include <iostream>
#include <sstream>

using namespace Vek::Framework::IXMLStreamer::Native;

int main()
{
    std::string name, tray;
    XMLStreamer reader;
    XMLStructureElement& root = reader.CreateRootStructureElement("settings");
    XMLStructureElement& printer = root.CreateStructureElement("printer");
    printer.RegisterAttribute(1, "name", [&](auto&, auto& value) { return name = value, true; });
    printer.CreateContentElement("tray").SetOnDo(1, [&](auto&, auto& content) { return tray = content, true; });
    reader.SetVersion(1);

    for (std::string text : { "<printer name='A &amp; B'>\n<tray>2</tray></printer>", "<printer>\n</drucker>" })
    {
        std::istringstream document("<?xml version='1.0'?>\n<settings>" + text + "</settings>");
        if (reader.ProcessSource(document))
            std::cout << name << " prints from tray " << tray << '\n';
        else
            std::cout << "error " << reader.GetError().GetErrorCode() << " in line " << reader.GetParserResult().line
                      << ", " << reader.GetOpenElementPath() << ": expected " << reader.GetError().GetExpectedSymbol()
                      << '\n';
    }
}
