#pragma once

#include <IParser/ParserResult.h>
#include <IParser/State.h>
#include <VekApi.h>

#include <istream>
#include <memory>
#include <string>

namespace Vek::Framework::IParser::Native
{

namespace Internal
{
class StateTable;
}

/// An event-driven parser of 8-bit text: registered states recognise their tokens by longest match and hand tokens,
/// and the text between them, to their consumers.
///
/// Text:     the text before a token goes to the state's number or text consumer, then the token to its own. If the
///           text consumer switches the state, the token is recognised again with the tokens of the new state.
/// Place:    position, line and column move over a text or a token once its consumer agreed, so that a failed run
///           names the first character of what its consumer refused.
/// Cost:     linear in the source for tokens of bounded length. Memory: the longest text between two tokens and, when
///           reading by block, up to 1 MiB.
/// Errors:   a syntax error ends the run with InvalidSyntax. Exceptions of consumers pass through; GetParserResult
///           stays as it was, and the next run starts clean.
/// Reentry:  a consumer may start another run of the same parser and register states.
class VEK_API StateParser
{
public:
    enum WhiteSpaceHandling : unsigned int
    {
        KeepWhiteSpace = 0, ///< blanks are text
        SkipWhiteSpace = 1  ///< space, tab, carriage return and line feed are skip tokens of the state
    };

    StateParser();
    StateParser(StateParser const&) = delete;
    StateParser& operator=(StateParser const&) = delete;
    ~StateParser();

    /// Makes a state; the first one is where every run begins. The pointer stays valid as long as the parser.
    /// Throws ArgumentException for an id that is registered already.
    State* RegisterState(unsigned int id, WhiteSpaceHandling whiteSpaceHandling);

    /// Runs over the stream to its end, or until a consumer ends the run; true when the result's code is Ok.
    /// By block, the stream is read up to 1 MiB at a time; otherwise never further than recognition needs, so that a
    /// host can go on reading behind the token that stopped the run. The callbacks are the same. A stream that is not
    /// good counts as ended. Throws NullPointerException when no state is registered, and std::out_of_range when a
    /// consumer names a state that is not.
    bool ProcessSource(std::istream& stream, bool useBlockBuffer);

    /// The same over `source`, which must not change during the run.
    bool ProcessSource(std::string const& source);

    /// The result of the last run that ended; see ParserResult() before the first.
    ParserResult const& GetParserResult() const noexcept;

private:
    template <class... Source>
    VEK_LOCAL bool Run(Source&&... source);

    std::unique_ptr<Internal::StateTable> m_states;
    ParserResult m_result;
};

} // namespace Vek::Framework::IParser::Native
