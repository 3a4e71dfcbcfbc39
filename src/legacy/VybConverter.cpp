#include "legacy/VybConverter.h"

#include "legacy/VybStream.h"
#include "model/VynData.h"

namespace Tevra {

namespace {

constexpr std::uint64_t kTableHeader = 8;

}  // namespace

CVybConverter::CVybConverter(CVybStream& stream, const VybHeader& header,
                             const CVybDirectory& directory, CVynData& model)
    : m_stream(stream),
      m_header(header),
      m_directory(directory),
      m_model(model),
      m_spread(stream.Size()) {}

bool CVybConverter::Records(const CUnit& units) {
    using C = CVybConverter;
    using D = CVybDirectory;
    static constexpr Kind kKinds[] = {
        {D::kEntityLists, 176, &C::TakeList},
        {D::kAxes, 44, &C::TakeAxis},
        {D::kMaterials, 24, &C::TakeMaterial},
        {D::kSections, 68, &C::TakeSection},
        {D::kSprings, 32, &C::TakeSpring, &C::FinishSprings},
        {D::kMasses, 36, &C::TakeMass},
        {D::kProps2D, 20, &C::TakeProp2D},
        {D::kRigids, 16, &C::TakeRigid},
        {D::kNodes, 32, &C::TakeNode},
        {D::kElements, 88, &C::TakeElement, &C::FinishElements},
        {D::kGravityLoads, 20, &C::TakeGravityLoad},
        {D::kNodeLoads, 20, &C::TakeNodeLoad},
        {D::kSettlements, 20, &C::TakeSettlement},
        {D::kBeamLoads, 52, &C::TakeBeamLoad},
        {D::kFaceLoads, 40, &C::TakeFaceLoad},
        {D::kThermalLoads, 20, &C::TakeThermalLoad},
    };
    m_model.SetUnits(units);
    for (const Kind& kind : kKinds) {
        if (!Convert(kind)) {
            return false;
        }
    }
    return true;
}

bool CVybConverter::Convert(const Kind& kind) {
    std::uint32_t count = 0;
    std::uint32_t length = 0;
    if (!ReadTableHeader(kind, count, length)) {
        return false;
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        CVybRecord record(m_stream.Take(kind.length), m_stream.Swap());
        (this->*kind.take)(record);
        if (!record.Good() || !m_stream.Skip(length - kind.length)) {
            return false;
        }
    }
    return kind.finish == nullptr || (this->*kind.finish)();
}

/// Goes to the records of a kind; none when the file does not have the kind. False for a place
/// outside the file, more records than it can hold, and records that are too short.
bool CVybConverter::ReadTableHeader(const Kind& kind, std::uint32_t& count, std::uint32_t& length) {
    if (!m_directory.Has(kind.entry)) {
        return true;
    }
    std::int32_t records = 0;
    std::int32_t bytes = 0;
    if (!m_stream.Seek(m_directory.Place(kind.entry)) || m_stream.Left() < kTableHeader ||
        !m_stream.ReadInt(records) || !m_stream.ReadInt(bytes) || records < 0 || bytes < 0) {
        return false;
    }
    count = static_cast<std::uint32_t>(records);
    length = static_cast<std::uint32_t>(bytes);
    return count == 0 || (length >= kind.length && count <= m_stream.Left() / length);
}

int CVybConverter::TakeNumber(CVybRecord& record, int entry) {
    const int number = record.Number();
    if (!m_spread.Add(entry, number)) {
        record.Refuse();
    }
    return number;
}

}  // namespace Tevra
