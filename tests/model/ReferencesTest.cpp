#include <algorithm>
#include <gtest/gtest.h>

#include "model/References.h"

namespace Tevra {
namespace {

using Util::FindDanglingReferences;
using Util::ReferenceScope;

std::vector<std::wstring> Findings(const CVynData& model,
                                   ReferenceScope scope = ReferenceScope::All) {
    return FindDanglingReferences(model, scope).findings;
}

using Texts = std::vector<std::wstring>;

TEST(References, ThoseOfEmptyModelsAreWhole) {
    EXPECT_EQ(Findings(CVynData()), Texts());
}

TEST(References, NumbersWithoutARecordAreNamed) {
    CVynData model;
    model.SetNode(1, Data::CNode());
    model.SetElem(4, {ElementType::Beam, {1, 9}, 3});
    Data::CMember member;
    member.SetType(MemberType::Beam);
    member.SetAnalysisType1D(ElementType::Cable);
    member.SetTopology(L"1 7");
    member.SetProperty(2);
    model.SetMember(5, member);
    Data::CStage stage;
    stage.SetReplacements({{PropertyType::Prop2D, 6, 0, 8}});
    model.SetStage(1, stage);
    model.SetMassCase(CCaseDesc(L"L3"));
    EXPECT_EQ(Findings(model),
              Texts({L"element 4: node 9 does not exist", L"element 4: section 3 does not exist",
                     L"member 5: cable property 2 does not exist",
                     L"member 5: node 7 does not exist", L"stage 1: 2D property 6 does not exist",
                     L"stage 1: analysis material 8 does not exist",
                     L"mass case 1: load case 3 does not exist"}));
    EXPECT_EQ(Findings(model, ReferenceScope::NoProperties),
              Texts({L"element 4: node 9 does not exist", L"member 5: node 7 does not exist",
                     L"stage 1: analysis material 8 does not exist",
                     L"mass case 1: load case 3 does not exist"}));
}

TEST(References, TextsThatCanNotBeReadAreNamed) {
    CVynData model;
    model.SetList(1, {L"", CEntList(L"1 list 4", SelType::Node)});
    model.SetList(2, {L"", CEntList(L"1 to", SelType::Node)});
    model.SetList(3, {L"", CEntList(L"1 to 5 list 1", SelType::Node)});
    Data::CGravityLoad gravity;
    gravity.SetLoadedEntities(CEntList(L"maybe", SelType::Element));
    model.SetGravityLoad(1, gravity);
    model.SetAnalysisCase(2, {L"", 0, L"bad junk"});
    EXPECT_EQ(Findings(model),
              Texts({L"list 1: list 4 does not exist", L"list 2: the list \"1 to\" can't be read",
                     L"analysis case 2: \"bad junk\" can't be read",
                     L"gravity load 1: the list \"maybe\" can't be read"}));
}

TEST(References, TheFirstOnesAreKeptAndAllAreCounted) {
    CVynData model;
    for (int i = 1; i <= 10; ++i) {
        model.SetElem(i, {ElementType::Beam, {50, 51}, 0});
    }
    const Util::ReferenceReport report = FindDanglingReferences(model, ReferenceScope::All, 3);
    EXPECT_EQ(report.findings.size(), 3U);
    EXPECT_EQ(report.total, 20);
}

}  // namespace
}  // namespace Tevra
