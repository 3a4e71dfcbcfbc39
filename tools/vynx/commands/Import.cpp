#include "vynx/Format.h"
#include "vynx/SaveModel.h"
#include "vynx/commands/Commands.h"

namespace Vynx {

void Import(const ImportRequest& request) {
    Tevra::CVynData model;
    if (request.into.empty()) {
        LoadToWrite(request.source, model);
    } else {
        LoadToWrite({.file = request.into, .catalogue = request.source.catalogue}, model);
        LoadInto(request.source, model);
    }
    const Format& document = *FindFormat("document");
    SaveModel(document, OptionValues(document.id, document.options, {}), model, request.output,
              request.source.file);
}

}  // namespace Vynx
