#include <IParser/StateParser.h>

#include <Exceptions/NullPointerException.h>
#include <IParser/Internal/StateProcessor.h>
#include <IParser/Internal/StateTable.h>

#include <utility>

namespace Vek::Framework::IParser::Native
{

namespace
{

class CountWhileAlive
{
public:
    explicit CountWhileAlive(unsigned int& count) : m_count(count) { ++m_count; }
    CountWhileAlive(CountWhileAlive const&) = delete;
    CountWhileAlive& operator=(CountWhileAlive const&) = delete;
    ~CountWhileAlive() { --m_count; }

private:
    unsigned int& m_count;
};

} // namespace

StateParser::StateParser() : m_states(std::make_unique<Internal::StateTable>())
{
}

StateParser::~StateParser() = default;

State* StateParser::RegisterState(unsigned int id, WhiteSpaceHandling whiteSpaceHandling)
{
    return &m_states->Register(id, whiteSpaceHandling);
}

template <class... Source>
bool StateParser::Run(Source&&... source)
{
    if (m_states->GetInitialState() == nullptr)
        throw NullPointerException();

    CountWhileAlive const running(m_states->GetActiveRuns());
    StateProcessor processor(*m_states, nullptr, std::forward<Source>(source)...);
    m_result = processor.Process();
    return m_result.IsSuccess();
}

bool StateParser::ProcessSource(std::istream& stream, bool useBlockBuffer)
{
    using Internal::SourceBuffer;
    return Run(stream, useBlockBuffer ? SourceBuffer::Reading::ByBlock : SourceBuffer::Reading::ByCharacter);
}

bool StateParser::ProcessSource(std::string const& source)
{
    return Run(source);
}

ParserResult const& StateParser::GetParserResult() const noexcept
{
    return m_result;
}

} // namespace Vek::Framework::IParser::Native
