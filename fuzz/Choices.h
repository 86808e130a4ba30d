#pragma once

#include <cstdint>
#include <string>

/// Answers choices from the front of a fuzzer's input, then zeros.
class Choices
{
public:
    Choices(std::uint8_t const* data, std::size_t size) : m_at(data), m_end(data + size) {}
    unsigned int operator()(unsigned int end) { return m_at == m_end ? 0 : *m_at++ % end; }
    bool IsAtEnd() const { return m_at == m_end; }
    std::string GetRest() const { return std::string(m_at, m_end); }

private:
    std::uint8_t const* m_at;
    std::uint8_t const* m_end;
};
