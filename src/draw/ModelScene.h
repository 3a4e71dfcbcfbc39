#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "draw/Inks.h"
#include "model/BitSet.h"
#include "model/DirCos.h"
#include "model/Types.h"

namespace Tevra {

class CVynData;
namespace Data {
class CElement;
}

enum class ShapeKind : std::uint8_t { Face, Line, Dot };

/// A face, a line or a dot in the axes of a view, m.
struct Shape {
    ShapeKind kind = ShapeKind::Dot;
    Inks::Ink ink = 0;
    std::uint8_t numPoint = 1;
    double depth = 0.0;  ///< where it stands in the order of painting: the nearest is the largest
    std::array<Vec2<double>, 4> points{};
};

/// A rectangle that holds everything drawn, m.
struct DrawingExtent {
    Vec2<double> low;
    Vec2<double> high;
    bool isEmpty = true;

    void Add(const Vec2<double>& point);
    double Width() const { return high.x - low.x; }
    double Height() const { return high.y - low.y; }
};

/// Whether a place is so near that it can be drawn: coordinates are numbers, and no farther than
/// any structure goes.
bool IsDrawable(const Vec3<double>& place);

/// An ink and what it stands for.
struct InkName {
    Inks::Ink ink = 0;
    std::wstring text;
};

/// What a model looks like in a view: elements and nodes as shapes. Elements whose nodes are not
/// all there, or have coordinates that are no numbers, are left out and counted.
class CModelScene {
public:
    /// Dots are made for `mostNodes` nodes at most; when there are more, for none.
    CModelScene(const CVynData& model, const Util::CDirCos& axes, int mostNodes);

    /// In the order of painting, the farthest first.
    const std::vector<Shape>& Shapes() const { return m_shapes; }
    const DrawingExtent& Extent() const { return m_extent; }
    /// Inks that occur, in the order of a legend.
    const std::vector<InkName>& Names() const { return m_names; }
    /// Nodes of the drawing: those of elements and those that are held, or all where no element is
    /// drawn; all have a place.
    const CBitSet& Nodes() const { return m_nodes; }
    int NumLostElement() const { return m_numLost; }
    bool HasSolids() const;
    bool HasDots() const { return m_hasDots; }

private:
    void ChooseSections();
    void AddElements();
    void AddElement(int number, const Data::CElement& element);
    void AddLine(int number, const Data::CElement& element);
    void AddLineShape(Inks::Ink ink, const Vec3<double>& from, const Vec3<double>& to);
    void AddPlane(const Data::CElement& element);
    void AddSolids();
    void AddFace(const Data::CElement& element, const std::array<int, 4>& corners,
                 Inks::Ink firstInk);
    void FindNodes();
    void DropNodesWithoutPlace();
    void AddDots(int mostNodes);
    void AddShape(const Shape& shape);
    void NameInks();
    void Sort();
    Inks::Ink InkOfLine(const Data::CElement& element) const;
    Inks::Ink Shade(Inks::Ink first, const Vec3<double>& normal) const;

    const CVynData& m_model;
    Util::CDirCos m_axes;
    std::vector<Shape> m_shapes;
    DrawingExtent m_extent;
    std::vector<int> m_sections;  ///< those with an ink of their own, ascending
    std::array<bool, Inks::kNumInk> m_isUsed{};
    std::vector<InkName> m_names;
    CBitSet m_nodes;
    int m_numLost = 0;
    int m_numFurther = 0;
    bool m_hasDots = false;
};

}  // namespace Tevra
