#include "draw/ModelDrawing.h"

#include <algorithm>

#include "draw/DrawingSheet.h"
#include "io/TextOut.h"
#include "model/Placed.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

std::wstring CaseTitle(const CVynData& model, int loadCase) {
    if (loadCase < 1) {
        return {};
    }
    const std::wstring& name = model.LoadCaseTitle(loadCase).Name();
    return L"  ·  load case " + std::to_wstring(loadCase) + (name.empty() ? L"" : L": ") + name;
}

}  // namespace

bool CModelDrawing::CanDraw(const CVynData& model) {
    const auto nodes = model.NodeTable().Numbers();
    return std::any_of(nodes.begin(), nodes.end(),
                       [&model](int node) { return IsPlaced(model, node); });
}

bool CModelDrawing::Write() {
    if (!IsReady() || !CanDraw(*m_model)) {
        return false;
    }
    DrawingWish wish;
    wish.view = m_view;
    wish.loadCase = m_loadCase == kFirstLoaded ? FirstLoadedCase(*m_model) : m_loadCase;
    const std::wstring& title = m_model->Title().JobTitle();
    wish.title = title.empty() ? m_sourceName : title;
    wish.subtitle = m_sourceName + (m_sourceName.empty() ? L"" : L"  ·  ") +
                    std::wstring(NameOf(m_view)) + CaseTitle(*m_model, wish.loadCase);
    wish.mostShapes = m_mostShapes;
    const CDrawingSheet sheet(*m_model, std::move(wish));
    for (const std::wstring& remark : sheet.Remarks()) {
        AddNote(remark);
    }
    TextOut out(*m_stream);
    sheet.Write(out);
    return out.Flush();
}

}  // namespace Tevra
