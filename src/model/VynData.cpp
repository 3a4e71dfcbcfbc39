#include "model/VynData.h"

#include <algorithm>
#include <limits>

#include "model/VynDerived.h"

namespace Tevra {

CVynData::CVynData()
    : m_modelBusy(std::make_unique<SyncObject>()), m_resultsBusy(std::make_unique<SyncObject>()) {}

CVynData::CVynData(const CVynData& o) : CVynData() {
    *this = o;
}

// Makes the locks of the new model, which may throw as any allocation may.
CVynData::CVynData(CVynData&& o) : CVynData() {  // NOLINT(performance-noexcept-move-constructor)
    *this = std::move(o);
}

CVynData::~CVynData() = default;

CVynData& CVynData::operator=(const CVynData& o) {
    if (this != &o) {
        CModelData::operator=(o);
        m_results = o.m_results;
        m_dataLock = o.m_dataLock;
        m_derived.reset();
    }
    return *this;
}

CVynData& CVynData::operator=(CVynData&& o) noexcept {
    if (this != &o) {
        CModelData::operator=(static_cast<CModelData&&>(o));  // that part of it alone
        m_results = std::move(o.m_results);
        m_dataLock = o.m_dataLock;
        m_derived.reset();
        static const CVynData kEmpty;
        o = kEmpty;  // NOLINT(bugprone-use-after-move): what was moved from is an empty model,
                     // whole and usable
    }
    return *this;
}

DerivedData& CVynData::Derived() const {
    if (!m_derived || m_derived->revision != Revision()) {
        m_derived = std::make_unique<DerivedData>();
        m_derived->revision = Revision();
    }
    return *m_derived;
}

int CVynData::HighestEnt(SelType kind) const {
    switch (kind) {
        case SelType::Node:
            return HighestNode();
        case SelType::Element:
            return HighestElem();
        case SelType::Member:
            return HighestMember();
        case SelType::Assembly:
            return HighestAssembly();
        case SelType::GridPlane:
            return HighestGridPlane();
        case SelType::LoadCase:
            return HighestLoadCase();
        case SelType::Case:
            return std::max(HighestAnalysisCase(), HighestCombinationCase());
        case SelType::Mode: {
            int highest = 0;
            for (const int number : AnalysisCaseTable().Numbers()) {
                highest = std::max(highest, Mode(AnalysisRef(number)));
            }
            return highest;
        }
        default:
            return 0;
    }
}

bool CVynData::EntExist(const SEntRef& entity) const {
    switch (entity.type) {
        case SelType::Node:
            return NodeExist(entity.number);
        case SelType::Element:
            return ElemExist(entity.number);
        case SelType::Member:
            return MemberExist(entity.number);
        case SelType::Assembly:
            return AssemblyExist(entity.number);
        case SelType::GridPlane:
            return GridPlaneExist(entity.number);
        case SelType::LoadCase:
            return LoadCaseExist(entity.number);
        case SelType::Case:
            return AnalysisCaseExist(entity.number) || CombinationCaseExist(entity.number);
        default:
            return entity.number >= 1;
    }
}

int CVynData::NumEnt(SelType kind, bool activeOnly) const {
    const auto count = [](const auto& table, auto counts) {
        const auto numbers = table.Numbers();
        return static_cast<int>(std::count_if(numbers.begin(), numbers.end(), counts));
    };
    switch (kind) {
        case SelType::Node:
            return NumNode();
        case SelType::Element:
            return activeOnly ? count(ElemTable(), [this](int n) { return !Elem(n).IsDummy(); })
                              : NumElem();
        case SelType::Member:
            return activeOnly ? count(MemberTable(), [this](int n) { return !Member(n).IsDummy(); })
                              : NumMember();
        case SelType::Case:
            return activeOnly ? count(AnalysisCaseTable(),
                                      [this](int n) { return AnalysisCaseHasResults(n); }) +
                                    count(CombinationCaseTable(),
                                          [this](int n) { return CombinationCaseHasResults(n); })
                              : NumAnalysisCase() + NumCombinationCase();
        case SelType::Assembly:
            return NumAssembly();
        case SelType::GridPlane:
            return NumGridPlane();
        case SelType::LoadCase:
            return LoadCases().Count();
        default:
            return 0;
    }
}

int CVynData::NumElemType(ElementType type) const {
    int count = 0;
    for (const int number : ElemTable().Numbers()) {
        count += Elem(number).Type() == type ? 1 : 0;
    }
    return count;
}

namespace {

template <class Load>
void AddCasesOf(const NumberedTable<Load>& loads, NumberedTable<bool>& cases) {
    for (const int number : loads.Numbers()) {
        cases.Set(loads.Find(number)->LoadCase(), true);
    }
}

}  // namespace

#define VYN_LOAD_TABLES(USE) \
    USE(NodeLoad)            \
    USE(Settlement)          \
    USE(AppliedDisplacement) \
    USE(BeamLoad)            \
    USE(BeamDist)            \
    USE(AxialLoad)           \
    USE(BeamThermalLoad)     \
    USE(FaceLoad)            \
    USE(EdgeLoad)            \
    USE(InPlaneLoad)         \
    USE(FaceThermalLoad)     \
    USE(GravityLoad)

const NumberedTable<bool>& CVynData::LoadCases() const {
    DerivedData& derived = Derived();
    if (!derived.hasLoadCases) {
        for (const int number : LoadCaseTitleTable().Numbers()) {
            derived.loadCases.Set(number, true);
        }
#define VYN_ADD(Kind) AddCasesOf(Kind##Table(), derived.loadCases);
        VYN_LOAD_TABLES(VYN_ADD)
#undef VYN_ADD
        derived.hasLoadCases = true;
    }
    return derived.loadCases;
}

#undef VYN_LOAD_TABLES

const SpanLoadIndex& CVynData::SpanLoadsByElement() const {
    DerivedData& derived = Derived();
    if (!derived.spanLoads) {
        derived.spanLoads = std::make_unique<const SpanLoadIndex>(*this);
    }
    return *derived.spanLoads;
}

std::span<const std::pair<int, int>> CVynData::ElementsOfMember(int member) const {
    DerivedData& derived = Derived();
    auto& all = derived.memberElements;
    if (!derived.hasMemberElements) {
        all.clear();
        for (const int number : ElemTable().Numbers()) {
            if (const int parent = Elem(number).ParentMember(); parent != 0) {
                all.emplace_back(parent, number);
            }
        }
        std::sort(all.begin(), all.end());
        derived.hasMemberElements = true;
    }
    const auto first = std::lower_bound(all.begin(), all.end(), std::pair(member, 0));
    const auto last =
        std::upper_bound(first, all.end(), std::pair(member, std::numeric_limits<int>::max()));
    return {first, last};
}

int CVynData::HighestLoadCase() const {
    return LoadCases().Highest();
}

bool CVynData::LoadCaseExist(int loadCase) const {
    return LoadCases().Exist(loadCase);
}

}  // namespace Tevra
