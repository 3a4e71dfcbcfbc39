#include "output/OutputExport.h"
#include "platform/text/Numbers.h"
#include "platform/text/Utf8.h"
#include "platform/ui/HostServices.h"
#include "vynx/formats/FormatRows.h"

namespace Vynx {

namespace {

using Tevra::CVynData;
using Tevra::Data::COpView;

/// The view with a name or a number, the first one for an empty text; 0 when there is none.
int FindView(const CVynData& model, const std::string& given) {
    int asNumber = 0;
    const bool isNumber = Tevra::Text::ReadInt(given, asNumber);
    for (const int number : model.ViewTable().Numbers()) {
        if (given.empty() || Tevra::Text::ToUtf8(model.View(number).Name()) == given) {
            return number;
        }
    }
    return isNumber && model.ViewExist(asNumber) ? asNumber : 0;
}

std::string UnknownData(const COpView& view) {
    for (const Tevra::Data::CDataRef& item : view.Data()) {
        if (Tevra::Output::FindProvider(item.Kind()) == nullptr) {
            return "the view shows \"" + Tevra::Text::ToUtf8(item.Kind()) +
                   "\", which nothing provides";
        }
    }
    return {};
}

std::string Lacks(const CVynData& model, const OptionValues& options) {
    if (model.NumView() == 0) {
        return "the model has no output views";
    }
    const int view = FindView(model, options.Text("view"));
    return view == 0 ? "the model has no output view \"" + options.Text("view") + '"'
                     : UnknownData(model.View(view));
}

bool Write(ExportJob& job) {
    const COpView& view = job.model.View(FindView(job.model, job.options.Text("view")));
    Tevra::OutputExport output(job.model);
    output.SetFileName(job.path);
    output.SetOutputSpec(&view);
    const bool opened = output.Export();
    if (!opened || !output.IsComplete()) {
        job.log = opened ? L"The file could not be written to its end."
                         : L"The file could not be opened.";
    }
    return opened && output.IsComplete();
}

}  // namespace

Format ViewFormat() {
    return {.id = "view",
            .title = "Output view as delimited text",
            .extensions = {".csv"},
            .options = {{.name = "view",
                         .kind = OptionKind::Text,
                         .fallback = "",
                         .help = "name or number of the output view, empty the first one"}},
            .lacks = &Lacks,
            .write = &Write};
}

}  // namespace Vynx
