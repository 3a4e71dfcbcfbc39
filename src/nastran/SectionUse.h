#pragma once

namespace Tevra {

/// By which cards the elements of a section are written, and the first gap element of each kind.
struct SectionUse {
    bool byBar = false;
    bool byBeam = false;
    bool byRod = false;
    int firstStrut = 0;
    int firstTie = 0;

    bool ByGapAlone() const { return !byBar && !byBeam && !byRod && ByGap(); }
    bool ByGap() const { return firstStrut != 0 || firstTie != 0; }
};

}  // namespace Tevra
