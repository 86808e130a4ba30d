// Uses one thing of every family across the border of the library: exceptions by type, exported templates, callbacks,
// strings made on one side and freed on the other.

#include <Exceptions/ArgumentException.h>
#include <Exceptions/UserException.h>
#include <Exceptions/Win32Exception.h>
#include <IParser/Internal/KeyAlreadyInsertedException.h>
#include <IParser/StateParser.h>
#include <IXMLStreamer/XMLContentElement.h>
#include <IXMLStreamer/XMLStreamer.h>
#include <IXMLStreamer/XMLWriter.h>
#include <SysBase/ExceptionHandler.h>
#include <Utilities/WStringHelper.h>
#if defined(_WIN32)
#    include <Utilities/UI/DialogBase.h>
#endif

#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>

namespace
{

using namespace Vek::Framework::IXMLStreamer::Native;

std::string Write()
{
    std::ostringstream stream;
    XMLWriter writer;
    auto const none = [](auto const&) {};
    bool const isWritten = writer.StartWriting(stream, true) && writer.WriteBeginStructure("settings", none) &&
                           writer.WriteContentValue("title", "a<b", none) && writer.WriteEndStructure() &&
                           writer.FinishWriting();
    return isWritten ? stream.str() : std::string();
}

std::string Read(std::string const& document)
{
    std::string title;
    XMLStreamer streamer;
    XMLContentElement& element = streamer.CreateRootStructureElement("settings").CreateContentElement("title");
    element.SetOnDo(1, [&title](auto&, auto& content) { return title = content, true; });
    VersionedFunctionCollection<UnknownElementHandler> own;
    own.SetFunction(0, [](std::string const&) { return false; });
    streamer.SetVersion(own.CallFunction(1, "x") ? 0 : 1);
    std::istringstream stream(document);
    return streamer.ProcessSource(stream) ? title : std::string(streamer.GetError().GetDescription());
}

template <class Exception, class Action>
bool Throws(Action const& action)
{
    try
    {
        action();
    }
    catch (Exception const&)
    {
        return true;
    }
    return false;
}

bool AreExceptionsCaughtByType()
{
    namespace Parser = Vek::Framework::IParser::Native;
    Parser::StateParser parser;
    Parser::State* const state = parser.RegisterState(0, Parser::StateParser::SkipWhiteSpace);
    return Throws<Vek::ArgumentException>([&] { parser.RegisterState(0, Parser::StateParser::KeepWhiteSpace); }) &&
           Throws<Parser::Internal::KeyAlreadyInsertedException>(
               [&] { state->RegisterSkipToken(" ", Parser::State::CaseSensitive); }) &&
           Throws<std::range_error>([] { Vek::Framework::Utilities::WStringHelper::GetUTF16FromUTF8("\xC3("); }) &&
           !VekSysBase::ExceptionHandler::ExecuteSafe([] { throw Vek::UserException("host"); }, L"", L"", L"");
}

#if defined(_WIN32)

class Dialog : public Vek::Framework::Utilities::UI::DialogBase
{
public:
    Dialog() : DialogBase(1, nullptr) {}
};

/// The host has no template of that number.
bool CanTryADialog()
{
    return Throws<Vek::Win32Exception>([] { Dialog().Show(); });
}

#else

bool CanTryADialog()
{
    return true;
}

#endif

} // namespace

int main()
{
    bool const isFine = Read(Write()) == "a<b" && AreExceptionsCaughtByType() && CanTryADialog();
    std::cout << (isFine ? "The installed package works\n" : "The installed package does not work\n");
    return isFine ? 0 : 1;
}
