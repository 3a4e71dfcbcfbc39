#include <cmath>
#include <optional>

#include "model/LoadValues.h"
#include "sap/SapContext.h"
#include "sap/SapFile.h"

// Frame elements: ends, section, angle, offsets and releases.

namespace Tevra {

namespace {

/// The target's axes in the host's order: its axis 2 is the host's z and its axis 3 the host's y.
constexpr std::array<Direction, 6> kReleaseOrder{Direction::X,  Direction::Z,  Direction::Y,
                                                 Direction::XX, Direction::ZZ, Direction::YY};

/// The angle (rad) of a cosine. Round-off beyond 1 counts as 1; nothing for what is no cosine.
std::optional<double> ArcCos(double cosine) {
    constexpr double kMost = 1.000001;
    constexpr double kExact = 1e-10;
    if (!(std::abs(cosine) <= kMost)) {
        return std::nullopt;
    }
    if (std::abs(cosine) > 1.0 - kExact) {
        cosine = cosine > 0.0 ? 1.0 : -1.0;
    }
    return std::acos(cosine);
}

/// The angle (degrees) about the element that turns the target's own axis 2 into that of the
/// element. The target's own lies in the plane of the element and global Z, upwards; of vertical
/// elements along global X. The element's is the host's z, of vertical elements its opposite.
std::optional<double> FrameAngle(const CVynData& model, int element) {
    constexpr double kDegrees = 180.0 / 3.141592653589793;
    constexpr double kSense = -1e-10;
    const Util::CDirCos axes = model.ElemDC(element);
    const Vec3<double>& along = axes.AxisVec(0);
    const bool isVertical = model.ElemIsVertical(element);
    const Vec3<double> side =
        isVertical ? Vec3<double>{1.0, 0.0, 0.0} : Vec3<double>{0.0, 0.0, 1.0};
    const Vec3<double> own = Unit(side - along * Dot(side, along), side);
    const Vec3<double> actual = isVertical ? -axes.AxisVec(2) : axes.AxisVec(2);
    const std::optional<double> angle = ArcCos(Dot(own, actual));
    if (!angle) {
        return std::nullopt;
    }
    const bool isNegative = Dot(Cross(own, actual), along) < kSense;
    return (isNegative ? -*angle : *angle) * kDegrees;
}

void AddOffset(const CVynData& model, RecordText& line, std::string_view key, int element,
               int end) {
    const Vec3<double> local = model.ElemDC(element).GtoL(model.TotalGlobalOffset(element, end));
    line.Append(key).Padded(WithoutRoundOff(local).x);
}

}  // namespace

bool CSapFile::WriteFrames(SapContext& c) {
    c.out.Append("FRAME\n  CSYS=0 LOCAL=12\n");
    for (const int number : m_model->ElemTable().Numbers()) {
        if (c.WrittenIn(number) == SapBlock::Frame && !WriteFrame(c, number)) {
            return false;
        }
    }
    return true;
}

bool CSapFile::WriteFrame(SapContext& c, int element) {
    const Data::CElement& record = m_model->Elem(element);
    const std::optional<double> angle = FrameAngle(*m_model, element);
    if (!angle) {
        AddError(L"ArcCos: function value out of range");
        return false;
    }
    RecordText& line = c.line;
    line.Append("     ").Int(element);
    line.Append(" J=").Int(record.Topo(1)).Append(',').Int(record.Topo(2));
    line.Append(" SEC=").Int(SapProperty(*m_model, element), kNameDigits);
    line.Append(" ANG=").Padded(*angle);
    if (m_model->IsTotalOffset(element)) {
        AddOffset(*m_model, line, " IOFF=", element, 1);
        AddOffset(*m_model, line, " JOFF=", element, 2);
    }
    for (const int end : {1, 2}) {
        const Vbool6 released = record.Connect(end).Released();
        if (record.IsBeam() && !released.IsNone()) {
            line.Append(end == 1 ? " IREL=" : " JREL=");
            AddDofs(line, released, kReleaseOrder);
        }
    }
    End(c, L"Element", element);
    return true;
}

}  // namespace Tevra
