#pragma once

#include "sap/SapFile.h"
#include "support/PlainModels.h"
#include "support/SapDeck.h"
#include "support/WriterFixture.h"

namespace Tevra {

using namespace TestSupport;

/// Writes models and reads what was written.
class SapFixture : public WriterFixture<CSapFile> {
protected:
    SapDeck Write(CVynData& model) { return ReadSapDeck(WriteText(model)); }

    /// The load block of what was written, without its keyword and the end of the file.
    std::string LoadText(CVynData& model) {
        WriteText(model);
        const std::size_t at = text.find("\nLOAD\n");
        return at == std::string::npos ? std::string()
                                       : text.substr(at + 6, text.size() - at - 6 - 4);
    }
};

}  // namespace Tevra
