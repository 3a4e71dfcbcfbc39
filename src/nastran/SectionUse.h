#pragma once

namespace Tevra {

/// By which cards the elements of a section are written; of each kind of gap the first element and
/// the number of its property.
struct SectionUse {
    bool byBar = false;
    bool byBeam = false;
    bool byRod = false;
    int firstStrut = 0;
    int firstTie = 0;
    int strutPid = 0;
    int tiePid = 0;

    bool ByGap() const { return firstStrut != 0 || firstTie != 0; }
};

}  // namespace Tevra
