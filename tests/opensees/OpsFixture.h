#pragma once

#include "opensees/OpenseesFile.h"
#include "support/OpsScript.h"
#include "support/PlainModels.h"
#include "support/WriterFixture.h"

namespace Tevra {

using namespace TestSupport;

using Lines = std::vector<std::string>;

/// Writes models and reads what was written.
class OpsFixture : public WriterFixture<COpenseesFile> {
protected:
    OpsScript Write(CVynData& model) { return ReadOpsScript(WriteText(model)); }
};

/// A material of a uniaxial model with its values.
inline Data::CMatAnal Uniaxial(MatModel type, std::vector<double> values) {
    Data::CMatAnal material(L"", 2e11, 0.3, 7850.0, 0.0);
    material.SetModel(type);
    material.SetModelParams(std::move(values));
    return material;
}

}  // namespace Tevra
