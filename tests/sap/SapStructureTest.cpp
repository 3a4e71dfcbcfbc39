#include <cmath>

#include "sap/SapFixture.h"
#include "support/Random.h"

namespace Tevra {
namespace {

class SapStructure : public SapFixture {};

constexpr double kRadians = 3.14159265358979323846 / 180.0;

/// The target's axes of a frame from its ends and its angle, as its manual has them: axis 2 in the
/// plane of the frame and Z (of vertical frames along X), turned by the angle about axis 1.
Util::CDirCos TargetAxes(const Vec3<double>& from, const Vec3<double>& to, double degrees) {
    const Vec3<double> one = Unit(to - from, {1, 0, 0});
    const bool isVertical = std::hypot(one.x, one.y) < 1e-3;
    const Vec3<double> side = isVertical ? Vec3<double>{1, 0, 0} : Vec3<double>{0, 0, 1};
    const Vec3<double> two = Unit(side - one * Dot(side, one), side);
    const Vec3<double> three = Cross(one, two);
    const double c = std::cos(degrees * kRadians);
    const double s = std::sin(degrees * kRadians);
    return {one, two * c + three * s, three * c - two * s};
}

void ExpectNear(const Vec3<double>& a, const Vec3<double>& b, const std::string& what) {
    EXPECT_LT(Length(a - b), 2e-5) << what;
}

TEST_F(SapStructure, AnglesGiveBackTheAxesOfTheHost) {
    auto random = SeededRandom(61);
    std::uniform_real_distribution<double> place(-5.0, 5.0);
    std::uniform_real_distribution<double> turn(-180.0, 180.0);
    for (int i = 0; i < 200; ++i) {
        const Vec3<double> from{place(random), place(random), place(random)};
        Vec3<double> to{place(random), place(random), place(random)};
        if (i % 4 == 0) {  // exactly vertical, and within the limit of it
            to = {from.x + (i % 8 == 0 ? 0.0 : 5e-4 * (to.z - from.z)), from.y, to.z};
        }
        CVynData model = BeamModel(from, to);
        Data::CElement beam = model.Elem(1);
        beam.SetOrientationAngle(i % 3 == 0 ? 0.0 : turn(random));
        if (i % 5 == 0) {
            model.SetNode(3, Data::CNode({place(random), place(random), place(random)}));
            beam.SetOrientationNode(3);
        }
        model.SetElem(1, beam);
        const double angle = Write(model).Line("FRAME", "1").Real("ANG");
        const Util::CDirCos target = TargetAxes(from, to, angle);
        const Util::CDirCos own = model.ElemDC(1);
        const double sign = model.ElemIsVertical(1) ? -1.0 : 1.0;
        const std::string what = "case " + std::to_string(i);
        ExpectNear(own.AxisVec(2), target.AxisVec(1) * sign, what);
        ExpectNear(own.AxisVec(1), target.AxisVec(2) * -sign, what);
    }
}

TEST_F(SapStructure, FrameItems) {
    CVynData model = BeamModel();
    Data::CElement beam = model.Elem(1);
    Data::CElemConnect connect;
    connect.SetReleased({true, true, false, false, true, true});
    beam.SetConnect(1, connect);
    connect.SetReleased({false, false, true, true, false, false});
    beam.SetConnect(2, connect);
    beam.SetOffset({0.25, -0.5, 0.0, 0.1});
    model.SetElem(1234, beam);
    beam.SetType(ElementType::Bar);
    beam.SetOffset({});
    model.SetElem(1, beam);
    WriteText(model);
    EXPECT_TRUE(
        Has("FRAME\n  CSYS=0 LOCAL=12\n     1 J=1,2 SEC=001 ANG=0.00000\n"
            "     1234 J=1,2 SEC=001 ANG=0.00000 IOFF=0.250000 JOFF=-0.500000 "
            "IREL=U1,U3,R2,R3 JREL=U2,R1\nNLLINK\n"))
        << text;
}

TEST_F(SapStructure, FreeDirectionsOfTheModel) {
    const std::pair<unsigned, const char*> cases[] = {
        {0, ""},
        {8 + 16 + 32, "  DOF=UX, UY, UZ,\n"},
        {2 + 8 + 32, "  DOF=UX, UZ, RY\n"},
        {1 + 2 + 4, "  DOF=RX,RY,RZ\n"},
        {4, "  DOF=UX, UY, RX,RY,RZ\n"},
        {63, "  DOF\n"},
    };
    for (const auto& [bits, line] : cases) {
        CVynData model;
        model.SetGlobalRestraint(Vbool6::FromBits(bits));
        WriteText(model);
        EXPECT_TRUE(Has(std::string("\n\nSYSTEM\n") + line + "  LENGTH=M\n  FORCE=N\nJOINT\n"))
            << text;
    }
}

TEST_F(SapStructure, JointsWithAxesSupportsAndSprings) {
    CVynData model = ModelOf({{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {0, -0.0, 1e-7}});
    model.SetAxis(3, AxisOf({0, 0, 2}, {1, 0, 1}));
    Data::CSpringProp spring;
    spring.SetStiff(Direction::Y, 5e6);
    spring.SetStiff(Direction::ZZ, 2e3);
    model.SetSpringProp(7, spring);
    for (const int number : {1, 2}) {
        Data::CNode node = model.Node(number);
        node.SetAxis(3);
        node.SetSpringProperty(number == 1 ? 7 : 8);
        node.SetRestraint({number == 1, false, true, false, false, true});
        model.SetNode(number, node);
    }
    WriteText(model);
    EXPECT_TRUE(
        Has("COORDINATE\nNAME=3\n   X=0.00000 Y=0.00000 Z=0.00000\n"
            "   X=0.00000 Y=0.00000 Z=1.00000\n     X=1.00000 Y=0.00000 Z=0.00000\n"
            "JOINT\n   1 X=1.00000 Y=2.00000 Z=3.00000\n"))
        << text;
    EXPECT_TRUE(
        Has("   4 X=0.00000 Y=0.00000 Z=1.00000e-07\n"
            "LOCAL\n  CSYS=3\n    ADD=1\n    ADD=2\n"
            "RESTRAINT\n  ADD=1 DOF=U1,U3,R3\n  ADD=2 DOF=U3,R3\n"
            "SPRING\n  ADD=1 U2=5.00000e+06 R3=2000.00\nFRAME\n"))
        << text;
}

struct ShapeCase {
    const wchar_t* description;
    const char* item;
};

TEST_F(SapStructure, SectionShapes) {
    const ShapeCase cases[] = {
        {L"STD%R%400%200", "MAT=001 SH=R T=0.400000,0.200000 A=0.0800000 J="},
        {L"STD%RHS%400%200%8%12",
         "MAT=001 SH=B T=0.400000,0.200000,0.0120000,0.00800000 A=0.0108160 J="},
        {L"STD%C%100", "MAT=001 SH=P T=0.100000 A=0.00785398 J="},
        {L"STD%CHS%100%10", "MAT=001  SH=P T=0.100000,0.0100000 A=0.00282743 J="},
        {L"STD%I%500%200%12%20",
         "SH=I T=0.500000,0.200000,0.0200000,0.0120000,0.200000,0.0200000 A="},
        {L"STD%GI%500%200%300%12%20%25",
         "SH=I T=0.500000,0.200000,0.0200000,0.0120000,0.300000,0.0250000 A="},
        {L"STD%CH%300%100%8%12", "SH=C T=0.300000,0.100000,0.0120000,0.00800000 A="},
        {L"STD%T%300%150%8%12",
         "MAT=001 SH=T T=0.300000,0.150000,0.0120000,0.00800000 "
         "SH=L T=0.300000,0.150000,0.0120000,0.00800000,0.150000,0.0120000 A="},
        {L"STD%A%100%80%10%8",
         "MAT=001 SH=L T=0.100000,0.0800000,0.00800000,0.0100000,0.0800000,0.00800000 A="},
        {L"EXP%0.01%2E-4%1E-4%3E-6%0.5%0.25",
         "MAT=001 A=0.0100000 J=3.00000e-06 I=0.000200000,0.000100000 AS=0.00250000,0.00500000  "
         "MPL=0\n"},
    };
    for (const ShapeCase& c : cases) {
        CVynData model = BeamModel();
        model.SetSection(1, Data::CSection(L"", c.description, Generic(1)));
        for (const int mode : {CSapFile::kByStandardCode, CSapFile::kByShapeClass}) {
            writer.SetLocaleMode(mode);
            WriteText(model);
            EXPECT_TRUE(Has(c.item)) << mode << c.item << text;
        }
        writer.SetLocaleMode(CSapFile::kGeneral);
        WriteText(model);
        EXPECT_TRUE(Has("  NAME=001 TYPE=PRISM MAT=001 SH=G A=")) << text;
        writer.SetLocaleMode(3);
        WriteText(model);
        EXPECT_TRUE(Has("  NAME=001 TYPE=PRISM MAT=001 A=")) << text;
    }
}

TEST_F(SapStructure, SpringsBetweenJoints) {
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}});
    model.SetAxis(2, AxisOf({0, 1, 0}, {1, 0, 0}));
    const std::pair<SpringType, Direction> kinds[] = {{SpringType::Translational, Direction::X},
                                                      {SpringType::General, Direction::X},
                                                      {SpringType::Rotational, Direction::XX}};
    int number = 0;
    for (const auto& [type, direction] : kinds) {
        Data::CSpringProp spring;
        spring.SetType(type);
        spring.SetStiff(direction, 1000.0);
        spring.SetAxis(number == 2 ? 2 : 0);
        model.SetSpringProp(++number, spring);
        model.SetElem(number, Data::CElement(ElementType::Spring, {1, 2}, number));
    }
    model.SetElem(4, Data::CElement(ElementType::Spring, {2}, 1));
    WriteText(model);
    EXPECT_TRUE(
        Has("NLLINK\n  CSYS=0 AXDIR=+X PLDIR=+X,+Y\n     1 J=1,2 NLP=1\n     2 J=1,2 NLP=2\n"
            "  CSYS=2 AXDIR=+X PLDIR=+X,+Y\n     3 J=1,2 NLP=3\n"
            "  CSYS=0 AXDIR=+X PLDIR=+X,+Y\n     4 J=2 NLP=1\nSHELL\n"))
        << text;
    EXPECT_TRUE(
        Has("NLPROP\n  NAME=001 TYPE=DAMPER M=0 DOF=U1 KE=1000.00\n"
            "  NAME=003 TYPE=DAMPER M=0 DOF=R1 KE=1000.00\nMATERIAL\n"))
        << text;
}

TEST_F(SapStructure, PlanesAndShells) {
    CVynData model = ModelOf(
        {{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}, {1, 0, 0}, {2, 1, 0}, {1, 2, 0}, {0, 1, 0}});
    const Prop2DType types[] = {Prop2DType::PlaneStress,  Prop2DType::PlaneStrain,
                                Prop2DType::Axisymmetric, Prop2DType::Membrane,
                                Prop2DType::Plate,        Prop2DType::Shell,
                                Prop2DType::CurvedShell,  Prop2DType::LoadPanel};
    for (const Prop2DType type : types) {
        Data::CProp2D property;
        property.SetType(type);
        property.SetThickness(0.2);
        property.SetMaterial(Generic(1));
        const int number = static_cast<int>(type);
        model.SetProp2D(number, property);
        const bool isTriangle = type == Prop2DType::PlaneStrain || type == Prop2DType::Plate;
        const auto kind = isTriangle ? ElementType::Tri3 : ElementType::Quad8;
        model.SetElem(number, isTriangle ? Data::CElement(kind, {1, 2, 3}, number)
                                         : Data::CElement(kind, {1, 2, 3, 4, 5, 6, 7, 8}, number));
    }
    WriteText(model);
    EXPECT_TRUE(
        Has("SHELL\n   4 J=1,2,3,4 SEC=004\n   5 J=1,2,3 SEC=005\n   6 J=1,2,3,4 SEC=006\n"
            "   7 J=1,2,3,4 SEC=007\n"
            "PLANE\n  1 J9=1,2,3,4,0,5,6,7,8 TYPE=STRESS MAT=001 MATANG=0 TH=0.200000\n"
            "  2 J=1,2,3 TYPE=STRAIN MAT=001 MATANG=0 TH=0.200000\n"
            "SHELL SECTION\n  NAME=004 TYPE=MEMBR MAT=001 TH=0.200000\n"
            "  NAME=005 TYPE=PLATE MAT=001 TH=0.200000\n"
            "  NAME=006 TYPE=SHELL MAT=001 TH=0.200000 THB=0.200000\n"
            "  NAME=007 TYPE=SHELL MAT=001 TH=0.200000 THB=0.200000\nMATERIAL\n"))
        << text;
}

TEST_F(SapStructure, MaterialsAndGradesThatStandForThemselves) {
    CVynData model = BeamModel();
    Data::CMatAnal timber;
    timber.SetModel(MatModel::ElasticOrthotropic);
    timber.SetE({11e9, 4e8, 4.5e8});
    timber.SetG({6.9e8, 5e7, 6e8});
    timber.SetNu({0.3, 0.25, 0.01});
    timber.SetAlpha({5e-6, 3e-5, 0.0});
    timber.SetDensity(480.0);
    model.SetMatAnal(12, timber);
    Data::CMatAnal plastic(L"", 2e11, 0.3, 7850, 0);
    plastic.SetModel(MatModel::ElasticPlastic);
    model.SetMatAnal(5, plastic);
    Data::CMatDesign grade;
    grade.SetMatAnal(Data::CMatAnal(L"C30", 33e9, 0.2, 2500, 1e-5));
    model.SetMatConcrete(4, grade);
    model.SetSection(2, Data::CSection(L"", L"STD%R%400%200", {MatType::Concrete, 4, 0}));
    const SapDeck deck = Write(model);
    EXPECT_TRUE(
        Has("MATERIAL\n  NAME=001 TYPE=ISO IDES=N M=7850.00 W=76982.2\n"
            "    T=0 E=2.00000e+11 U=0.250000 A=1.00000e-05\n"
            "  NAME=012 TYPE=ORTHO IDES=N M=480.000 W=4707.19\n"
            "    T=0 E=1.10000e+10,4e+08,4.5e+08 G=6.90000e+08,5e+07,6e+08 "
            "U=0.300000,0.25,0.01 A=5.00000e-06,3e-05,0\n"
            "  NAME=013 TYPE=ISO IDES=N M=2500.00"))
        << text;
    EXPECT_EQ(deck.Line("FRAME SECTION", "002").Value("MAT"), "013");
}

TEST_F(SapStructure, ConstraintsOfEveryCode) {
    const std::pair<int, const char*> codes[] = {
        {4095, " TYPE=BODY "},        {1911, " TYPE=BODY "},         {2101, " TYPE=DIAPH AXIS=Z "},
        {53, " TYPE=DIAPH AXIS=Z "},  {1411, " TYPE=DIAPH AXIS=Y "}, {1283, " TYPE=DIAPH AXIS=Y "},
        {856, " TYPE=DIAPH AXIS=X "}, {848, " TYPE=DIAPH AXIS=X "},  {273, ""},
    };
    CVynData model = ModelOf({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    std::string expected = "CONSTRAINT\n  CSYS=0\n";
    int number = 0;
    for (const auto& [code, words] : codes) {
        Data::CRigid rigid;
        rigid.SetPrimaryNode(2);
        rigid.SetNodes({L"1 3", SelType::Node});
        rigid.SetType(code);
        model.SetRigid(number += 10, rigid);
        expected += "  NAME=00" + std::to_string(number / 10) + words +
                    "\n    ADD=2\n    ADD=1\n    ADD=3\n";
    }
    model.SetElem(3, Data::CElement(ElementType::Link, {1, 2}, 9));
    Data::CLinkProp link;
    link.SetType(53);
    model.SetLinkProp(1, link);
    model.SetElem(5, Data::CElement(ElementType::Link, {3, 2}, 1));
    Data::CJoint joint;
    joint.SetNodes(3, 1);
    joint.SetFreedom({true, false, true, false, false, true});
    model.SetJoint(8, joint);
    expected +=
        "  NAME=010 TYPE=BODY \n    ADD=1\n    ADD=2\n"
        "  NAME=011 TYPE=DIAPH AXIS=Z \n    ADD=3\n    ADD=2\n"
        "  NAME=012 TYPE=LOCAL\n    DOF=U1,U3,R3\n    ADD=3\n    ADD=1\nEND\n";
    WriteText(model);
    EXPECT_TRUE(Has(expected)) << text;
    EXPECT_EQ(writer.ErrorLog(),
              L"Note:           Rigid constraint 20 will loose its pin condition\n"
              L"Note:           Rigid constraint 40 will loose its pin condition\n"
              L"Note:           Rigid constraint 60 will loose its pin condition\n"
              L"Note:           Rigid constraint 80 will loose its pin condition");
}

}  // namespace
}  // namespace Tevra
