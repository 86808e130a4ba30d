#pragma once

/// Gives a text and then fails as a broken disk would.
struct BreakingBuffer : std::stringbuf
{
    using std::stringbuf::stringbuf;
    int_type underflow() override { throw std::runtime_error("broken"); }
};
