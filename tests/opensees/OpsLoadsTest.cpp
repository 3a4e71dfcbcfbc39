#include <algorithm>
#include <cmath>

#include "opensees/OpsFixture.h"
#include "support/Random.h"

namespace Tevra {
namespace {

class OpsLoads : public OpsFixture {};

Data::CBeamLoad BeamLoad(BeamLoadType type, Direction d, int axis, double value) {
    auto load = LoadOn<Data::CBeamLoad>(L"1");
    load.SetType(type);
    load.SetDirection(d);
    load.SetAxis(axis);
    load.SetPoint(1, {0.25, true, value});
    return load;
}

TEST_F(OpsLoads, NodeLoadsInGlobalComponents) {
    CVynData model = BeamModel();
    model.SetAxis(2, AxisOf({0, 0.6, 0.8}, {1, 0, 0}));
    Data::CNode node = model.Node(2);
    node.SetAxis(2);
    model.SetNode(2, node);
    auto load = LoadOn<Data::CNodeLoad>(L"1 2", SelType::Node);
    load.SetDirection(Direction::X);
    load.SetValue(1000.0);
    load.SetAxis(kLocalAxis);
    model.SetNodeLoad(1, load);
    load.SetAxis(2);
    load.SetDirection(Direction::XX);
    load.SetLoadedEntities({L"1", SelType::Node});
    model.SetNodeLoad(2, load);
    load.SetLoadCase(2);
    model.SetNodeLoad(3, load);
    WriteText(model);
    EXPECT_TRUE(
        Has("\n\n# node loads\npattern Plain 1 Linear {\n# load case 1\n"
            "load 1 1000 0 0 0 0 0\nload 2 0 600 800 0 0 0\nload 1 0 0 0 0 600 800\n}\n\n"
            "# beam loads\n#end\n"))
        << text;
    writer.SetLoadCase(3);
    WriteText(model);
    EXPECT_TRUE(Has("\n\n# node loads\n\n# beam loads\n#end\n\n\n# rest of commands\n")) << text;
}

TEST_F(OpsLoads, PointsAndUniformLoads) {
    CVynData model = BeamModel();
    auto load = BeamLoad(BeamLoadType::Point, Direction::Y, kLocalAxis, 300.0);
    model.SetBeamLoad(1, load);
    load.SetPoint(1, {3.0, false, 300.0});
    load.SetDirection(Direction::Z);
    load.SetAxis(0);
    model.SetBeamLoad(2, load);
    model.SetBeamLoad(3, BeamLoad(BeamLoadType::Uniform, Direction::Z, 0, -5000.0));
    WriteText(model);
    EXPECT_TRUE(
        Has("# beam loads\npattern Plain 1 Linear {\n# load case 1\n"
            "eleLoad -ele 1 -type -beamPoint 300 0 0.25\n"
            "eleLoad -ele 1 -type -beamPoint 0 300 0.75\n"
            "eleLoad -ele 1 -type -beamUniform 0 -5000\n}\n#end\n"))
        << text;
    EXPECT_EQ(writer.ErrorLog(), L"");
}

/// The place is a fraction of the element's own length, a metre less than between the nodes.
TEST_F(OpsLoads, BeamsWithOffsetsAndPlacesBeyondTheEnds) {
    CVynData model = BeamModel();
    Data::CElement beam = model.Elem(1);
    beam.SetOffset({1.0, 0.0, 0.0, 0.0});
    model.SetElem(1, beam);
    auto load = BeamLoad(BeamLoadType::Point, Direction::Z, kLocalAxis, 300.0);
    load.SetPoint(1, {0.75, false, 300.0});
    model.SetBeamLoad(1, load);
    load.SetPoint(1, {3.5, false, 300.0});
    model.SetBeamLoad(2, load);
    model.SetBeamLoad(3, BeamLoad(BeamLoadType::Uniform, Direction::Z, kLocalAxis, 400.0));
    WriteText(model);
    EXPECT_TRUE(
        Has("eleLoad -ele 1 -type -beamPoint 0 300 0.25\n"
            "eleLoad -ele 1 -type -beamUniform 0 400\n}\n"))
        << text;
    EXPECT_NE(writer.ErrorLog().find(
                  L"Beam load 2 is not exported for elements on which none of it lies: 1"),
              std::wstring::npos)
        << testing::PrintToString(writer.ErrorLog());
    EXPECT_NE(writer.ErrorLog().find(L"Beam load 3 acts between the nodes"), std::wstring::npos);
}

/// A load in a global direction, resolved by hand: its part square to the element is what the local
/// components together are.
TEST_F(OpsLoads, LocalComponentsGiveBackTheLoad) {
    auto random = SeededRandom(51);
    std::uniform_real_distribution<double> place(-5.0, 5.0);
    for (int i = 0; i < 60; ++i) {
        const Vec3<double> to{place(random), place(random), i % 6 == 0 ? 0.0 : place(random)};
        CVynData model = BeamModel({0, 0, 0}, to);
        Data::CElement beam = model.Elem(1);
        beam.SetOrientationAngle(20.0 * place(random));
        model.SetElem(1, beam);
        const Direction direction = kDirections[static_cast<std::size_t>(i % 3)];
        auto load = BeamLoad(BeamLoadType::Uniform, direction, 0, 100.0);
        load.SetProjected(i % 2 == 1);
        model.SetBeamLoad(1, load);
        const OpsScript script = Write(model);
        const auto found =
            std::find_if(script.commands.begin(), script.commands.end(),
                         [](const OpsCommand& c) { return c.words[0] == "eleLoad"; });
        ASSERT_NE(found, script.commands.end());
        const Util::CDirCos axes = model.ElemDC(1);
        const Vec3<double> inFile =
            axes.AxisVec(1) * found->Real(5) + axes.AxisVec(2) * found->Real(6);
        const Vec3<double> along = to * (1.0 / Length(to));
        Vec3<double> whole;
        whole[i % 3] = 100.0;
        if (load.IsProjected()) {  // per length of the projection square to the load
            whole = whole * Length(Cross(along, whole * 0.01));
        }
        EXPECT_LT(Length(inFile - (whole - along * Dot(whole, along))), 2e-3) << i;
        EXPECT_EQ(HasNote(L"Beam load 1 is exported without its part along the elements"), true);
    }
}

TEST_F(OpsLoads, MessagesInTheirOrder) {
    CVynData model = BeamModel();
    for (const int number : {1, 2, 3}) {  // each kind is told once
        model.SetSettlement(number, {});
        model.SetAppliedDisplacement(number, {});
        model.SetGravityLoad(number, {});
        model.SetBeamDist(number, {});
        model.SetAxialLoad(number, {});
        model.SetBeamThermalLoad(number, {});
        model.SetEdgeLoad(number, {});
        model.SetFaceLoad(number, {});
        model.SetInPlaneLoad(number, {});
        model.SetFaceThermalLoad(number, {});
    }
    model.SetBeamLoad(1, BeamLoad(BeamLoadType::Uniform, Direction::YY, 0, 1.0));
    model.SetBeamLoad(2, BeamLoad(BeamLoadType::Trilinear, Direction::ZZ, 0, 1.0));
    Write(model);
    EXPECT_TRUE(written);
    EXPECT_TRUE(Has("# beam loads\npattern Plain 1 Linear {\n# load case 1\n}\n#end\n"));
    EXPECT_EQ(host.Messages(),
              (std::vector<std::wstring>{L"OpenSees does not support applied settlements.",
                                         L"OpenSees does not support applied displacements.",
                                         L"OpenSees does not support gravity loads.",
                                         L"OpenSees does not support beam rotations.",
                                         L"OpenSees does not support beam rotations.",
                                         L"OpenSees does not support 1D distortions.",
                                         L"OpenSees does not support 1D prestresses.",
                                         L"OpenSees does not support beam temperature loads.",
                                         L"OpenSees does not support edge loads.",
                                         L"OpenSees does not support face loads.",
                                         L"OpenSees does not support 2D prestresses.",
                                         L"OpenSees does not support 2D temperature loads."}));
    host.events.clear();
    writer.SetLoadCase(2);
    Write(model);
    EXPECT_EQ(host.Messages(), std::vector<std::wstring>{});
}

TEST_F(OpsLoads, LoadsThatVaryEndTheScript) {
    for (const BeamLoadType type :
         {BeamLoadType::Linear, BeamLoadType::Patch, BeamLoadType::Trilinear}) {
        CVynData model = BeamModel();
        model.SetBeamLoad(1, BeamLoad(type, Direction::Z, 0, 1.0));
        const ScopedHost scope(host);
        COpenseesFile file;
        file.SetData(&model);
        EXPECT_FALSE(file.OpenWrite(Text::FromPath(folder.Path() / "x.tcl")));
        EXPECT_EQ(
            file.ErrorLog().find(
                L"<red>Error:          </red>this feature does not support non-uniform member "
                L"loads\n<red>Error:          </red>Unable to open file\n"),
            0U);
        file.SetLoadCase(2);  // loads of other cases do not count
        EXPECT_TRUE(file.OpenWrite(Text::FromPath(folder.Path() / "x.tcl")));
    }
}

}  // namespace
}  // namespace Tevra
