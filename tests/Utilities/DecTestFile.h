#pragma once

#include <cctype>
#include <filesystem>

extern "C"
{
#include <decContext.h>
}

/// One line of a file of the General Decimal Arithmetic test cases, with the rounding that holds there.
struct DecTestCase
{
    std::string id;
    std::string operation; // in lower case
    std::vector<std::string> operands;
    std::string result;
    rounding mode;
};

inline std::string ToLower(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

/// From the quote at `position` on, where a doubled quote stands for itself.
inline std::string ReadQuoted(std::string const& line, std::size_t& position)
{
    char const quote = line[position++];
    std::string word;
    for (; position < line.size(); ++position)
    {
        if (line[position] == quote && (++position == line.size() || line[position] != quote))
            break;
        word += line[position];
    }
    return word;
}

/// The words up to the comment.
inline std::vector<std::string> SplitWords(std::string const& line)
{
    std::vector<std::string> words;
    constexpr char const* blanks = " \t\r";
    for (std::size_t i = line.find_first_not_of(blanks); i < line.size(); i = line.find_first_not_of(blanks, i))
    {
        if (line.compare(i, 2, "--") == 0)
            break;
        if (line[i] == '\'' || line[i] == '"')
        {
            words.push_back(ReadQuoted(line, i));
            continue;
        }
        std::size_t const end = std::min(line.find_first_of(blanks, i), line.size());
        words.push_back(line.substr(i, end - i));
        i = end;
    }
    return words;
}

inline rounding ToRounding(std::string const& name)
{
    static std::map<std::string, rounding> const modes = {
        { "ceiling", DEC_ROUND_CEILING },     { "up", DEC_ROUND_UP },
        { "half_up", DEC_ROUND_HALF_UP },     { "half_even", DEC_ROUND_HALF_EVEN },
        { "half_down", DEC_ROUND_HALF_DOWN }, { "down", DEC_ROUND_DOWN },
        { "floor", DEC_ROUND_FLOOR },         { "05up", DEC_ROUND_05UP },
    };
    if (!modes.contains(name))
        throw std::runtime_error("unknown rounding " + name);
    return modes.at(name);
}

inline DecTestCase ToCase(std::vector<std::string> const& words, rounding mode)
{
    auto const arrow = std::find(words.begin() + 2, words.end(), "->");
    if (words.end() - arrow < 2)
        throw std::runtime_error("no result in " + words[0]);
    return { words[0], ToLower(words[1]), { words.begin() + 2, arrow }, arrow[1], mode };
}

/// The cases in the order of the file. Throws std::runtime_error for a file or a rounding it does not know.
inline std::vector<DecTestCase> ReadDecTestFile(std::filesystem::path const& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path.string());
    rounding mode = DEC_ROUND_HALF_UP;
    std::vector<DecTestCase> cases;
    for (std::string line; std::getline(file, line);)
    {
        std::vector<std::string> const words = SplitWords(line);
        if (words.size() > 2)
            cases.push_back(ToCase(words, mode));
        else if (words.size() == 2 && ToLower(words[0]) == "rounding:")
            mode = ToRounding(ToLower(words[1]));
        else if (!words.empty() && !words[0].ends_with(':'))
            throw std::runtime_error("no case: " + line);
    }
    return cases;
}
