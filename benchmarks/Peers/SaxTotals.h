#pragma once

#include "SettingsText.h"

namespace Benchmarks
{

/// Totals for readers that report text wherever it stands: only that of elements without children counts.
class SaxTotals
{
public:
    void BeginElement(std::size_t nameSize)
    {
        ++totals.elements;
        totals.nameBytes += nameSize;
        m_pendingText = 0;
        m_isLeaf = true;
    }

    void AddAttribute(std::size_t nameSize, std::size_t valueSize)
    {
        ++totals.attributes;
        totals.nameBytes += nameSize;
        totals.valueBytes += valueSize;
    }

    void AddText(std::size_t size) { m_pendingText += size; }

    void EndElement()
    {
        if (m_isLeaf)
            totals.contentBytes += m_pendingText;
        m_isLeaf = false;
    }

    Totals totals;

private:
    std::size_t m_pendingText = 0;
    bool m_isLeaf = false;
};

} // namespace Benchmarks
