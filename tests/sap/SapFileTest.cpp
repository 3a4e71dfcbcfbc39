#include <filesystem>
#include <limits>

#include "document/ModelDocument.h"
#include "sap/SapFixture.h"
#include "support/CommaLocale.h"
#include "support/FullModel.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

class SapFile : public SapFixture {};

/// A portal with supports, a release, an axis, a diaphragm and loads of two cases.
CVynData Portal() {
    CVynData model = ModelOf({{0, 0, 0}, {0, 0, 3}, {4, 0, 3}, {4, 0, 0}});
    CTitles titles;
    titles.SetJobTitle(L"Portal");
    titles.SetInitials(L"VYN");
    model.SetTitle(titles);
    model.SetSection(1, Data::CSection(L"", L"STD%I%400%200%10%16", Generic(1)));
    for (const int number : {1, 4}) {
        Data::CNode base = model.Node(number);
        base.SetRestraint({true, true, true, number == 1, true, number == 1});
        model.SetNode(number, base);
    }
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 1));
    Data::CElement rafter(ElementType::Beam, {2, 3}, 1);
    Data::CElemConnect pin;
    pin.SetReleased({false, false, false, false, true, false});
    rafter.SetConnect(2, pin);
    rafter.SetOffset({0.2, -0.2, 0.0, 0.0});
    model.SetElem(2, rafter);
    model.SetElem(3, Data::CElement(ElementType::Bar, {4, 3}, 1));
    Data::CRigid rigid;
    rigid.SetPrimaryNode(2);
    rigid.SetNodes({L"3", SelType::Node});
    rigid.SetType(2101);
    model.SetRigid(1, rigid);
    model.SetLoadCaseTitle(1, Data::NamedEntity(L"Dead load"));
    model.SetGravityLoad(1, {});
    auto load = LoadOn<Data::CBeamLoad>(L"2");
    load.SetPoint(1, {0.0, true, -12.5e3});
    model.SetBeamLoad(1, load);
    auto wind = LoadOn<Data::CNodeLoad>(L"2", SelType::Node);
    wind.SetLoadCase(2);
    wind.SetDirection(Direction::X);
    wind.SetValue(8e3);
    model.SetNodeLoad(1, wind);
    return model;
}

TEST_F(SapFile, GoldenPortal) {
    CVynData model = Portal();
    const auto path = TestSupport::SourceDir() / "tests/golden/sap/portal.s2k";
    EXPECT_EQ(WriteText(model), ReadFile(path));
    EXPECT_TRUE(written);
    EXPECT_EQ(writer.ErrorLog(), L"");
}

TEST_F(SapFile, EmptyModelHasItsBlocks) {
    CVynData model;
    WriteText(model);
    EXPECT_TRUE(
        Has("\n\nSYSTEM\n  LENGTH=M\n  FORCE=N\nJOINT\nLOCAL\nRESTRAINT\nSPRING\nFRAME\n"
            "  CSYS=0 LOCAL=12\nNLLINK\nSHELL\nPLANE\nMATERIAL\nCONSTRAINT\nEND\n"))
        << text;
    EXPECT_EQ(text.find("\n; subtitle: \n; calc: \n; job no.: \n; initials: \n; This file was "
                        "originally written by "),
              0U);
    EXPECT_TRUE(Has(" on Saturday,  21 Nov 2026 at 09:00:00\n\nSYSTEM"));
}

TEST_F(SapFile, NumbersDoNotFollowTheLocale) {
    CVynData model = Portal();
    const std::string plain = WriteText(model);
    const ScopedCommaLocale comma;
    writer.SetLocaleMode(CSapFile::kByStandardCode);
    EXPECT_EQ(WriteText(model).substr(400), plain.substr(400));
}

struct BadCase {
    const char* name;
    void (*spoil)(CVynData& model);
    bool written;
    const wchar_t* note;
};

const double kNan = std::numeric_limits<double>::quiet_NaN();

const BadCase kBadCases[] = {
    {"no node", [](CVynData& m) { m.DeleteNode(3); }, true,
     L"Elements without length, or whose nodes or property do not exist, not exported: 2, the "
     L"first is 2"},
    {"no section", [](CVynData& m) { m.DeleteSection(1); }, true, L"not exported: 3"},
    {"node that is no number",
     [](CVynData& m) {
         m.SetNode(1, Data::CNode({0, kNan, 0}));
     },
     true, L"Node 1 is not exported, as one of its values is not a number"},
    {"too few nodes",
     [](CVynData& m) {
         m.SetElem(7, Data::CElement(ElementType::Quad4, {1, 2}, 1));
     },
     true, L"not exported: 1, the first is 7"},
    {"no primary node",
     [](CVynData& m) {
         Data::CRigid rigid;
         rigid.SetPrimaryNode(77);
         m.SetRigid(1, rigid);
     },
     true, L"Rigid constraint 1 is not exported, as its primary node does not exist"},
    {"joint to nothing", [](CVynData& m) { m.SetJoint(1, {}); }, true,
     L"Joint 1 is not exported, as one of its nodes does not exist"},
    {"angle that is no number",
     [](CVynData& m) {
         Data::CElement beam = m.Elem(1);
         beam.SetOrientationAngle(kNan);
         m.SetElem(1, beam);
     },
     false, L"ArcCos: function value out of range"},
    {"dummy element",
     [](CVynData& m) {
         Data::CElement beam = m.Elem(2);
         beam.SetDummy(true);
         m.SetElem(2, beam);
     },
     true, L"Dummy elements not exported"},
    {"load that is no number",
     [](CVynData& m) {
         auto load = LoadOn<Data::CBeamLoad>(L"2");
         load.SetPoint(1, {0.0, true, kNan});
         m.SetBeamLoad(1, load);
     },
     true, L"Beam load 1 is not exported"},
    {"lack of fit of no length",
     [](CVynData& m) {
         m.SetNode(2, m.Node(1));
         auto load = LoadOn<Data::CAxialLoad>(L"1");
         load.SetType(AxialLoadType::LackOfFit);
         load.SetValue(0.001);
         m.SetAxialLoad(1, load);
     },
     true, L"Axial load 1 is not exported"},
    {"gradient between one place",
     [](CVynData& m) {
         auto load = LoadOn<Data::CBeamThermalLoad>(L"1");
         load.SetType(BeamThermalType::GradientY);
         load.SetPoint(2, 0.0, 5.0);
         m.SetBeamThermalLoad(1, load);
     },
     true, L"Beam thermal load 1 is not exported"},
    {"list that can't be read",
     [](CVynData& m) { m.SetNodeLoad(1, LoadOn<Data::CNodeLoad>(L"1 to (", SelType::Node)); }, true,
     L"is not exported as it loads no node of the file"},
    {"name with line ends",
     [](CVynData& m) {
         CTitles titles;
         titles.SetJobTitle(L"a\nJOINT\r\nb");
         m.SetTitle(titles);
         m.SetLoadCaseTitle(1, Data::NamedEntity(L"x\ny = \u00e9\u00df"));
     },
     true, L""},
    {"high numbers",
     [](CVynData& m) {
         m.SetNode(std::numeric_limits<int>::max(), Data::CNode({1, 2, 3}));
         m.SetElem(2000000000, m.Elem(1));
     },
     true, L""},
};

TEST_F(SapFile, BadInputIsLeftOutAndTold) {
    for (const BadCase& bad : kBadCases) {
        CVynData model = Portal();
        bad.spoil(model);
        const ScopedHost scope(host);
        CSapFile file;
        file.SetData(&model);
        EXPECT_EQ(file.OpenWrite(Text::FromPath(folder.Path() / "bad.s2k")), bad.written)
            << bad.name;
        EXPECT_NE(file.ErrorLog().find(bad.note), std::wstring::npos) << bad.name;
        EXPECT_EQ(bad.note[0] == L'\0', file.ErrorLog().empty()) << bad.name;
        if (bad.written) {
            const SapDeck deck = ReadSapDeck(ReadFile(folder.Path() / "bad.s2k"));
            EXPECT_EQ(deck.faults, std::vector<std::string>{}) << bad.name;
            EXPECT_EQ(OpenReferences(deck), std::vector<std::string>{}) << bad.name;
        }
    }
}

TEST_F(SapFile, CablesAndSpacersAreNotedOnce) {
    CVynData model = Portal();
    for (const int number : {4, 5, 6, 7}) {
        const ElementType type = number % 2 == 0 ? ElementType::Spacer : ElementType::Cable;
        model.SetElem(number, Data::CElement(type, {1, 2}, 1));
    }
    WriteText(model);
    EXPECT_EQ(writer.ErrorLog(),
              L"Note:           Cable elements not exported\n"
              L"Note:           Spacer elements not exported");
}

TEST_F(SapFile, FullDisksAndMissingFoldersAreTold) {
    CVynData model = Portal();
    const ScopedHost scope(host);
    for (const wchar_t* path : {L"/dev/full", L"/no such folder/file.s2k"}) {
        CSapFile file;
        file.SetData(&model);
        EXPECT_FALSE(file.OpenWrite(path));
        EXPECT_NE(file.ErrorLog().find(L"Unable to open file"), std::wstring::npos);
    }
}

/// Materials of models, and link properties of the general kind, that the format leaves out.
bool IsKept(const std::string& reference) {
    return reference.find("no MATERIAL") != std::string::npos ||
           reference.find("no NLPROP") != std::string::npos;
}

TEST_F(SapFile, EveryModelReadsBack) {
    std::vector<CVynData> models{MakeFullModel()};
    for (const auto& entry : std::filesystem::directory_iterator(SourceDir() / "examples")) {
        if (entry.path().extension() == ".json") {
            std::string error;
            ASSERT_TRUE(Document::ReadDocument(entry.path(), models.emplace_back(), error))
                << error;
        }
    }
    for (CVynData& model : models) {
        for (const int number : model.BeamLoadTable().Numbers()) {
            if (model.BeamLoad(number).TypeOf() == BeamLoadType::Trilinear) {
                model.SetBeamLoad(number, {});
            }
        }
        const CVynData before = model;
        const SapDeck deck = Write(model);
        EXPECT_TRUE(written);
        EXPECT_TRUE(model == before);
        EXPECT_EQ(deck.faults, std::vector<std::string>{});
        for (const std::string& reference : OpenReferences(deck)) {
            EXPECT_TRUE(IsKept(reference)) << reference;
        }
        ASSERT_EQ(deck.Block("JOINT").size(), static_cast<std::size_t>(model.NumNode()));
        for (const SapLine& joint : deck.Block("JOINT")) {
            const Vec3<double>& at = model.Node(std::stoi(joint.number)).Position();
            EXPECT_NEAR(joint.Real("X"), at.x, 1e-5 * std::abs(at.x)) << joint.number;
            EXPECT_NEAR(joint.Real("Z"), at.z, 1e-5 * std::abs(at.z)) << joint.number;
        }
    }
}

}  // namespace
}  // namespace Tevra
