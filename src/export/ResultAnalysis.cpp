#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "export/AssemblyWork.h"
#include "export/LineWork.h"
#include "export/VynExport.h"

// The results of one entity in one case: what is read of each analysis case, and where it goes in
// the record.
namespace Tevra::Export {

namespace {

/// A run of pairs of a record that is read when a flag is set.
template <class Flags>
struct RecordPart {
    bool Flags::*flag;
    std::size_t first;
    std::size_t count;
};

constexpr std::array<RecordPart<NodeFlags>, 5> kNodeParts{{
    {&NodeFlags::displacement, 0, 6},
    {&NodeFlags::velocity, 6, 6},
    {&NodeFlags::acceleration, 12, 6},
    {&NodeFlags::reaction, 18, 6},
    {&NodeFlags::constraint, 24, 6},
}};
/// Springs and 1D elements.
constexpr std::array<RecordPart<ElementFlags>, 2> kLineParts{{
    {&ElementFlags::displacement, 0, 3},
    {&ElementFlags::force, 3, 6},
}};
constexpr std::array<RecordPart<ElementFlags>, 3> k2DParts{{
    {&ElementFlags::displacement, 0, 3},
    {&ElementFlags::force, 3, 8},
    {&ElementFlags::stress, 11, 18},
}};
constexpr std::array<RecordPart<ElementFlags>, 2> k3DParts{{
    {&ElementFlags::displacement, 0, 3},
    {&ElementFlags::stress, 3, 6},
}};

constexpr std::array<RecordPart<ElementFlags>, 2> kAssemblyParts{{
    {&ElementFlags::displacement, 0, 9},
    {&ElementFlags::force, 9, 6},
}};

/// Puts figures one after the other.
class FigureSink {
public:
    explicit FigureSink(std::span<double> figures) : m_figures(figures) {}
    void Put(double value) { m_figures[m_next++] = value; }
    void Put(const Vec2<double>& v) {
        Put(v.x);
        Put(v.y);
    }
    void Put(const Vec3<double>& v) {
        Put(v.x);
        Put(v.y);
        Put(v.z);
    }
    void Put(const Tens2<double>& t) {
        Put(t.xx);
        Put(t.yy);
        Put(t.xy);
    }
    void Put(const TensSym3<double>& t) {
        for (const double component : {t.xx, t.yy, t.zz, t.xy, t.yz, t.zx}) {
            Put(component);
        }
    }

private:
    std::span<double> m_figures;
    std::size_t m_next = 0;
};

/// Works out the parts of all records of a set that the flags ask for. `read(ref, sink)` puts those
/// of an analysis case, record by record, in the order of the pairs.
template <class Flags, std::size_t N, class Set, class Read>
void Analyse(CaseFigures& figures, const Flags& flags,
             const std::array<RecordPart<Flags>, N>& parts, Set& set, Read read) {
    if (!figures.IsCase()) {
        return;
    }
    std::size_t width = 0;
    for (const RecordPart<Flags>& part : parts) {
        width += flags.*part.flag ? part.count : 0;
    }
    const auto records = set.Records();
    figures.Evaluate(width * records.size(), [&read](int analysisCase, std::span<double> row) {
        FigureSink sink(row);
        read(AnalysisRef(analysisCase), sink);
    });
    std::size_t next = 0;
    for (auto& record : records) {
        for (const RecordPart<Flags>& part : parts) {
            for (std::size_t i = 0; flags.*part.flag && i < part.count; ++i, ++next) {
                record[part.first + i] = {figures.Values()[next], figures.Permutations()[next]};
            }
        }
    }
}

}  // namespace

CaseFigures& CVynExport::FiguresOf(const SCaseRef& ref) {
    if (m_figures == nullptr || !m_figures->Holds(*m_model, ref)) {
        m_figures = std::make_unique<CaseFigures>(*m_model, ref);
    }
    return *m_figures;
}

void CVynExport::ResultAnalysis(int node, const NodeFlags& flags, const SCaseRef& ref,
                                NodeSet& set) {
    const CVynData& model = *m_model;
    Analyse(FiguresOf(ref), flags, kNodeParts, set, [&](const SCaseRef& own, FigureSink& sink) {
        if (flags.displacement) {
            sink.Put(model.Disp(node, own));
            sink.Put(model.Rotn(node, own));
        }
        if (flags.velocity) {
            sink.Put(model.Vel(node, own));
            sink.Put(model.RotVel(node, own));
        }
        if (flags.acceleration) {
            sink.Put(model.Acc(node, own));
            sink.Put(model.RotAcc(node, own));
        }
        if (flags.reaction) {
            sink.Put(model.ReactForce(node, own));
            sink.Put(model.ReactMoment(node, own));
        }
        if (flags.constraint) {
            sink.Put(model.ConsForce(node, own));
            sink.Put(model.ConsMoment(node, own));
        }
    });
}

// The displacement is that of each end, the force the same at both.
void CVynExport::ResultAnalysis(const SEntRef& spring, const ElementFlags& flags,
                                const SCaseRef& ref, SpringSet& set) {
    const CVynData& model = *m_model;
    const bool atNode = spring.type == SelType::Node;
    Analyse(FiguresOf(ref), flags, kLineParts, set, [&](const SCaseRef& own, FigureSink& sink) {
        for (std::size_t i = 0; i < set.NumPosition(); ++i) {
            const int end = static_cast<int>(i) + 1;
            if (flags.displacement) {
                sink.Put(
                    model.Disp(atNode ? spring.number : model.Elem(spring.number).Topo(end), own));
            }
            if (flags.force) {
                sink.Put(model.ForceSpring(spring, own, 0));
                sink.Put(model.MomentSpring(spring, own, 0));
            }
        }
    });
}

void CVynExport::ResultAnalysis(int element, const ElementFlags& flags, const SCaseRef& ref,
                                Elem1DSet& set) {
    const LineWork& line = Line();
    Analyse(FiguresOf(ref), flags, kLineParts, set, [&](const SCaseRef& own, FigureSink& sink) {
        Calc1DIntermediateResults(element, own, flags, set);
        for (int k = 0; k < static_cast<int>(set.NumPosition()); ++k) {
            if (flags.displacement) {
                sink.Put(line.displacement.Tran(k));
            }
            if (flags.force) {
                sink.Put(line.force.Tran(k));
                sink.Put(line.force.Rot(k));
            }
        }
    });
}

void CVynExport::ResultAnalysis(int element, const ElementFlags& flags, const SCaseRef& ref,
                                Elem2DSet& set) {
    const CVynData& model = *m_model;
    // Elements that do not bend have one layer, which stands for all three.
    const int top = Stress2DNumLayer(element) - 1;
    Analyse(FiguresOf(ref), flags, k2DParts, set, [&](const SCaseRef& own, FigureSink& sink) {
        for (std::size_t i = 0; i < set.NumPosition(); ++i) {
            const int position = static_cast<int>(i);
            if (flags.displacement) {
                sink.Put(model.ElemDisp(element, own, position));
            }
            if (flags.force) {
                sink.Put(model.Force2D(element, own, position));
                sink.Put(model.Moment2D(element, own, position));
                sink.Put(model.Shear2D(element, own, position));
            }
            for (const int layer : {top, top / 2, 0}) {
                if (flags.stress) {
                    sink.Put(model.Stress2D(element, own, position, layer));
                }
            }
        }
    });
}

void CVynExport::ResultAnalysis(int element, const ElementFlags& flags, const SCaseRef& ref,
                                Elem3DSet& set) {
    const CVynData& model = *m_model;
    Analyse(FiguresOf(ref), flags, k3DParts, set, [&](const SCaseRef& own, FigureSink& sink) {
        for (std::size_t i = 0; i < set.NumPosition(); ++i) {
            const int position = static_cast<int>(i);
            if (flags.displacement) {
                sink.Put(model.ElemDisp(element, own, position));
            }
            if (flags.stress) {
                sink.Put(model.Stress3D(element, own, position));
            }
        }
    });
}

// The drift is against the cut before; the first has none.
void CVynExport::ResultAnalysis(int assembly, const ElementFlags& flags, const SCaseRef& ref,
                                AssemblySet& set) {
    const std::vector<Util::CAssemblyCalc>& cuts = CutsOf(assembly);
    set.Resize(cuts.size());
    Analyse(FiguresOf(ref), flags, kAssemblyParts, set, [&](const SCaseRef& own, FigureSink& sink) {
        Vec3<double> below;
        for (std::size_t i = 0; i < cuts.size(); ++i) {
            if (flags.displacement) {
                const InterResult movement = cuts[i].CalcDisp(own);
                sink.Put(movement.tran);
                sink.Put(movement.rot);
                sink.Put(cuts[i].Drift(movement.tran, cuts[i > 0 ? i - 1 : 0], below));
                below = movement.tran;
            }
            if (flags.force) {
                const InterResult force = cuts[i].CalcForce(own);
                sink.Put(force.tran);
                sink.Put(force.rot);
            }
        }
    });
}

Vec2<double> CVynExport::Position2D(int element, int position) const {
    const Vec3<double> natural = m_model->ResultPosition(element, position);
    return {natural.x, natural.y};
}

Vec3<double> CVynExport::Position3D(int element, int position) const {
    return m_model->ResultPosition(element, position);
}

}  // namespace Tevra::Export
