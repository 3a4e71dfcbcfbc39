#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "model/AnalysisTask.h"
#include "model/Axis.h"
#include "model/Material.h"
#include "model/Member.h"
#include "model/Property.h"

namespace Tevra {

// Texts of the host's codes: capitals, ASCII, at most twelve characters. Codes that are not known
// give an empty text.
std::wstring_view MemberTypeString(MemberType type);
/// The same text under the host's other name for it.
inline std::wstring_view MembTypeString(MemberType type) {
    return MemberTypeString(type);
}
std::wstring_view AnalysisOrderString(AnalysisOrder order);
std::wstring_view MatTypeLabel(MatType type);
std::wstring_view SelTypeString(SelType kind);
std::wstring_view CurveFitString(CurveFit fit);
std::wstring_view AxisTypeString(AxisType type);
std::wstring_view Prop2DTypeString(Prop2DType type);
std::wstring_view SolutionTypeString(SolutionType type);

/// The restrained directions in order, for example "XYZ"; "FREE" for none.
std::wstring RestraintString(Vbool6 restraint);
/// Six letters for X, Y, Z, XX, YY, ZZ: F fixed, R released, K spring.
std::wstring ReleaseString(const Data::CElemConnect& connect);
/// Name of a direction: X, Y, Z, XX, YY, ZZ.
std::wstring_view DirectionString(Direction direction);

}  // namespace Tevra
