#include "output/engine/OutputTask.h"

namespace Tevra {

namespace {

using Output::CLine;
using Output::Column;
using Output::DataProvider;
using Output::LineSink;

void MakeItem(const DataProvider& provider, const Data::COpView& view, const CVynData& model,
              const LineSink& sink) {
    CLine headings;
    CLine units;
    for (const Column& column : provider.columns) {
        headings.Text(column.heading);
        units.Text(UnitText(model.Units(), column.quantity));
    }
    sink(headings);
    sink(units);
    Output::CRows rows(model, view, provider.columns, sink);
    provider.makeRows(rows);
}

}  // namespace

bool OutputTask::Run(const Data::COpView& view, const CVynData& model, const LineSink& sink) const {
    bool complete = true;
    for (const Data::CDataRef& item : view.Data()) {
        sink(CLine().Text(item.DataStr(model)));
        const DataProvider* const provider = Output::FindProvider(item.Kind());
        if (provider != nullptr) {
            MakeItem(*provider, view, model, sink);
        }
        complete = complete && provider != nullptr;
        sink(CLine());
    }
    return complete;
}

}  // namespace Tevra
