#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "model/Types.h"
#include "model/Unit.h"

namespace Tevra {

class CVybStream;

/// What the reader uses of the header of a legacy file. The header is a text block of 50 bytes and
/// two blocks of words; the second one starts at byte 262 and the directory follows at 1099.
struct VybHeader {
    std::string version;
    int structType = 0;
    Vbool6 restraint;  ///< of the whole model
    int massOption = 0;
    int massCase = 0;  ///< load case that gives additional mass, 0 none
    int massDirection = 0;
    float massScale = 0.0F;
    int numLoadCase = 0;
    int numDirectory = 0;  ///< entries of the directory, and one
    int resultsIndicator = 0;
    int unitFlag = 0;
    std::string unitTexts;  ///< length, force and mass unit, five characters each

    /// Each reads one block from where the stream stands; false when the file ends before.
    bool ReadTexts(CVybStream& stream);
    static bool SkipFirstBlock(CVybStream& stream);
    bool ReadSecondBlock(CVybStream& stream);

    bool IsVersion6() const { return version == "00006"; }
    bool HasResults() const;
    /// Whether case, direction and scale of the additional mass are such.
    bool HasGoodMass() const;
    /// The units of figures that the file holds in the user's units, and of the model.
    CUnit Units() const;
};

}  // namespace Tevra
