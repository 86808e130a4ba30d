#include <IParser/StateParser.h>

#include <Exceptions/ArgumentException.h>
#include <Exceptions/NullPointerException.h>
#include <IParser/Internal/StateTable.h>
#include <IParser/StateProcessor.h>

#include <utility>

namespace Vek::Framework::IParser::Native
{

struct StateParser::Registry
{
    Internal::StateTable states;
    State* initialState = nullptr;
    unsigned int activeRuns = 0;
};

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

StateParser::StateParser() : m_registry(std::make_unique<Registry>())
{
}

StateParser::~StateParser() = default;

State* StateParser::RegisterState(unsigned int id, WhiteSpaceHandling whiteSpaceHandling)
{
    if (m_registry->states.Find(id) != nullptr)
        throw ArgumentException();

    std::unique_ptr<State> state(new State(id, m_registry->activeRuns));
    if (whiteSpaceHandling == SkipWhiteSpace)
        for (char const* const blank : { " ", "\t", "\r", "\n" })
            state->RegisterSkipToken(blank, State::CaseSensitive);

    State& added = m_registry->states.Add(std::move(state));
    if (m_registry->initialState == nullptr)
        m_registry->initialState = &added;
    return &added;
}

template <class... Source>
bool StateParser::Run(Source&&... source)
{
    if (m_registry->initialState == nullptr)
        throw NullPointerException();

    CountWhileAlive const running(m_registry->activeRuns);
    StateProcessor processor(m_registry->states, *m_registry->initialState, std::forward<Source>(source)...);
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
