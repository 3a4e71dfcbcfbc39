#include "vynx/commands/Commands.h"

namespace Vynx {

void Import(const ImportRequest& request) {
    Export({.model = request.file,
            .from = request.from,
            .format = "document",
            .output = request.output,
            .options = {}});
}

}  // namespace Vynx
