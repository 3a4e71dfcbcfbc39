#include "model/SpanLoadIndex.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

#include "model/LoadValues.h"
#include "model/SpanFrame.h"
#include "model/Util.h"
#include "model/VynData.h"

namespace Tevra {

SpanLoadIndex::SpanLoadIndex(const CVynData& model) : m_model(&model) {
    FindCases();
    FindMembers();
    FindBeamLoads();
    FindGravity();
}

double SpanLoadIndex::CaseFactors::Of(int loadCase) const {
    const auto found =
        std::lower_bound(factors.begin(), factors.end(), loadCase,
                         [](const CaseDescPart::Load& load, int n) { return load.loadCase < n; });
    return found != factors.end() && found->loadCase == loadCase ? found->factor : 0.0;
}

void SpanLoadIndex::FindCases() {
    for (const int number : m_model->AnalysisCaseTable().Numbers()) {
        const CAnalysisCase& record = m_model->AnalysisCase(number);
        const CAnalysisTask& task = m_model->AnalysisTask(record.Task());
        CaseFactors found;
        found.stage = task.Stage();
        if (task.IsStatic() && record.Desc().Mode() == 0) {
            found.factors = record.Desc().Factors(0);
        }
        m_cases.Set(number, std::move(found));
    }
}

/// Lists of members mean the elements that were made of them.
void SpanLoadIndex::FindMembers() {
    if (m_model->NumMember() == 0) {
        return;
    }
    for (const int number : m_model->ElemTable().Numbers()) {
        const Data::CElement& element = m_model->Elem(number);
        if (element.Is1D() && element.ParentMember() > 0) {
            m_memberElements.emplace_back(element.ParentMember(), number);
        }
    }
    std::sort(m_memberElements.begin(), m_memberElements.end());
}

template <class Use>
void SpanLoadIndex::ForEachElement(const CEntList& list, Use use) const {
    const CBitSet items = Util::Item(list, *m_model, -1, true);
    if (list.TypeOf() == SelType::Element) {
        items.ForEach([&](int number) {
            if (m_model->Elem(number).Is1D()) {
                use(number);
            }
        });
    } else if (list.TypeOf() == SelType::Member) {
        items.ForEach([&](int member) {
            auto found = std::lower_bound(m_memberElements.begin(), m_memberElements.end(),
                                          std::pair(member, 0));
            for (; found != m_memberElements.end() && found->first == member; ++found) {
                use(found->second);
            }
        });
    }
}

// Loads are counted by element first and laid down then, so that no more is held than what stays.
void SpanLoadIndex::FindBeamLoads() {
    const auto& loads = m_model->BeamLoadTable();
    for (const int number : loads.Numbers()) {
        ForEachElement(loads.Get(number).LoadedEntities(), [this](int element) {
            if (Range* range = m_ranges.Find(element)) {
                ++range->count;
            } else {
                m_ranges.Set(element, {0, 1});
            }
        });
    }
    std::uint32_t total = 0;
    for (const int element : m_ranges.Numbers()) {
        Range& range = *m_ranges.Find(element);
        range.first = total;
        total += range.count;
        range.count = 0;
    }
    m_beamLoads.resize(total);
    for (const int number : loads.Numbers()) {
        ForEachElement(loads.Get(number).LoadedEntities(), [this, number](int element) {
            Range& range = *m_ranges.Find(element);
            m_beamLoads[range.first + range.count++] = number;
        });
    }
}

void SpanLoadIndex::FindGravity() {
    for (const int number : m_model->GravityLoadTable().Numbers()) {
        const Data::CGravityLoad& load = m_model->GravityLoad(number);
        Gravity found{load.LoadCase(), load.Value(), CBitSet(m_model->HighestElem())};
        ForEachElement(load.LoadedEntities(),
                       [&found](int element) { found.elements.Set(element); });
        m_gravity.push_back(std::move(found));
    }
}

namespace {

double Metres(const Data::LoadPoint& point, double length) {
    return point.isFraction ? point.position * length : point.position;
}

void AddBeamLoad(const Data::CBeamLoad& load, const Vec3<double>& unit, double length,
                 SpanLoads& loads) {
    if (load.TypeOf() == BeamLoadType::Point) {
        loads.AddPoint(Metres(load.Point(1), length), unit * load.Value(1), length);
        return;
    }
    const int last = load.TypeOf() == BeamLoadType::Trilinear ? 4 : 2;
    for (int k = 1; k < last; ++k) {
        loads.AddPiece({Metres(load.Point(k), length), Metres(load.Point(k + 1), length),
                        unit * load.Value(k), unit * load.Value(k + 1)},
                       length);
    }
}

}  // namespace

void SpanLoadIndex::AddLoads(const SpanFrame& frame, int analysisCase, SpanLoads& forces,
                             SpanLoads& moments) const {
    const CaseFactors& factors = m_cases.Get(analysisCase);
    if (factors.factors.empty()) {
        return;
    }
    const Range range = m_ranges.Get(frame.element);
    for (const int number : std::span(m_beamLoads).subspan(range.first, range.count)) {
        const Data::CBeamLoad& load = m_model->BeamLoad(number);
        const double factor = factors.Of(load.LoadCase());
        if (factor != 0.0) {
            AddBeamLoad(load, UnitBeamLoad(*m_model, load, frame.axes, frame.middle) * factor,
                        frame.length, IsTrans(load.GetDirection()) ? forces : moments);
        }
    }
    Vec3<double> pull;
    for (const Gravity& gravity : m_gravity) {
        const double factor = factors.Of(gravity.loadCase);
        if (factor != 0.0 && gravity.elements.Test(frame.element)) {
            pull = pull + gravity.value * (factor * kGravity);
        }
    }
    if (frame.massPerLength != 0.0 && !(pull == Vec3<double>{})) {
        const Vec3<double> weight = frame.axes.GtoL(pull) * frame.massPerLength;
        forces.AddPiece({0.0, frame.length, weight, weight}, frame.length);
    }
}

}  // namespace Tevra
