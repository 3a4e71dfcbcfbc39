#include "model/Axis.h"

namespace Tevra::Data {

Vec3<double> CAxis::ZAxis() const {
    const Vec3<double> x = XAxis();
    // A plane direction along x fixes nothing: the global axis least along x stands in for it.
    const Vec3<double> other =
        std::fabs(x.z) < 0.9 ? Vec3<double>{0.0, 0.0, 1.0} : Vec3<double>{0.0, 1.0, 0.0};
    return Unit(Cross(x, Unit(m_xyPlane, other)), Unit(Cross(x, other), other));
}

}  // namespace Tevra::Data
