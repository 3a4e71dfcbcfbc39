#include <filesystem>
#include <limits>

#include "document/ModelDocument.h"
#include "opensees/OpsFixture.h"
#include "support/CommaLocale.h"
#include "support/FullModel.h"
#include "support/TestPaths.h"

namespace Tevra {
namespace {

class OpsFile : public OpsFixture {};

/// A portal of elastic rafters on columns of fibres, with a brace, a diaphragm and loads.
CVynData Portal() {
    CVynData model = ModelOf({{0, 0, 0}, {0, 0, 3}, {4, 0, 3}, {4, 0, 0}});
    CTitles titles;
    titles.SetJobTitle(L"Portal");
    titles.SetInitials(L"VYN");
    model.SetTitle(titles);
    Data::CMatAnal steel(L"", 200e9, 0.25, 7850, 0);
    steel.SetModel(MatModel::ElasticPlastic);
    steel.SetYieldStress(400e6);
    model.SetMatAnal(2, steel);
    model.SetSection(1, Data::CSection(L"", L"STD%I%400%200%10%16", Generic(1)));
    model.SetSection(2, Data::CSection(L"", L"STD%RHS%200%100%8%10", Generic(2)));
    for (const int number : {1, 4}) {
        Data::CNode base = model.Node(number);
        base.SetRestraint({true, true, true, number == 1, true, number == 1});
        model.SetNode(number, base);
    }
    model.SetElem(1, Data::CElement(ElementType::Beam, {1, 2}, 2));
    model.SetElem(2, Data::CElement(ElementType::Beam, {2, 3}, 1));
    model.SetElem(3, Data::CElement(ElementType::Beam, {4, 3}, 2));
    model.SetElem(4, Data::CElement(ElementType::Tie, {1, 3}, 1));
    Data::CRigid rigid;
    rigid.SetPrimaryNode(2);
    rigid.SetNodes({L"3", SelType::Node});
    rigid.SetType(2101);
    model.SetRigid(1, rigid);
    auto load = LoadOn<Data::CBeamLoad>(L"2");
    load.SetPoint(1, {0.0, true, -12.5e3});
    model.SetBeamLoad(1, load);
    auto wind = LoadOn<Data::CNodeLoad>(L"2", SelType::Node);
    wind.SetDirection(Direction::X);
    wind.SetValue(8e3);
    model.SetNodeLoad(1, wind);
    return model;
}

TEST_F(OpsFile, GoldenPortal) {
    CVynData model = Portal();
    EXPECT_EQ(WriteText(model), ReadFile(SourceDir() / "tests/golden/opensees/portal.tcl"));
    EXPECT_TRUE(written);
    EXPECT_EQ(writer.ErrorLog(), L"");
}

TEST_F(OpsFile, EmptyModelIsAScript) {
    CVynData model;
    WriteText(model);
    EXPECT_EQ(text,
              "# title: \n# subtitle: \n# calc: \n# job no.: \n# initials: \n"
              "# This file was originally written by VYN version 1.0.0 on Saturday, 21 Nov 2026 at "
              "09:00:00\n\n\nwipe\nmodel BasicBuilder -ndm 3 -ndf 6\n\n# length=m\n# force=N\n\n"
              "\n# node coordinates\n\n# node restraints\n\n# material\n\n# sections\n"
              "\n# 2D element sections\n\n# element transformations\n\n# elements\n"
              "\n# links and rigid constraints\n\n# joints\n\n# node loads\n\n# beam loads\n"
              "#end\n\n\n# rest of commands\nalgorithm Linear\nnumberer RCM\nsystem ProfileSPD\n"
              "constraints Transformation\nintegrator LoadControl 1\nanalysis Static\nanalyze 2\n");
}

TEST_F(OpsFile, TitlesStayComments) {
    CVynData model;
    CTitles titles;
    titles.SetJobTitle(L"a\nwipe\r\x1A[exit] {");
    titles.SetSubTitle(L"C:\\files\\");
    titles.SetCalcHeading(L"Bühne");
    model.SetTitle(titles);
    const OpsScript script = Write(model);
    EXPECT_EQ(script.faults, Lines{});
    EXPECT_EQ(script.comments.at(0), "# title: a wipe  [exit] {");
    EXPECT_EQ(script.comments.at(1), "# subtitle: C:\\files\\ ");
    EXPECT_EQ(script.comments.at(2), "# calc: B\xC3\xBChne");
    EXPECT_EQ(script.commands.at(0).Rest(), "wipe");
}

TEST_F(OpsFile, NumbersDoNotFollowTheLocale) {
    CVynData model = Portal();
    const std::string plain = WriteText(model);
    const ScopedCommaLocale comma;
    writer.SetLocaleMode(0);
    EXPECT_EQ(WriteText(model).substr(250), plain.substr(250));
}

struct BadCase {
    const char* name;
    void (*spoil)(CVynData& model);
    const wchar_t* note;
};

const double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr const wchar_t* kLeftOut =
    L"Elements without length, or whose nodes, property or material do not exist, not exported: ";

const BadCase kBadCases[] = {
    {"no node", [](CVynData& m) { m.DeleteNode(3); }, kLeftOut},
    {"no section", [](CVynData& m) { m.DeleteSection(1); }, kLeftOut},
    {"no material", [](CVynData& m) { m.DeleteMatAnal(1); }, kLeftOut},
    {"no length", [](CVynData& m) { m.SetNode(3, m.Node(2)); }, kLeftOut},
    {"no thickness of a plane",
     [](CVynData& m) {
         m.SetElem(9, Data::CElement(ElementType::Quad4, {1, 2, 3, 4}, 5));
     },
     kLeftOut},
    {"node that is no number",
     [](CVynData& m) {
         m.SetNode(1, Data::CNode({0, kNan, 0}));
     },
     L"Node 1 is not exported, as one of its values is not a number"},
    {"no primary node",
     [](CVynData& m) {
         Data::CRigid rigid;
         rigid.SetPrimaryNode(77);
         m.SetRigid(1, rigid);
     },
     L"Rigid constraint 1 is not exported"},
    {"joint to nothing", [](CVynData& m) { m.SetJoint(1, {}); }, L"Joint 1 is not exported"},
    {"load that is no number",
     [](CVynData& m) {
         auto load = LoadOn<Data::CBeamLoad>(L"2");
         load.SetPoint(1, {0.0, true, kNan});
         m.SetBeamLoad(1, load);
     },
     L"Beam load 1 is not exported"},
    {"load on what is no beam",
     [](CVynData& m) { m.SetBeamLoad(1, LoadOn<Data::CBeamLoad>(L"4")); },
     L"Beam load 1 is not exported for 1 elements that are no beams of the file"},
    {"values of a material missing",
     [](CVynData& m) {
         m.SetMatAnal(3, Uniaxial(MatModel::UniaxialConcrete02, {1, 2}));
     },
     L"Material 3 has 2 values, where the command takes 7"},
    {"dummy element",
     [](CVynData& m) {
         Data::CElement tie = m.Elem(4);
         tie.SetDummy(true);
         m.SetElem(4, tie);
     },
     L"Dummy elements not exported"},
    {"high numbers",
     [](CVynData& m) {
         m.SetNode(std::numeric_limits<int>::max(), Data::CNode({1, 2, 3}));
         m.SetElem(2000000000, m.Elem(1));
     },
     L""},
};

TEST_F(OpsFile, BadInputIsLeftOutAndTold) {
    for (const BadCase& bad : kBadCases) {
        CVynData model = Portal();
        bad.spoil(model);
        const ScopedHost scope(host);
        COpenseesFile file;
        file.SetData(&model);
        EXPECT_TRUE(file.OpenWrite(Text::FromPath(folder.Path() / "bad.tcl"))) << bad.name;
        EXPECT_NE(file.ErrorLog().find(bad.note), std::wstring::npos) << bad.name;
        EXPECT_EQ(bad.note[0] == L'\0', file.ErrorLog().empty()) << bad.name;
        const OpsScript script = ReadOpsScript(ReadFile(folder.Path() / "bad.tcl"));
        EXPECT_EQ(script.faults, Lines{}) << bad.name;
        EXPECT_EQ(OpenReferences(script), Lines{}) << bad.name;
    }
}

TEST_F(OpsFile, TagsThatDoNotFitEndTheScript) {
    CVynData model = PlateModel();
    model.SetSection(std::numeric_limits<int>::max() - 1, {});
    model.SetProp2D(2, model.Prop2D(1));
    Write(model);
    EXPECT_FALSE(written);
    EXPECT_TRUE(HasNote(L"are too high"));
}

TEST_F(OpsFile, FullDisksAndMissingFoldersAreTold) {
    CVynData model = Portal();
    const ScopedHost scope(host);
    for (const wchar_t* path : {L"/dev/full", L"/no such folder/file.tcl"}) {
        COpenseesFile file;
        file.SetData(&model);
        EXPECT_FALSE(file.OpenWrite(path));
        EXPECT_NE(file.ErrorLog().find(L"Unable to open file"), std::wstring::npos);
    }
}

TEST_F(OpsFile, EveryModelReadsBack) {
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
            Data::CBeamLoad load = model.BeamLoad(number);
            load.SetType(load.TypeOf() == BeamLoadType::Point ? load.TypeOf()
                                                              : BeamLoadType::Uniform);
            model.SetBeamLoad(number, load);
        }
        const CVynData before = model;
        for (const int loadCase : model.LoadCases().Numbers()) {
            writer.SetLoadCase(loadCase);
            const OpsScript script = Write(model);
            EXPECT_TRUE(written);
            EXPECT_EQ(script.faults, Lines{});
            EXPECT_EQ(OpenReferences(script), Lines{});
            EXPECT_EQ(script.Named("node").size(), static_cast<std::size_t>(model.NumNode()));
        }
        EXPECT_TRUE(model == before);
    }
}

}  // namespace
}  // namespace Tevra
