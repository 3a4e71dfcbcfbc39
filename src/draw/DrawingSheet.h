#pragma once

#include <functional>
#include <string>
#include <vector>

#include "draw/DrawnMarks.h"
#include "draw/PaperFrame.h"

namespace Tevra {

/// What a drawing is made of.
struct DrawingWish {
    DrawingView view = DrawingView::Isometric;
    int loadCase = 0;  ///< 0 none
    std::wstring title;
    std::wstring subtitle;
    std::size_t mostShapes = 0;  ///< beyond which shapes are thinned out
};

/// A row of a legend: a symbol, a name, a smaller line below it.
struct LegendRow {
    /// Draws the symbol beside the base line of the name; none for remarks.
    std::function<void(CSvgOut& svg, double y)> symbol;
    std::wstring name;
    std::wstring small;
    bool isFirst = false;  ///< of its group, which stands apart from the one before

    double Height() const;
};

/// A drawing on its paper: everything found and placed, and written as SVG from the farthest to the
/// nearest.
class CDrawingSheet {
public:
    CDrawingSheet(const CVynData& model, DrawingWish wish);

    void Write(TextOut& out) const;
    /// What is not drawn, or not as it is, a sentence each.
    const std::vector<std::wstring>& Remarks() const { return m_remarks; }

private:
    void ThinOut();
    void PlaceSupports();
    void FindRemarks();
    bool IsThinned() const { return !m_isLeftOut.empty(); }
    Inks::Density Density() const;
    double SupportSize() const;
    void WriteArrow(CSvgOut& svg, const LoadArrow& arrow) const;
    Vec2<double> Reach(ArrowKind kind, const Vec3<double>& value, double least) const;
    void MakeLegend();
    void AddInkRows();
    void AddSupportRows();
    void AddLoadRows();
    void AddGravityRow();
    double LegendBottom() const;

    void WriteTitle(CSvgOut& svg) const;
    void WriteShapes(CSvgOut& svg) const;
    void WriteShape(CSvgOut& svg, const Shape& shape) const;
    std::size_t WriteSupports(CSvgOut& svg, std::size_t first, double before) const;
    void WriteLoads(CSvgOut& svg) const;
    void WriteLegend(CSvgOut& svg) const;
    void WriteFoot(CSvgOut& svg) const;
    void WriteAxes(CSvgOut& svg, const Vec2<double>& origin) const;
    void WriteScaleBar(CSvgOut& svg, const Vec2<double>& from) const;

    const CVynData& m_model;
    DrawingWish m_wish;
    Util::CDirCos m_axes;
    CModelScene m_scene;
    CPaperFrame m_frame;
    CLoadArrows m_loads;
    std::vector<PlacedSupport> m_supports;
    std::vector<bool> m_isLeftOut;  ///< of the shapes, by thinning; empty when all are drawn
    std::vector<std::wstring> m_remarks;
    std::vector<LegendRow> m_legend;
};

}  // namespace Tevra
