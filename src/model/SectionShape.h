#pragma once

#include <array>
#include <string_view>

#include "model/ProfileCatalogue.h"
#include "model/SectionOutline.h"
#include "model/StandardShape.h"

namespace Tevra::Data {

/// What kind of description a section has.
enum class SectionKind {
    None,       ///< none, or one that can't be read: no properties
    Standard,   ///< "STD%I%500%200%12%20": a shape and its dimensions
    Catalogue,  ///< "CAT%UB%UB457x191x67": a profile of the catalogue
    Explicit,   ///< "EXP%A%Iyy%Izz%J%Ky%Kz": properties
    Outline     ///< "GEO%P(0|0)(200|0)(0|300)": points
};

/// A section description that has been read, in SI units.
struct SectionShape {
    SectionKind kind = SectionKind::None;
    /// Why nothing could be read, for a person; empty when something was.
    std::wstring_view problem;
    const StandardShape* standard = nullptr;  ///< of a standard shape and of a profile
    ShapeSize size;
    double j = 0.0;  ///< tabulated torsion constant of a profile, 0 when it has none
    std::array<double, 6> values{};  ///< A, Iyy, Izz, J, Ky, Kz of explicit properties
    SectionOutline outline;          ///< of an outline, in the coordinates of its points
};

/// Reads a section description. Words may be in either case, with blanks around them and separators
/// at the end.
///
/// - "STD%shape%dimensions" in mm, in another unit with "STD(m)", "STD(cm)", "STD(in)", "STD(ft)".
/// - "CAT%group%name%date"; the date is not used and may be left out.
/// - "EXP%A%Iyy%Izz%J%Ky%Kz" in SI; values left out at the end are 0.
/// - "GEO%P(y|z)(y|z)...%V(y|z)..." with units as STD: an outline for each P, a void for each V.
SectionShape ReadSectionShape(std::wstring_view description, const CProfileCatalogue& catalogue);

}  // namespace Tevra::Data
