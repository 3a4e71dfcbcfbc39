#include <gtest/gtest.h>

#include "opensees/OpsFibres.h"

namespace Tevra {
namespace {

SectionProperties PropertiesOf(const std::vector<FibrePatch>& patches) {
    SectionProperties sum;
    for (const FibrePatch& p : patches) {
        const double b = p.high.x - p.low.x;
        const double h = p.high.y - p.low.y;
        const double y = 0.5 * (p.low.x + p.high.x);
        const double z = 0.5 * (p.low.y + p.high.y);
        sum.area += b * h;
        sum.iyy += b * h * h * h / 12.0 + b * h * z * z;
        sum.izz += h * b * b * b / 12.0 + b * h * y * y;
        sum.iyz += b * h * y * z;
    }
    return sum;
}

TEST(OpsFibres, PatchesHaveThePropertiesOfTheShape) {
    const wchar_t* const shapes[] = {
        L"STD%R%400%200",
        L"STD%RHS%400%200%8%12",
        L"STD%I%500%200%12%20",
        L"STD%CH%300%100%8%12",
        L"STD%T%300%150%8%12",
        L"STD%A%100%80%10%8",
        L"STD%GI%500%200%300%12%20%25",
    };
    for (const wchar_t* description : shapes) {
        const Data::CSecGeom geometry{description};
        const SectionProperties& exact = geometry.Properties();
        ASSERT_TRUE(HasFibreShape(geometry));
        const SectionProperties sum = PropertiesOf(RectangularPatches(geometry));
        EXPECT_NEAR(sum.area / exact.area, 1.0, 1e-9) << geometry.ShapeFlags();
        EXPECT_NEAR(sum.iyy / exact.iyy, 1.0, 1e-9) << geometry.ShapeFlags();
        EXPECT_NEAR(sum.izz / exact.izz, 1.0, 1e-9) << geometry.ShapeFlags();
        EXPECT_NEAR(sum.iyz, exact.iyz, 1e-9 * exact.iyy) << geometry.ShapeFlags();
    }
}

TEST(OpsFibres, RoundShapesAreRings) {
    FibreRing ring;
    ASSERT_TRUE(IsRound(Data::CSecGeom(L"STD%C%100"), ring));
    EXPECT_DOUBLE_EQ(ring.inner, 0.0);
    EXPECT_DOUBLE_EQ(ring.outer, 0.05);
    EXPECT_EQ(ring.radial, 8);
    ASSERT_TRUE(IsRound(Data::CSecGeom(L"STD%CHS%100%10"), ring));
    EXPECT_DOUBLE_EQ(ring.inner, 0.04);
    EXPECT_EQ(ring.radial, 4);
    EXPECT_EQ(ring.around, 16);
}

TEST(OpsFibres, OtherShapesHaveNone) {
    for (const wchar_t* description : {L"EXP%0.01%1%1%1", L"", L"STD%Z%300%100%8%12"}) {
        EXPECT_FALSE(HasFibreShape(Data::CSecGeom(description)));
        EXPECT_TRUE(RectangularPatches(Data::CSecGeom(description)).empty());
    }
}

}  // namespace
}  // namespace Tevra
