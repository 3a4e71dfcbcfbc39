#include "draw/DrawingView.h"

#include <cmath>

namespace Tevra {

namespace {

constexpr Vec3<double> kX{1.0, 0.0, 0.0};
constexpr Vec3<double> kY{0.0, 1.0, 0.0};
constexpr Vec3<double> kZ{0.0, 0.0, 1.0};

}  // namespace

Util::CDirCos AxesOf(DrawingView view) {
    switch (view) {
        case DrawingView::Plan:
            return {kX, kY, kZ};
        case DrawingView::XZ:
            return {kX, kZ, -kY};
        case DrawingView::YZ:
            return {kY, kZ, kX};
        default: {
            const Vec3<double> right = Unit({1.0, 1.0, 0.0}, kX);
            const Vec3<double> towards = Unit({1.0, -1.0, 1.0}, kZ);
            return {right, Cross(towards, right), towards};
        }
    }
}

double AxisScaleOf(DrawingView view) {
    return IsPlane(view) ? 1.0 : std::sqrt(2.0 / 3.0);
}

std::wstring_view NameOf(DrawingView view) {
    switch (view) {
        case DrawingView::Plan:
            return L"plan";
        case DrawingView::XZ:
            return L"elevation X-Z";
        case DrawingView::YZ:
            return L"elevation Y-Z";
        default:
            return L"isometric view";
    }
}

}  // namespace Tevra
