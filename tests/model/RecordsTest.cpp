#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "model/Names.h"
#include "model/VynData.h"

namespace Tevra {
namespace {

TEST(MatAnal, ValuesByIndex) {
    Data::CMatAnal material(L"S355", 210e9, 0.3, 7850, 1.2e-5);
    EXPECT_DOUBLE_EQ(material.G(), 210e9 / 2.6);
    material.SetTangentModulus(2e9);
    material.SetHardeningParameter(0.5);
    material.SetYieldStress(355e6);
    material.SetModelParams({10, 20, 30});
    const double expected[] = {210e9, 0.3, 7850, 1.2e-5, 210e9 / 2.6, 2e9, 0.5, 355e6, 10, 20, 30};
    for (int i = 0; i < 11; ++i) {
        EXPECT_DOUBLE_EQ(material.Param(i), expected[i]) << i;
    }
    for (const int outside : {-1, 11, 1000000}) {
        EXPECT_EQ(material.Param(outside), 0.0);
    }
    EXPECT_EQ(material.NumOpsParam(), 3);
    EXPECT_EQ(material.OpsParam(2), 30);
    EXPECT_EQ(material.OpsParam(3), 0);
    EXPECT_EQ(material.OpsParam(-1), 0);
    material.SetE({1, 2, 3});
    EXPECT_EQ(material.E(2), 3);
    EXPECT_EQ(material.E(3), 3);
    EXPECT_EQ(material.E(-1), 1);
}

TEST(LinkType, TiesTheFreedomsOfItsOwnTerms) {
    struct Case {
        int type;
        const wchar_t* freedoms;
    };
    const Case cases[] = {{4095, L"XYZXXYYZZ"}, {1911, L"XYZ"}, {2101, L"XYZZ"},  {53, L"XY"},
                          {1411, L"XZYY"},      {1283, L"XZ"},  {856, L"YZXX"},   {848, L"YZ"},
                          {0, L"FREE"},         {8, L"XX"},     {0x1000, L"FREE"}};
    for (const Case& c : cases) {
        EXPECT_EQ(RestraintString(LinkedFreedoms(c.type)), c.freedoms) << c.type;
    }
}

TEST(Prop2D, ThicknessesAreTheNominalOneUnlessSet) {
    Data::CProp2D property;
    property.SetThickness(0.3);
    property.SetBending(0.25);
    property.SetVolume(0.4);
    EXPECT_EQ(property.InplaneThickness(), 0.3);
    EXPECT_EQ(property.BendingThickness(), 0.25);
    EXPECT_EQ(property.ShearThickness(), 0.3);
    EXPECT_EQ(property.VolumeThickness(), 0.4);
    property.SetBending(0);
    EXPECT_EQ(property.BendingThickness(), 0.3);
    property.SetLayers({{7, 0.1, 45}, {8, 0.2, 0}});
    EXPECT_EQ(property.Layer(2).material, 8);
    EXPECT_EQ(property.Layer(0), Data::PropLayer());
    EXPECT_EQ(property.Layer(3), Data::PropLayer());
}

TEST(Prop2D, IsDescribedByTypeAndShortestThickness) {
    struct Case {
        Prop2DType type;
        double thickness;
        const wchar_t* text;
    };
    const Case cases[] = {
        {Prop2DType::Shell, 0.25, L"SHELL 0.25 m"},
        {Prop2DType::LoadPanel, 0, L"LOAD_PANEL 0 m"},
        {Prop2DType::PlaneStress, 0.1 + 0.2, L"PLANE_STRESS 0.30000000000000004 m"},
        {Prop2DType::Plate, 2, L"PLATE 2 m"}};
    for (const Case& c : cases) {
        Data::CProp2D property;
        property.SetType(c.type);
        property.SetThickness(c.thickness);
        EXPECT_EQ(property.Description(), c.text);
    }
}

TEST(SpringProp, KnowsWhichDirectionsAct) {
    struct Case {
        std::vector<Direction> stiff;
        std::vector<Direction> curves;
        bool simple;
        bool translation;
        bool rotation;
    };
    using D = Direction;
    const Case cases[] = {
        {{}, {}, false, false, false},          {{D::Z}, {}, true, true, false},
        {{D::XX}, {}, true, false, true},       {{D::X, D::Y}, {}, false, true, false},
        {{D::X, D::ZZ}, {}, false, true, true}, {{}, {D::Y}, false, true, false},
        {{D::X}, {D::YY}, false, true, true}};
    for (const Case& c : cases) {
        Data::CSpringProp property;
        for (const Direction d : c.stiff) {
            property.SetStiff(d, 1000);
        }
        for (const Direction d : c.curves) {
            property.SetTableRef(d, 4);
        }
        EXPECT_EQ(property.IsSimple(), c.simple);
        EXPECT_EQ(property.TranslationActive(), c.translation);
        EXPECT_EQ(property.RotationActive(), c.rotation);
    }
    Data::CDamperProp damper;
    EXPECT_FALSE(damper.IsSimple());
    damper.SetCoefficients({0, 0, 0, 0, 0, 5});
    EXPECT_TRUE(damper.IsSimple());
    EXPECT_EQ(damper.Coefficient(D::ZZ), 5);
    damper.SetCoefficients({1, 0, 0, 0, 0, 5});
    EXPECT_FALSE(damper.IsSimple());
}

TEST(Releases, KeepStiffnessOfSprungDirectionsOnly) {
    Data::CElemConnect connect;
    EXPECT_TRUE(connect.IsFixed());
    connect.SetSpring(Direction::YY, 2e6);
    connect.SetState(Direction::Z, Data::ReleaseState::Released);
    EXPECT_EQ(ReleaseString(connect), L"FFRFKF");
    EXPECT_EQ(connect.Stiffness(Direction::YY), 2e6);
    EXPECT_EQ(Vbool6(connect), Vbool6::FromBits(4));  // sprung is not released
    connect.SetState(Direction::YY, Data::ReleaseState::Fixed);
    connect.SetState(Direction::YY, Data::ReleaseState::Spring);
    EXPECT_EQ(connect.Stiffness(Direction::YY), 0.0);
}

TEST(AnalysisTask, KindsBySolution) {
    struct Case {
        SolutionType solution;
        const char* kinds;  ///< static, dynamic, modal, Ritz, buckling, explicit, raft
    };
    using S = SolutionType;
    const Case cases[] = {{S::Static, "s"},
                          {S::StaticPDelta, "s"},
                          {S::Modal, "m"},
                          {S::ModalPDelta, "m"},
                          {S::Buckling, "b"},
                          {S::Ritz, "r"},
                          {S::NonlinearStatic, "s"},
                          {S::ResponseSpectrum, "d"},
                          {S::Harmonic, "d"},
                          {S::LinearTimeHistory, "d"},
                          {S::ExplicitDynamics, "de"},
                          {S::Raft, "sp"}};
    for (const Case& c : cases) {
        CAnalysisTask task;
        task.SetSolution(c.solution);
        std::string kinds;
        kinds += task.IsStatic() ? "s" : "";
        kinds += task.IsDynamic() ? "d" : "";
        kinds += task.IsModal() ? "m" : "";
        kinds += task.IsRitz() ? "r" : "";
        kinds += task.IsBuckling() ? "b" : "";
        kinds += task.IsExplicitDynamics() ? "e" : "";
        kinds += task.IsRaft() ? "p" : "";
        EXPECT_EQ(kinds, c.kinds) << static_cast<int>(c.solution);
        EXPECT_EQ(task.Dyna() != nullptr, c.solution == S::ExplicitDynamics);
    }
}

TEST(Member, PredicatesByType) {
    const char* const dimensions =
        "011221232";  // none, beam, column, slab, wall, 1D, 2D, 3D, cutter
    for (int type = 0; type <= 8; ++type) {
        Data::CMember member;
        member.SetType(static_cast<MemberType>(type));
        const int dimension = dimensions[type] - '0';
        EXPECT_EQ(member.Is1D(), dimension == 1) << type;
        EXPECT_EQ(member.Is2D(), dimension == 2) << type;
        EXPECT_EQ(member.Is3D(), dimension == 3) << type;
        EXPECT_EQ(member.IsBeam(), dimension == 1) << type;
    }
    Data::CMember column;
    column.SetType(MemberType::Column);
    column.SetAnalysisType1D(ElementType::Bar);
    EXPECT_FALSE(column.IsBeam());
    EXPECT_TRUE(column.IsSection());
    column.SetOrder(AnalysisOrder::LoadPanel);
    EXPECT_EQ(column.AnalysisOrderString(), L"LOAD_PANEL");
}

/// The texts of codes `from` to `to`, and of the codes just outside.
template <class E, class Text>
void ExpectTexts(Text text, int from, int to) {
    std::set<std::wstring> all;
    for (int code = from; code <= to; ++code) {
        const std::wstring_view each = text(static_cast<E>(code));
        EXPECT_FALSE(each.empty()) << code;
        EXPECT_LE(each.size(), 12U) << code;
        EXPECT_EQ(each.find_first_not_of(L"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789_"),
                  std::wstring_view::npos);
        EXPECT_TRUE(all.insert(std::wstring(each)).second) << code;
    }
    EXPECT_TRUE(text(static_cast<E>(from - 1)).empty());
    EXPECT_TRUE(text(static_cast<E>(to + 1)).empty());
}

TEST(Texts, AreShortCapitalsAndTellTheCodesApart) {
    ExpectTexts<MemberType>(MemberTypeString, 1, 8);
    ExpectTexts<AnalysisOrder>(AnalysisOrderString, 1, 4);
    ExpectTexts<MatType>(MatTypeLabel, 0, 8);
    ExpectTexts<CurveFit>(CurveFitString, 1, 3);
    ExpectTexts<AxisType>(AxisTypeString, 1, 3);
    ExpectTexts<Prop2DType>(Prop2DTypeString, 1, 8);
    ExpectTexts<SolutionType>(SolutionTypeString, 1, 12);
    ExpectTexts<SelType>(SelTypeString, 1, 4);
    ExpectTexts<SelType>(SelTypeString, 21, 24);
    EXPECT_EQ(SelTypeString(SelType::Assembly), L"ASSEMBLY");
    EXPECT_EQ(MatTypeLabel(MatType::Rebar), L"REBAR");
    EXPECT_EQ(MembTypeString(MemberType::VoidCutter), L"VOID_CUTTER");
}

TEST(ElementTypes, HaveTheHostsCodes) {
    const std::vector<std::wstring> texts{
        L"BAR",      L"BEAM",   L"SPRING",   L"DAMPER",   L"QUAD4",   L"QUAD8",    L"TRI3",
        L"TRI6",     L"LINK",   L"CABLE",    L"MASS",     L"BRICK8",  L"RESERVED", L"WEDGE6",
        L"RESERVED", L"TETRA4", L"RESERVED", L"RESERVED", L"SPACER",  L"TIE",      L"STRUT",
        L"RESERVED", L"ROD",    L"RESERVED", L"RESERVED", L"PYRAMID5"};
    for (int code = 1; code <= kHighestElementType; ++code) {
        const auto type = static_cast<ElementType>(code);
        const std::wstring& text = texts[static_cast<std::size_t>(code - 1)];
        EXPECT_EQ(ElementTypeString(type), text) << code;
        EXPECT_EQ(ElementTypeOf(text), text == L"RESERVED" ? std::nullopt : std::optional(type));
    }
}

TEST(Sid, GivesTheFirstValueOfATag) {
    struct Case {
        const wchar_t* sid;
        const wchar_t* tag;
        const wchar_t* value;
    };
    const Case cases[] = {{L"Revit=12", L"Revit", L"12"},
                          {L"a=1;REVIT = 7 ; revit=8", L"Revit", L"7"},
                          {L"xRevit=1;Revit=2", L"Revit", L"2"},
                          {L"Revit=a=b;c", L"Revit", L"a=b"},
                          {L"Revit=;Revit=3", L"Revit", L""},
                          {L";;Revit", L"Revit", L""},
                          {L"", L"Revit", L""},
                          {L"=5", L"Revit", L""}};
    for (const Case& c : cases) {
        EXPECT_EQ(SidTagValue(c.sid, c.tag), c.value);
    }
}

TEST(ProgTitles, ReadVersionsOfAnyForm) {
    struct Case {
        const wchar_t* text;
        const wchar_t* version;
    };
    const Case cases[] = {{L"8.7.1", L"8.7.1"},
                          {L"8", L"8.0.0"},
                          {L"", L"0.0.0"},
                          {L"8.x.3", L"8.0.3"},
                          {L" 8 . 7b2.1 rc", L"8.7.1"},
                          {L"..4.5", L"0.0.4"},
                          {L"-3.2", L"0.2.0"},
                          {L"99999999999.1", L"99999999.1.0"}};
    for (const Case& c : cases) {
        CProgTitles titles;
        titles.SetProgramVersion(c.text);
        EXPECT_EQ(titles.ProgramVersion(), c.version);
    }
    CProgTitles titles;
    titles.SetProgramVersion(8, 7, 1);
    EXPECT_EQ(titles.ProgramVersion(false, true, true), L"7.1");
    EXPECT_EQ(titles.ProgramVersion(false, false, false), L"");
}

}  // namespace
}  // namespace Tevra
