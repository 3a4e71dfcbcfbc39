#include <memory>

#include "dyna/DynaFixture.h"

namespace Tevra {
namespace {

using TestSupport::KeywordDeck;
using TestSupport::KeywordRow;

class DynaProperties : public DynaFixture {};

/// Whether the file has these lines one after the other.
::testing::AssertionResult Has(const std::string& text, const std::string& lines) {
    return ("\n" + text).find("\n" + lines + "\n") != std::string::npos
               ? ::testing::AssertionSuccess()
               : ::testing::AssertionFailure() << "missing:\n"
                                               << lines;
}

Data::CMatAnal Material(MatModel model) {
    Data::CMatAnal material(L"M", 200e9, 0.25, 7850.0, 1e-5);
    material.SetModel(model);
    material.SetYieldStress(355e6);
    material.SetTangentModulus(2e9);
    material.SetHardeningParameter(0.5);
    return material;
}

TEST_F(DynaProperties, MaterialsByModel) {
    const struct {
        MatModel model;
        std::vector<double> params;
        std::string lines;  ///< below the name
    } cases[] = {
        {MatModel::ElasticIsotropic,
         {},
         "*MAT_ELASTIC\n$PR_TITLE M\n"
         "         37.85000e+32.0000e+112.50000e-1"},
        {MatModel::ElasticPlastic,
         {},
         "*MAT_PLASTIC_KINEMATIC\n$PR_TITLE M\n"
         "         37.85000e+32.0000e+112.50000e-13.55000e+82.00000e+95.00000e-1\n"
         "0.00000e+00.00000e+00.00000e+0         0"},
        {MatModel::PlasticKinematic,
         {},
         "*MAT_PLASTIC_KINEMATIC\n$PR_TITLE M\n"
         "         37.85000e+32.0000e+112.50000e-13.55000e+82.00000e+95.00000e-1\n"
         "0.00000e+00.00000e+00.00000e+0         0"},
        // E / (2 (1 + nu)), angles in radians
        {MatModel::DruckerPrager,
         {2e4, 30.0, 9.0},
         "*MAT_DRUCKER_PRAGER\n$PR_TITLE M\n"
         "         37.85000e+38.0000e+102.50000e-11.00000e+05.23598e-12.00000e+41.57079e-1"},
        {MatModel::MohrCoulomb,
         {2e4, 30.0, 9.0},
         "*MAT_MOHR_COULOMB\n$PR_TITLE M\n"
         "         37.85000e+38.0000e+102.50000e-1          5.23598e-12.00000e+41.57079e-1"},
        // strengths, then what makes MPa and mm of SI units
        {MatModel::ConcreteEC2,
         {30e6, 2.9e6},
         "*MAT_CONCRETE_EC2\n$PR_TITLE M\n"
         "         37.85000e+33.00000e+72.90000e+61.00000e+01.00000e-60.00000e+00.00000e+0"},
        {MatModel::ConcreteEC2,
         {30e6, 2.9e6, 6.0, 1.0},
         "*MAT_CONCRETE_EC2\n$PR_TITLE M\n"
         "         37.85000e+33.00000e+72.90000e+66.00000e+01.00000e+00.00000e+00.00000e+0"},
        {MatModel::GeneralNonlinear6Dof,
         {5e6, 6e4},
         "*MAT_GENERAL_NONLINEAR_6DOF_DISCRETE_BEAM\n$PR_TITLE M\n"
         "         37.85000e+35.00000e+66.00000e+4         00.00000e+00.00000e+0         0\n"
         "         0         2         0         0         0         0"},
        {MatModel::SteelEC3,
         {},
         "*MAT_STEEL_EC3\n$PR_TITLE M\n"
         "         37.85000e+32.0000e+112.50000e-13.55000e+8\n"
         "         0         2         0         0         0"},
    };
    for (const auto& c : cases) {
        CVynData model = ModelOf({});
        model.DeleteMatAnal(1);
        Data::CMatAnal material = Material(c.model);
        material.SetModelParams(c.params);
        material.SetCurves({9, 2});  // curve 9 does not exist
        model.SetMatAnal(3, material);
        model.SetMatCurve(2, Data::CMatCurve());
        const KeywordDeck deck = Write(model);
        EXPECT_TRUE(Has(text, c.lines)) << text;
        EXPECT_EQ(deck.faults, std::vector<std::string>());
    }
}

/// The target's ratios are those of the other direction: nu_ba / Eb = nu_ab / Ea.
TEST_F(DynaProperties, OrthotropicMaterial) {
    CVynData model = ModelOf({});
    Data::CMatAnal wood = Material(MatModel::ElasticOrthotropic);
    wood.SetE({10e9, 5e9, 2.5e9});
    wood.SetNu({0.4, 0.2, 0.05});
    wood.SetG({3e9, 2e9, 1e9});
    model.SetMatAnal(1, wood);
    const KeywordDeck deck = Write(model);
    const KeywordRow first = deck.Rows("MAT_ORTHOTROPIC_ELASTIC", 1).at(0);
    EXPECT_EQ(first.Real("EC"), 2.5e9);
    EXPECT_DOUBLE_EQ(first.Real("PRBA"), 0.2);
    EXPECT_DOUBLE_EQ(first.Real("PRCA"), 0.05);
    EXPECT_DOUBLE_EQ(first.Real("PRCB"), 0.1);
    EXPECT_EQ(deck.Rows("MAT_ORTHOTROPIC_ELASTIC", 2).at(0).Real("GBC"), 2e9);
}

TEST_F(DynaProperties, ModelsWithoutACardAreLeftOut) {
    CVynData model = BeamModel();
    for (const int code : {2, 0, -5, 401}) {
        model.SetMatAnal(1, Material(static_cast<MatModel>(code)));
        const KeywordDeck deck = Write(model);
        EXPECT_TRUE(written);
        EXPECT_EQ(deck.Rows("PART", 2).at(0).Int("MID"), 1);
        EXPECT_EQ(text.find("*MAT_"), std::string::npos) << code;
        EXPECT_EQ(log, L"");
    }
}

/// Families in their order, then grades; a grade has one card, under the number of its first user.
TEST_F(DynaProperties, DesignGradesGetNumbersAboveTheMaterials) {
    CVynData model = ModelOf({});
    Data::CMatDesign grade;
    grade.SetName(L"Grade");
    grade.SetMatAnal(Material(MatModel::ElasticIsotropic));
    model.SetMatConcrete(2, grade);
    model.SetMatRebar(1, grade);
    model.SetMatSteel(7, grade);
    model.SetMatAnal(5, Material(MatModel::ElasticIsotropic));
    const Data::MaterialChoice choices[] = {{MatType::Rebar, 1, 0},
                                            {MatType::Concrete, 2, 0},
                                            {MatType::Rebar, 1, 0},
                                            {MatType::Steel, 99, 0},
                                            {MatType::Concrete, 2, 5}};
    int number = 0;
    for (const Data::MaterialChoice& choice : choices) {
        model.SetSection(++number, Data::CSection(L"", L"STD%R%400%200", choice));
    }
    Data::CProp3D solid;
    solid.SetMaterial({MatType::Steel, 7, 0});
    model.SetProp3D(1, solid);
    const KeywordDeck deck = Write(model);
    std::vector<long> parts;
    for (const KeywordRow& row : deck.Rows("PART", 2)) {
        parts.push_back(row.Int("MID"));
        EXPECT_EQ(row.Int("PID"), row.Int("SECID"));
    }
    EXPECT_EQ(parts, (std::vector<long>{6, 7, 8, 9, 5, 10}));
    std::vector<long> cards;
    for (const KeywordRow& row : deck.Rows("MAT_ELASTIC")) {
        cards.push_back(row.Int("MID"));
    }
    EXPECT_EQ(cards, (std::vector<long>{1, 5, 7, 10, 6}));
    EXPECT_TRUE(
        HasNote(L"Part 3 has a material that is not in the file: its design grade is there as "
                L"material 6"));
    EXPECT_TRUE(HasNote(L"Part 4 has a material that is not in the file: its property has none"));
}

TEST_F(DynaProperties, TitlesOfParts) {
    CVynData model = BeamModel();
    Data::CSection section = model.Section(1);
    section.SetName(L"");
    model.SetSection(1, section);
    section.SetName(L"*END\nof it");
    model.SetSection(2, section);
    section.SetName(L"$ 5");
    model.SetSection(3, section);
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.faults, std::vector<std::string>());
    EXPECT_TRUE(Has(text, "*PART\n : section 1"));
    EXPECT_TRUE(Has(text, "*PART\n'*END of it : section 2"));
    EXPECT_TRUE(Has(text, "*PART\n'$ 5 : section 3"));
}

TEST_F(DynaProperties, LongDescriptionsAreCut) {
    for (const std::size_t length : {80U, 81U}) {
        CVynData model = BeamModel();
        const std::wstring description(length, L'x');
        model.SetSection(1, Data::CSection(L"S", description, Generic(1)));
        const std::string title = Write(model).Rows("SECTION_BEAM_TITLE", 1).at(0).Text("TITLE");
        EXPECT_EQ(title, length == 80 ? std::string(80, 'x') : std::string(77, 'x') + "...");
    }
}

TEST_F(DynaProperties, BeamSectionsByTheirProperties) {
    CVynData model = BeamModel();
    for (const int formulation : {1, 2}) {
        CDynaTask dyna;
        dyna.SetBeamFormulation(formulation);
        SetTask(model, dyna);
        EXPECT_TRUE(Write(model).faults.empty());
        // b h, b h^3 / 12 about y and z, J by the usual approximation, 5/6 of the area
        EXPECT_TRUE(Has(text, std::string("*SECTION_BEAM_TITLE\n$PR_TITLE R\nSTD%R%400%200\n") +
                                  (formulation == 1 ? "         1\n" : "         1         2\n") +
                                  "8.00000e-21.06666e-32.66666e-47.32416e-46.66666e-2"))
            << text;
    }
}

struct ShapeCase {
    const wchar_t* description;
    std::string section;
    std::vector<double> dimensions;
};

TEST_F(DynaProperties, BeamSectionsByTheirShapes) {
    const ShapeCase cases[] = {
        {L"STD%I%500%200%12%20", "SECTION_01", {0.2, 0.02, 0.5, 0.012}},
        {L"STD%CH%300%100%8%12", "SECTION_02", {0.1, 0.012, 0.3, 0.008}},
        {L"STD%A%150%100%8%12", "SECTION_03", {0.1, 0.012, 0.15, 0.008}},
        {L"STD%T%300%150%8%12", "SECTION_04", {0.15, 0.012, 0.3, 0.008}},
        {L"STD%RHS%400%200%8%12", "SECTION_05", {0.2, 0.012, 0.4, 0.008}},
        {L"STD%TR%400%200%300", "SECTION_07", {0.2, 0.4, 0.3}},
        {L"STD%C%100", "SECTION_08", {0.05}},
        {L"STD%CHS%100%10", "SECTION_09", {0.05, 0.04}},
        {L"STD%GI%500%200%300%12%20%25", "SECTION_10", {0.5, 0.3, 0.2, 0.012, 0.025, 0.02}},
        {L"STD%R%400%200", "SECTION_11", {0.2, 0.4}},
        {L"STD%X%400%200%10%20", "SECTION_12", {0.19, 0.01, 0.4, 0.02}},
        {L"STD%CB%300%150%8%12", "SECTION_18", {0.15, 0.3, 0.012, 0.008}},
        {L"STD%Z%300%100%8%12", "", {}},
        {L"EXP%0.1%0.2%0.3%0.4%1%1", "", {}},
        {L"nonsense", "", {}},
    };
    writer.SetIntegration(true);
    for (const ShapeCase& c : cases) {
        SCOPED_TRACE(c.section);
        CVynData model = BeamModel();
        model.SetSection(1, Data::CSection(L"", c.description, Generic(1)));
        const KeywordDeck deck = Write(model);
        EXPECT_EQ(deck.faults, std::vector<std::string>());
        const KeywordRow row = deck.Rows("SECTION_BEAM_TITLE", 3).at(0);
        if (c.dimensions.empty()) {
            EXPECT_EQ(row.fields.at(0).first, "A");
            EXPECT_EQ(row.fields.size(), 5U);
            EXPECT_EQ(deck.Count("INTEGRATION_BEAM"), 0);
            continue;
        }
        EXPECT_EQ(row.Text("STYPE"), c.section);
        ASSERT_EQ(row.fields.size(), c.dimensions.size() + 1);
        const KeywordRow rule = deck.Rows("INTEGRATION_BEAM", 2).at(0);
        for (std::size_t i = 0; i < c.dimensions.size(); ++i) {
            const std::string name = "D" + std::to_string(i + 1);
            EXPECT_NEAR(row.Real(name), c.dimensions[i], 1e-9) << i;
            EXPECT_EQ(rule.Text(name), row.Text(name));
        }
        EXPECT_EQ("SECTION_" +
                      std::string(deck.Rows("INTEGRATION_BEAM").at(0).Int("ICST") < 10 ? "0" : "") +
                      std::to_string(deck.Rows("INTEGRATION_BEAM").at(0).Int("ICST")),
                  c.section);
    }
    EXPECT_TRUE(Has(Write(*std::make_unique<CVynData>(BeamModel())).faults.empty() ? text : "",
                    "*INTEGRATION_BEAM\n$ This provides a set of integration points based on the "
                    "perimeter of the section\n         1         00.00000e+0        11"));
}

TEST_F(DynaProperties, ShellsAndLayers) {
    CVynData model = PlateModel();
    Data::CProp2D layered = model.Prop2D(1);
    layered.SetName(L"Sandwich");
    layered.SetLayers({{1, 0.01, 0.0}, {1, 0.2, 90.0}, {1, 0.02, 45.0}});
    model.SetProp2D(4, layered);
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.faults, std::vector<std::string>());
    EXPECT_TRUE(Has(text,
                    "*SECTION_SHELL\n         1        168.33333e-1         5\n"
                    "2.00000e-12.00000e-12.00000e-12.00000e-1\n"
                    "*PART_COMPOSITE\nSandwich : 2D prop 4\n"
                    "         2        168.33333e-10.00000e+0\n"
                    "         11.00000e-20.00000e+0         0         12.00000e-19.00000e+1"
                    "         0\n"
                    "         12.00000e-24.50000e+1         0"))
        << text;
}

TEST_F(DynaProperties, CablesByAreaOrStiffness) {
    CVynData model = ModelOf({{0, 0, 0}, {0, 0, 5}});
    Data::CCableProp cable;
    cable.SetName(L"Stay");
    cable.SetArea(2e-4);
    cable.SetE(160e9);
    cable.SetDensity(8000);
    model.SetCableProp(1, cable);
    cable.SetArea(0.0);
    model.SetCableProp(2, cable);
    model.SetElem(1, Data::CElement(ElementType::Cable, {1, 2}, 2));
    const KeywordDeck deck = Write(model);
    EXPECT_TRUE(Has(text,
                    "*MAT_CABLE_DISCRETE_BEAM\n$MT_TITLE Stay\n"
                    "         38.00000e+31.6000e+11         0"));
    EXPECT_EQ(deck.Rows("SECTION_BEAM", 2).at(0).Real("CA"), 2e-4);
    EXPECT_EQ(deck.Rows("SECTION_BEAM", 2).at(1).Real("CA"), 1.0);
    EXPECT_EQ(deck.Rows("ELEMENT_BEAM").at(0).fields.size(), 5U);
    EXPECT_EQ(deck.Rows("ELEMENT_BEAM").at(0).Int("PID"), 2);
}

/// Directions with a curve come from it; springs between surfaces have no part at all.
TEST_F(DynaProperties, SpringsWithCurvesAndBetweenSurfaces) {
    CVynData model = ModelOf({{0, 0, 0}, {0, 0, 5}});
    model.SetMatCurve(4, Data::CMatCurve());
    Data::CSpringProp spring;
    spring.SetTableRef(Direction::Y, 4);
    spring.SetTableRef(Direction::Z, 5);  // does not exist
    spring.SetStiff(Direction::X, 1e6);
    model.SetSpringProp(1, spring);
    spring.SetType(SpringType::Contact);
    model.SetSpringProp(2, spring);
    spring.SetType(SpringType::Friction);
    model.SetSpringProp(3, spring);
    model.SetElem(1, Data::CElement(ElementType::Spring, {1, 2}, 3));
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.Count("PART"), 1);
    EXPECT_EQ(deck.Rows("ELEMENT_BEAM").at(0).Int("PID"), 0);
    const KeywordRow row = deck.Rows("MAT_NONLINEAR_ELASTIC_DISCRETE_BEAM", 1).at(0);
    EXPECT_EQ(row.Int("C1"), 0);
    EXPECT_EQ(row.Int("C2"), 4);
    EXPECT_EQ(row.Int("C3"), 0);
    EXPECT_TRUE(HasNote(L"Spring property 1 is written by the curves that exist"));
}

/// Properties and materials are those of the stage, where one is set.
TEST_F(DynaProperties, StageReplacesPropertiesAndMaterials) {
    CVynData model = BeamModel();
    model.SetSection(2, Data::CSection(L"S", L"STD%C%100", Generic(1)));
    model.SetMatAnal(2, Material(MatModel::ElasticIsotropic));
    Data::CStage stage;
    stage.SetReplacements({{PropertyType::Section, 1, 2, 0}, {PropertyType::Section, 2, 0, 2}});
    model.SetStage(3, stage);
    EXPECT_EQ(Write(model).Rows("ELEMENT_BEAM").at(0).Int("PID"), 1);
    writer.SetStage(3);
    const KeywordDeck deck = Write(model);
    EXPECT_EQ(deck.Rows("ELEMENT_BEAM").at(0).Int("PID"), 2);
    EXPECT_EQ(deck.Rows("PART", 2).at(0).Int("MID"), 1);
    EXPECT_EQ(deck.Rows("PART", 2).at(1).Int("MID"), 2);
}

}  // namespace
}  // namespace Tevra
