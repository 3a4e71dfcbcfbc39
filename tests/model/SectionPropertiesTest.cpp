#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "model/SecGeom.h"
#include "model/Section.h"
#include "model/VynData.h"

namespace Tevra::Data {
namespace {

struct Part {
    const wchar_t* description;
    double y;
    double z;
};

CSection SectionOf(const std::vector<Part>& parts) {
    std::vector<CSecComp> components(parts.size());
    for (std::size_t i = 0; i < parts.size(); ++i) {
        components[i].SetDescription(parts[i].description);
        components[i].SetPosition({parts[i].y, parts[i].z});
    }
    CSection section;
    section.SetComponents(std::move(components));
    return section;
}

void ExpectSame(const SectionProperties& a, const SectionProperties& b) {
    EXPECT_NEAR(a.area, b.area, 1e-14);
    EXPECT_NEAR(a.iyy, b.iyy, 1e-17);
    EXPECT_NEAR(a.izz, b.izz, 1e-17);
    EXPECT_NEAR(a.iyz, b.iyz, 1e-17);
}

TEST(SectionProperties, ComponentsMakeTheWhole) {
    const CSection angle =
        SectionOf({{L"STD%R%12%90", 0.0, -0.069}, {L"STD%R%138%10", -0.04, 0.006}});
    const CSecGeom whole(L"STD%A%150%90%10%12");
    ExpectSame(angle.Properties(), whole.Properties());
    EXPECT_NEAR(angle.Centroid().x, whole.Centroid().x, 1e-15);
    EXPECT_NEAR(angle.Centroid().y, whole.Centroid().y, 1e-15);
    EXPECT_NEAR(angle.VolPerL(), whole.Properties().area, 1e-16);
    EXPECT_NEAR(angle.Iyy(), whole.Properties().iyy, 1e-17);
    EXPECT_NEAR(angle.Izz(), whole.Properties().izz, 1e-18);
    EXPECT_NEAR(angle.Kyy(), 5.0 / 6.0, 1e-14);
    EXPECT_NEAR(
        angle.Properties().j,
        angle.Component(1).Geometry().Properties().j + angle.Component(2).Geometry().Properties().j,
        1e-20);
    EXPECT_EQ(angle.Properties(2), CSecGeom(L"STD%R%138%10").Properties());
}

TEST(SectionProperties, PartsThatDoNotExist) {
    const CSection one = SectionOf({{L"STD%R%300%200", 0.5, 0.5}});
    EXPECT_EQ(one.Properties(), one.Properties(1)) << "about its own centroid";
    EXPECT_EQ(one.Properties(2), SectionProperties{});
    EXPECT_EQ(one.Properties(-1), SectionProperties{});
    EXPECT_EQ(CSection().Properties(), SectionProperties{});
    EXPECT_EQ(CSection().Kyy(), 0.0);
    // A part without properties takes nothing away from the others.
    const CSection two = SectionOf({{L"STD%R%300%200", 0, 0}, {L"CAT%no%such", 1, 1}});
    ExpectSame(two.Properties(), one.Properties());
}

TEST(SectionProperties, ShearFactorsOfExplicitProperties) {
    const CSection section = SectionOf({{L"EXP%0.01%2e-5%3e-6%4e-7%0.5%0.25", 0, 0}});
    EXPECT_EQ(section.Kyy(), 0.5);
    EXPECT_EQ(section.Kzz(), 0.25);
}

TEST(SectionProperties, CopiesShareTheGeometry) {
    const CSection section = SectionOf({{L"STD%R%300%200", 0, 0}});
    const CSection copy = section;  // NOLINT(performance-unnecessary-copy-initialization)
    EXPECT_EQ(&copy.Component(1).Geometry(), &section.Component(1).Geometry());
    EXPECT_EQ(SectionOf({{L"STD%R%300%200", 0, 0}}), section) << "the description counts";
    EXPECT_FALSE(SectionOf({{L"STD%R%300%201", 0, 0}}) == section);
}

TEST(SectionProperties, OfTheModel) {
    CSection section = SectionOf({{L"STD%A%150%90%10%12", 0, 0}});
    section.SetModifiers({2.0, 3.0, 4.0, 0.25, 6.0, 7.0});
    CVynData model;
    model.SetSection(3, section);
    const SectionProperties plain = model.SectionProp(3, 0, 0.5, false);
    const SectionProperties modified = model.SectionProp(3, 0, 0.5, true);
    EXPECT_EQ(plain, CSecGeom(L"STD%A%150%90%10%12").Properties());
    EXPECT_EQ(modified.area, 2.0 * plain.area);
    EXPECT_EQ(modified.j, 3.0 * plain.j);
    EXPECT_EQ(modified.iyy, 4.0 * plain.iyy);
    EXPECT_EQ(modified.izz, 0.25 * plain.izz);
    EXPECT_EQ(modified.iyz, plain.iyz) << "the geometric mean of 4 and 1/4";
    EXPECT_EQ(modified.avy, 6.0 * plain.avy);
    EXPECT_EQ(modified.avz, 7.0 * plain.avz);
    EXPECT_EQ(model.SectionProp(3, 1, 0.0, true), modified);
    EXPECT_EQ(model.SectionProp(3, 2, 0.5, true), SectionProperties{});
    EXPECT_EQ(model.SectionProp(2, 0, 0.5, true), SectionProperties{});
    EXPECT_EQ(model.SectionProp(-1, 0, 0.5, false), SectionProperties{});
}

}  // namespace
}  // namespace Tevra::Data
