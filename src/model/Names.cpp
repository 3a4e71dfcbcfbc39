#include "model/Names.h"

#include <array>

namespace Tevra {

namespace {

/// The text of a code in a table that begins at code `first`; empty outside.
template <std::size_t N, class E>
std::wstring_view TextOf(const std::array<std::wstring_view, N>& texts, E value, int first) {
    const int i = static_cast<int>(value) - first;
    return i >= 0 && i < static_cast<int>(N) ? texts[static_cast<std::size_t>(i)]
                                             : std::wstring_view();
}

// In code order, each table from the lowest code.
constexpr std::array<std::wstring_view, 8> kMemberTypes{L"BEAM",       L"COLUMN",     L"SLAB",
                                                        L"WALL",       L"GENERIC_1D", L"GENERIC_2D",
                                                        L"GENERIC_3D", L"VOID_CUTTER"};
constexpr std::array<std::wstring_view, 4> kAnalysisOrders{L"LINEAR", L"QUADRATIC", L"RIGID",
                                                           L"LOAD_PANEL"};
constexpr std::array<std::wstring_view, 9> kMatTypes{L"GENERIC", L"CONCRETE",  L"STEEL",
                                                     L"FRP",     L"ALUMINIUM", L"GLASS",
                                                     L"TIMBER",  L"FABRIC",    L"REBAR"};
constexpr std::array<std::wstring_view, 3> kCurveFits{L"LINE", L"ARC", L"SPLINE"};
constexpr std::array<std::wstring_view, 3> kAxisTypes{L"CARTESIAN", L"CYLINDRICAL", L"SPHERICAL"};
constexpr std::array<std::wstring_view, 8> kProp2DTypes{
    L"PLANE_STRESS", L"PLANE_STRAIN", L"AXISYMMETRIC", L"MEMBRANE",
    L"PLATE",        L"SHELL",        L"CURVED_SHELL", L"LOAD_PANEL"};
constexpr std::array<std::wstring_view, 12> kSolutions{
    L"STATIC",    L"P_DELTA",  L"MODAL",    L"MODAL_PDELTA", L"BUCKLING", L"RITZ",
    L"NONLINEAR", L"RESPONSE", L"HARMONIC", L"TIME_HISTORY", L"EXPLICIT", L"RAFT"};
constexpr std::array<std::wstring_view, 6> kDirectionNames{L"X", L"Y", L"Z", L"XX", L"YY", L"ZZ"};

}  // namespace

std::wstring_view MemberTypeString(MemberType type) {
    return TextOf(kMemberTypes, type, 1);
}
std::wstring_view AnalysisOrderString(AnalysisOrder order) {
    return TextOf(kAnalysisOrders, order, 1);
}
std::wstring_view MatTypeLabel(MatType type) {
    return TextOf(kMatTypes, type, 0);
}
std::wstring_view CurveFitString(CurveFit fit) {
    return TextOf(kCurveFits, fit, 1);
}
std::wstring_view AxisTypeString(AxisType type) {
    return TextOf(kAxisTypes, type, 1);
}
std::wstring_view Prop2DTypeString(Prop2DType type) {
    return TextOf(kProp2DTypes, type, 1);
}
std::wstring_view SolutionTypeString(SolutionType type) {
    return TextOf(kSolutions, type, 1);
}
std::wstring_view DirectionString(Direction direction) {
    return TextOf(kDirectionNames, direction, 0);
}

std::wstring_view SelTypeString(SelType kind) {
    switch (kind) {
        case SelType::Node:
            return L"NODE";
        case SelType::Element:
            return L"ELEMENT";
        case SelType::Member:
            return L"MEMBER";
        case SelType::Case:
            return L"CASE";
        case SelType::Assembly:
            return L"ASSEMBLY";
        case SelType::LoadCase:
            return L"LOAD_CASE";
        case SelType::Mode:
            return L"MODE";
        case SelType::Number:
            return L"NUMBER";
        case SelType::GridPlane:
            return L"GRID_PLANE";
        case SelType::None:
            break;
    }
    return {};
}

std::wstring RestraintString(Vbool6 restraint) {
    std::wstring text;
    for (const Direction d : kDirections) {
        if (restraint.IncludesDirection(d)) {
            text += DirectionString(d);
        }
    }
    return text.empty() ? L"FREE" : text;
}

std::wstring ReleaseString(const Data::CElemConnect& connect) {
    constexpr std::array<wchar_t, 3> kLetters{L'F', L'R', L'K'};
    std::wstring text;
    for (const Direction d : kDirections) {
        text += kLetters[static_cast<std::size_t>(connect.State(d))];
    }
    return text;
}

}  // namespace Tevra
