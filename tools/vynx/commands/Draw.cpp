#include <algorithm>
#include <filesystem>

#include "draw/ModelDrawing.h"
#include "platform/text/HostPath.h"
#include "vynx/Console.h"
#include "vynx/OutputFile.h"
#include "vynx/commands/Commands.h"

namespace Vynx {

namespace {

using Tevra::DrawingView;

struct ViewRow {
    std::string_view name;
    DrawingView view;
};
constexpr ViewRow kViews[] = {{"iso", DrawingView::Isometric},
                              {"plan", DrawingView::Plan},
                              {"xz", DrawingView::XZ},
                              {"yz", DrawingView::YZ}};

DrawingView ViewOf(const std::string& name) {
    const auto* const row = std::find_if(std::begin(kViews), std::end(kViews),
                                         [&name](const ViewRow& r) { return r.name == name; });
    return row != std::end(kViews) ? row->view : DrawingView::Isometric;
}

void CheckRequest(const DrawRequest& request, const Tevra::CVynData& model) {
    const std::string& file = request.model.file;
    if (!Tevra::CModelDrawing::CanDraw(model)) {
        throw Failure(kFailed, file + ": nothing to draw: no node has a place");
    }
    const int loadCase = request.loadCase.value_or(0);
    if (loadCase > 0 && !model.LoadCaseExist(loadCase)) {
        throw Failure(kFailed, file + ": there is no load case " + std::to_string(loadCase));
    }
}

}  // namespace

std::vector<std::string> DrawingViews() {
    std::vector<std::string> names;
    for (const ViewRow& row : kViews) {
        names.emplace_back(row.name);
    }
    return names;
}

void Draw(const DrawRequest& request) {
    Tevra::CVynData model;
    LoadToWrite(request.model, model);
    CheckRequest(request, model);
    const std::filesystem::path source(request.model.file);
    OutputFile output(request.output, source.stem().string() + ".svg");
    ToolHost host;
    host.SetOutput(&output);
    const Tevra::ScopedHost scope(host);
    const Progress progress("drawing " + request.output);
    Tevra::CModelDrawing drawing;
    drawing.SetData(&model);
    drawing.SetView(ViewOf(request.view));
    drawing.SetLoadCase(request.loadCase.value_or(Tevra::CModelDrawing::kFirstLoaded));
    drawing.SetSourceName(Tevra::Text::FromPath(source.filename()));
    const bool written = drawing.OpenWrite(Tevra::Text::FromPath(output.WorkPath()));
    SayLog(output.WithTarget(drawing.ErrorLog()));
    if (!written) {
        throw Failure(kFailed, request.output + ": not written");
    }
    output.Commit();
}

}  // namespace Vynx
