#pragma once

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

/// The cases in the order of the file. Throws std::runtime_error for a file or a rounding it does not know.
std::vector<DecTestCase> ReadDecTestFile(std::filesystem::path const& path);
