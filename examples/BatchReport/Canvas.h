#pragma once

#include <Utilities/BGRAColors.h>
#include <Utilities/IntRectangle.h>

#include <ostream>
#include <vector>

namespace Example
{

using Color = Vek::Framework::Utilities::ColorBase<Vek::Framework::Utilities::BGRAChannel>;

/// A picture that is painted with rectangles.
class Canvas
{
public:
    Canvas(Vek::Framework::Utilities::IntSize const& size, Color const& background);

    /// Lays the colour on all points of the rectangle, its right and bottom edges included, as far as they are in the
    /// picture; what alpha lets through stays visible.
    void Fill(Vek::Framework::Utilities::IntRectangle const& rectangle, Color const& color);

    /// Only the edges.
    void Frame(Vek::Framework::Utilities::IntRectangle const& rectangle, Color const& color);

    /// As a bitmap file of 24 bits a point.
    void WriteBitmap(std::ostream& stream) const;

private:
    Color& At(int x, int y);

    Vek::Framework::Utilities::IntSize m_size;
    std::vector<Color> m_points; // row by row from the top
};

} // namespace Example
