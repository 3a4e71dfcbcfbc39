#pragma once

#include <string>
#include <vector>

#include "nastran/NasFile.h"
#include "support/NasDeck.h"
#include "support/PlainModels.h"
#include "support/WriterFixture.h"

namespace Tevra {

using TestSupport::BeamModel;
using TestSupport::Generic;
using TestSupport::ModelOf;
using TestSupport::PlateModel;

/// Writes models and reads what was written.
class NasFixture : public TestSupport::WriterFixture<CNasFile> {
protected:
    TestSupport::NasDeck Write(CVynData& model) {
        return TestSupport::ReadNasDeck(WriteText(model));
    }
};

}  // namespace Tevra
