#include "model/Axis.h"

namespace Tevra::Data {

namespace {

constexpr Vec3<double> kY{0.0, 1.0, 0.0};
constexpr Vec3<double> kZ{0.0, 0.0, 1.0};
/// Sine of the angle to x below which a direction lies along it.
constexpr double kAlong = 1e-9;

}  // namespace

Vec3<double> CAxis::ZAxis() const {
    const Vec3<double> x = XAxis();
    const Vec3<double> normal = Cross(x, Unit(m_xyPlane, kY));
    if (Length(normal) > kAlong) {
        return Unit(normal, kZ);
    }
    // A plane direction along x fixes nothing: global Y stands in for it, or Z when Y is x too.
    return Unit(Cross(x, std::fabs(x.y) < 0.9 ? kY : kZ), kZ);
}

}  // namespace Tevra::Data
