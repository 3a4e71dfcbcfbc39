#include "model/ModelData.h"

#include <atomic>

namespace Tevra {

#define VYN_MAKE_TABLE_CLASS(Kind, Record) template class NumberedTable<Record>;
#define VYN_MADE_ALREADY(Kind, Record)
VYN_RECORD_KINDS_OF(VYN_MAKE_TABLE_CLASS, VYN_MADE_ALREADY)
#undef VYN_MAKE_TABLE_CLASS
#undef VYN_MADE_ALREADY

template <class Record>
bool CModelData::Store(NumberedTable<Record>& table, int number, Record record) {
    Touch();
    if (number < 1) {
        return false;
    }
    BeforeStore(number, record);
    return table.Set(number, std::move(record));
}

template <class Record>
bool CModelData::Remove(NumberedTable<Record>& table, int number) {
    Touch();
    if (const Record* record = table.Find(number)) {
        BeforeRemove(*record);
    }
    return table.Erase(number);
}

#define VYN_DEFINE_OPERATIONS(Kind, Record)                 \
    bool CModelData::Set##Kind(int number, Record record) { \
        return Store(m_##Kind, number, std::move(record));  \
    }                                                       \
    bool CModelData::Delete##Kind(int number) {             \
        return Remove(m_##Kind, number);                    \
    }                                                       \
    bool CModelData::Blank##Kind(int number) {              \
        return Remove(m_##Kind, number);                    \
    }
VYN_RECORD_KINDS(VYN_DEFINE_OPERATIONS)
#undef VYN_DEFINE_OPERATIONS

void CModelData::Touch() {
    static std::atomic<std::uint64_t> last{0};
    m_revision = ++last;
}

void CModelData::SetGlobalRestraint(Vbool6 restraint) {
    Touch();
    m_globalRestraint = restraint;
    for (const int number : m_Node.Numbers()) {
        m_Node.Find(number)->m_globalRestraint = restraint;
    }
}

const NumberedTable<Data::CMatDesign>* CModelData::DesignTable(MatType family) const {
    switch (family) {
        case MatType::Concrete:
            return &m_MatConcrete;
        case MatType::Steel:
            return &m_MatSteel;
        case MatType::Frp:
            return &m_MatFrp;
        case MatType::Aluminium:
            return &m_MatAluminium;
        case MatType::Glass:
            return &m_MatGlass;
        case MatType::Timber:
            return &m_MatTimber;
        case MatType::Fabric:
            return &m_MatFabric;
        case MatType::Rebar:
            return &m_MatRebar;
        case MatType::Generic:
            break;
    }
    return nullptr;
}

const Data::CMatAnal* CModelData::FindMaterial(const Data::MaterialChoice& choice) const {
    if (choice.analysis != 0) {
        return m_MatAnal.Find(choice.analysis);
    }
    const auto* grades = DesignTable(choice.type);
    const Data::CMatDesign* grade = grades != nullptr ? grades->Find(choice.grade) : nullptr;
    return grade != nullptr ? &grade->MatAnal() : nullptr;
}

bool CModelData::operator==(const CModelData& o) const {
#define VYN_SAME_TABLE(Kind, Record) &&m_##Kind == o.m_##Kind
    return m_titles == o.m_titles && m_progTitles == o.m_progTitles && m_location == o.m_location &&
           m_history == o.m_history && m_design == o.m_design && m_currency == o.m_currency &&
           m_units == o.m_units && m_structType == o.m_structType &&
           m_globalRestraint == o.m_globalRestraint && m_mass == o.m_mass &&
           m_raft == o.m_raft VYN_RECORD_KINDS(VYN_SAME_TABLE);
#undef VYN_SAME_TABLE
}

void CModelData::ApplyOrientation(Data::CNode& node, const OrientationUse& use) {
    node.m_orientsElements = use.elements > 0;
    node.m_orientsMembers = use.members > 0;
}

void CModelData::CountOrientation(int node, int OrientationUse::*kind, int change) {
    if (node < 1) {
        return;
    }
    OrientationUse& use = m_orientation[node];
    use.*kind += change;
    if (Data::CNode* record = m_Node.Find(node)) {
        ApplyOrientation(*record, use);
    }
    if (use.elements == 0 && use.members == 0) {
        m_orientation.erase(node);
    }
}

void CModelData::BeforeStore(int number, Data::CNode& node) {
    node.m_globalRestraint = m_globalRestraint;
    const auto found = m_orientation.find(number);
    ApplyOrientation(node, found != m_orientation.end() ? found->second : OrientationUse{});
}

void CModelData::BeforeStore(int number, Data::CElement& element) {
    if (const Data::CElement* former = m_Elem.Find(number)) {
        BeforeRemove(*former);
    }
    CountOrientation(element.OrientationNode(), &OrientationUse::elements, 1);
}

void CModelData::BeforeStore(int number, Data::CMember& member) {
    if (const Data::CMember* former = m_Member.Find(number)) {
        BeforeRemove(*former);
    }
    CountOrientation(member.OrientationNode(), &OrientationUse::members, 1);
}

void CModelData::BeforeRemove(const Data::CElement& element) {
    CountOrientation(element.OrientationNode(), &OrientationUse::elements, -1);
}

void CModelData::BeforeRemove(const Data::CMember& member) {
    CountOrientation(member.OrientationNode(), &OrientationUse::members, -1);
}

}  // namespace Tevra
