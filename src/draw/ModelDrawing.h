#pragma once

#include <cstddef>
#include <string>

#include "draw/DrawingView.h"
#include "io/StreamFile.h"

namespace Tevra {

/// A drawing of the model as an SVG file: elements, supports, and the loads of one load case, with
/// a legend, a scale bar and the directions of the axes.
///
///     CModelDrawing drawing;
///     drawing.SetData(&model);
///     drawing.SetView(DrawingView::Plan);
///     if (!drawing.OpenWrite(L"model.svg")) {
///         Show(drawing.ErrorLog());
///     }
///
/// Elements are painted from the farthest to the nearest; supports and loads stand on top. What is
/// drawn of a very large model is thinned out: of elements of a size at one spot of the paper the
/// nearest is drawn alone, and a note says so.
class CModelDrawing : public CStreamFile {
public:
    /// Load case that is drawn, 0 none; at first the one that has arrows first.
    static constexpr int kFirstLoaded = -1;

    void SetView(DrawingView view) { m_view = view; }
    void SetLoadCase(int loadCase) { m_loadCase = loadCase; }
    /// What the title calls the model, such as the name of its file.
    void SetSourceName(std::wstring name) { m_sourceName = std::move(name); }

    /// Number of elements and nodes beyond which they are thinned out.
    void SetMostShapes(std::size_t most) { m_mostShapes = most; }

    /// Whether a model has anything to draw: a node whose coordinates are numbers.
    static bool CanDraw(const CVynData& model);

    bool Write() override;

private:
    DrawingView m_view = DrawingView::Isometric;
    int m_loadCase = kFirstLoaded;
    std::wstring m_sourceName;
    std::size_t m_mostShapes = 200000;
};

}  // namespace Tevra
