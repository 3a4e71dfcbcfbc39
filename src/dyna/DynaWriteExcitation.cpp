#include <algorithm>
#include <iterator>

#include "dyna/DynaAnalysis.h"
#include "dyna/DynaCards.h"
#include "dyna/DynaOut.h"
#include "model/VynData.h"

// Material curves, and what shakes the base.

namespace Tevra {

using namespace DynaCards;

namespace {

constexpr Direction kTranslations[] = {Direction::X, Direction::Y, Direction::Z};
constexpr int kTransient = 0;  ///< curves of the analysis itself, not of its dynamic relaxation

/// What the ordinates of a curve prescribe: 2 displacements, 0 velocities. Kept: curves of
/// accelerations go as 0 too, where the target has 1.
int MotionKind(const Data::CLoadCurve& curve) {
    return curve.TypeOf() == LoadCurveType::Displacement ? 2 : 0;
}

}  // namespace

/// The values stand in fields of ten, each behind a blank one, so that they lie in the fields of
/// twenty that a curve has.
bool CDynaAnalysis::WriteMaterialCurves() {
    for (const int number : m_model->MatCurveTable().Numbers()) {
        m_out->Card<kMaterialCurve>(number, kTransient);
        for (const Vec2<double>& point : m_model->MatCurve(number).Points()) {
            m_out->Line<kMaterialCurve, 1>(DynaBlank{}, point.x, DynaBlank{}, point.y);
        }
    }
    return true;
}

/// The curve that shakes a direction, 0 none.
int CDynaAnalysis::ExcitationCurve(Direction d) const {
    const int number = m_task->ExcitationNumber(d);
    const bool isShared = m_task->Excitation() == ExcitationOption::OneCurve;
    const int curve = number > 0 && isShared ? m_task->LoadCurve() : number;
    return number > 0 && m_model->LoadCurveExist(curve) ? curve : 0;
}

/// The curves of the task that exist, each once, in the order of the directions.
std::vector<int> CDynaAnalysis::ExcitationCurves() const {
    std::vector<int> curves;
    const auto add = [&](int curve) {
        if (m_model->LoadCurveExist(curve) &&
            std::find(curves.begin(), curves.end(), curve) == curves.end()) {
            curves.push_back(curve);
        }
    };
    if (m_task->Excitation() == ExcitationOption::OneCurve) {
        add(m_task->LoadCurve());
    } else {
        for (const Direction d : kTranslations) {
            add(m_task->ExcitationNumber(d));
        }
    }
    return curves;
}

void CDynaAnalysis::WriteExcitationCurve(int curve) {
    m_out->Card<kLoadCurve>(static_cast<long long>(m_model->HighestMatCurve()) + curve, kTransient);
    for (const Vec2<double>& point : m_model->LoadCurve(curve).Points()) {
        m_out->Line<kLoadCurve, 1>(point.x, point.y);
    }
}

bool CDynaAnalysis::WriteExcitation() {
    const ExcitationOption option = m_task->Excitation();
    if (option != ExcitationOption::OneCurve && option != ExcitationOption::CurvePerDirection) {
        return true;
    }
    for (const int curve : ExcitationCurves()) {
        WriteExcitationCurve(curve);
    }
    m_out->Keyword(kPrescribedMotion);
    if (std::none_of(std::begin(kTranslations), std::end(kTranslations),
                     [this](Direction d) { return ExcitationCurve(d) != 0; })) {
        AddNote(L"The excitation drives nothing: no direction has a curve that exists");
    }
    for (const int node : Listed(m_task->BaseList(), SelType::Node)) {
        for (const Direction d : kTranslations) {
            if (const int curve = ExcitationCurve(d); curve != 0) {
                m_out->Line<kPrescribedMotion>(
                    node, static_cast<int>(d) + 1, MotionKind(m_model->LoadCurve(curve)),
                    static_cast<long long>(m_model->HighestMatCurve()) + curve);
            }
        }
    }
    return true;
}

}  // namespace Tevra
