#include <string>

#include "vynx/Format.h"
#include "vynx/SaveModel.h"
#include "vynx/commands/Commands.h"
#include "vynx/samples/Samples.h"

namespace Vynx {

void Sample(const SampleRequest& request) {
    const SampleKind* kind = FindSampleKind(request.kind);
    if (kind == nullptr) {
        throw Failure(kUsage, request.kind + ": no kind of sample; see vynx sample --help");
    }
    const Format* format =
        request.output == "-" ? FindFormat("document") : WriterOf(request.output);
    if (format == nullptr) {
        throw Failure(kUsage,
                      request.output + ": no format that can be written has this extension");
    }
    Tevra::CVynData model;
    kind->fill(model, request.nodes);
    SaveModel(*format, OptionValues(format->id, format->options, {}), model, request.output,
              request.kind);
}

}  // namespace Vynx
