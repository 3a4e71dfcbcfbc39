#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/MaterialMap.h"
#include "model/VynData.h"

namespace Tevra {
namespace {

using Data::MaterialChoice;
using Entries = std::vector<ExportedProperty>;

Data::CMatDesign Grade(const wchar_t* name) {
    Data::CMatDesign grade;
    grade.SetName(name);
    grade.SetMatAnal(Data::CMatAnal(L"", 30e9, 0.2, 2400, 1e-5));
    return grade;
}

Data::CSection SectionOf(const std::vector<MaterialChoice>& choices) {
    Data::CSection section;
    std::vector<Data::CSecComp> components(choices.size());
    for (std::size_t i = 0; i < choices.size(); ++i) {
        components[i].SetMaterial(choices[i]);
    }
    section.SetComponents(components);
    return section;
}

/// Analysis materials 2 and 5, cable property 3, concrete grades 1 and 4, steel grade 1.
CVynData Model() {
    CVynData model;
    model.SetMatAnal(2, Data::CMatAnal(L"Two", 1, 0, 1, 0));
    model.SetMatAnal(5, Data::CMatAnal(L"Fi\tve", 1, 0, 1, 0));
    model.SetCableProp(3, Data::CCableProp());
    model.SetMatConcrete(1, Grade(L"C30"));
    model.SetMatConcrete(4, Grade(L"C40"));
    model.SetMatSteel(1, Grade(L"S355"));
    return model;
}

TEST(MaterialMap, NumbersGradesAboveMaterialsAndCables) {
    CVynData model = Model();
    model.SetSection(6, SectionOf({{MatType::Steel, 1, 0}}));
    model.SetSection(7, SectionOf({{MatType::Steel, 1, 2}}));  // analysed as material 2
    Data::CProp2D slab;
    slab.SetMaterial({MatType::Concrete, 4, 0});
    model.SetProp2D(1, slab);
    Data::CProp3D block;
    block.SetMaterial({MatType::Concrete, 4, 0});
    model.SetProp3D(9, block);
    CMaterialMap map;
    ASSERT_TRUE(map.CreateMap(model));
    EXPECT_EQ(map.Prop1D(6), (Entries{{6, 9}}));
    EXPECT_EQ(map.Prop1D(7), (Entries{{7, 2}}));
    EXPECT_EQ(map.Prop2D(1), (Entries{{1, 10}}));
    EXPECT_EQ(map.Prop3D(9), (Entries{{9, 10}}));
    EXPECT_EQ(map.Materials(), (std::vector<ExportedMaterial>{{2, {MatType::Generic, 0, 2}},
                                                              {5, {MatType::Generic, 0, 5}},
                                                              {9, {MatType::Steel, 1, 0}},
                                                              {10, {MatType::Concrete, 4, 0}}}));
    for (int k = 1; k <= map.NumMaterial(); ++k) {
        EXPECT_NE(model.FindMaterial(map.Material(k).source), nullptr);
    }
    ASSERT_TRUE(map.CreateMap(model));  // anew, not on top
    EXPECT_EQ(map.NumMaterial(), 4);
}

TEST(MaterialMap, SeveralMaterialsOfOneProperty) {
    CVynData model = Model();
    model.SetSection(3, SectionOf({{MatType::Concrete, 1, 0}, {MatType::Steel, 1, 0}, {{}, 0, 5}}));
    model.SetSection(8, SectionOf({{{}, 0, 2}, {{}, 0, 2}}));
    Data::CProp2D layered;
    layered.SetLayers({{5, 0.1, 0}, {2, 0.1, 90}, {5, 0.1, 0}, {77, 0.1, 0}});
    model.SetProp2D(20, layered);
    model.SetProp3D(1, Data::CProp3D());  // made of nothing
    Data::CProp2D panel;
    panel.SetType(Prop2DType::LoadPanel);
    panel.SetMaterial({MatType::Concrete, 4, 0});
    model.SetProp2D(2, panel);
    Data::CStage stage;
    stage.SetReplacements({{PropertyType::Section, 8, 0, 5},
                           {PropertyType::Section, 3, 8, 2},
                           {PropertyType::Prop2D, 20, 0, 0}});
    model.SetStage(1, stage);
    CMaterialMap map;
    ASSERT_TRUE(map.CreateMap(model));
    // Above twice the highest section (16) and the highest 2D property (20).
    EXPECT_EQ(map.Prop1D(3), (Entries{{3, 9}, {21, 10}, {22, 5}}));
    EXPECT_EQ(map.Prop1D(8), (Entries{{8, 2}, {23, 5}}));
    EXPECT_EQ(map.Prop2D(20), (Entries{{20, 5}, {24, 2}}));
    EXPECT_TRUE(map.Prop3D(1).empty());
    EXPECT_TRUE(map.Prop2D(2).empty());
    EXPECT_TRUE(map.Prop1D(99).empty());
    EXPECT_EQ(map.NumMaterial(), 4);
    EXPECT_EQ(map.Report(),
              L"<h4>Materials</h4>\n"
              L"<table><tableheader>Material\tType\tVYN Material\tName</tableheader>\n"
              L"2\tANALYSIS\t2\tTwo\n"
              L"5\tANALYSIS\t5\tFi ve\n"
              L"9\tCONCRETE\t1\tC30\n"
              L"10\tSTEEL\t1\tS355\n"
              L"</table>\n"
              L"<h4>Properties with several materials</h4>\n"
              L"<table><tableheader>Type\tVYN Property\tProperty\tMaterial</tableheader>\n"
              L"Section\t3\t3\t9\n"
              L"Section\t3\t21\t10\n"
              L"Section\t3\t22\t5\n"
              L"Section\t8\t8\t2\n"
              L"Section\t8\t23\t5\n"
              L"2D property\t20\t20\t5\n"
              L"2D property\t20\t24\t2\n"
              L"</table>\n");
}

TEST(MaterialMap, FailsWhenNumbersRunOut) {
    CVynData model;
    CMaterialMap map;
    EXPECT_TRUE(map.CreateMap(model));
    EXPECT_EQ(map.NumMaterial(), 0);
    model.SetMatAnal(CMaterialMap::kHighestNumber, Data::CMatAnal(L"", 1, 0, 1, 0));
    EXPECT_TRUE(map.CreateMap(model));
    model.SetMatSteel(1, Grade(L"S355"));
    model.SetSection(1, SectionOf({{MatType::Steel, 1, 0}}));
    EXPECT_FALSE(map.CreateMap(model));
    EXPECT_EQ(map.NumMaterial(), 0);
    EXPECT_TRUE(map.Prop1D(1).empty());
}

}  // namespace
}  // namespace Tevra
