#include "model/Results.h"

#include <algorithm>
#include <limits>

namespace Tevra {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr Vec3<double> kNoVector{kNone, kNone, kNone};

bool SameBits(const double* a, const double* b, std::size_t count) {
    return std::equal(a, a + count, b, [](double x, double y) {
        return x == y || (x != x && y != y);  // NaN, the mark of a missing figure, equals itself
    });
}

}  // namespace

int ResultTable::NumRow(int entity) const {
    return static_cast<int>(m_rows.Get(entity).rows);
}

const double* ResultTable::Row(int entity, int row) const {
    const Place* place = m_rows.Find(entity);
    if (place == nullptr || row < 0 || row >= static_cast<int>(place->rows)) {
        return nullptr;
    }
    return m_blocks[place->first / kBlock].data() + place->first % kBlock +
           static_cast<std::size_t>(row) * static_cast<std::size_t>(m_components);
}

std::span<double> ResultTable::At(const Place& place, std::size_t count) {
    return std::span(m_blocks[place.first / kBlock]).subspan(place.first % kBlock, count);
}

ResultTable::Place ResultTable::Claim(std::size_t count) {
    const auto left = [](const std::vector<double>& block) {
        return std::min(block.capacity(), kBlock) - block.size();
    };
    if (m_blocks.empty() || left(m_blocks.back()) < count) {
        const std::size_t doublings = std::min(m_blocks.size(), kDoublings);
        m_blocks.emplace_back().reserve(std::max(kSmallestBlock << doublings, count));
    }
    std::vector<double>& block = m_blocks.back();
    const Place place{(m_blocks.size() - 1) * kBlock + block.size(), 0};
    block.resize(block.size() + count);
    return place;
}

bool ResultTable::Set(int entity, std::span<const double> values) {
    const auto components = static_cast<std::size_t>(m_components);
    if (entity < 1 || values.empty() || values.size() > kBlock || values.size() % components != 0) {
        return false;
    }
    const auto rows = static_cast<std::uint32_t>(values.size() / components);
    const Place* former = m_rows.Find(entity);
    Place place = former != nullptr && former->rows >= rows ? *former : Claim(values.size());
    place.rows = rows;
    std::copy(values.begin(), values.end(), At(place, values.size()).begin());
    return m_rows.Set(entity, place);
}

bool ResultTable::operator==(const ResultTable& o) const {
    if (m_components != o.m_components || NumEntity() != o.NumEntity()) {
        return false;
    }
    for (const int entity : Entities()) {
        const int rows = NumRow(entity);
        if (rows != o.NumRow(entity) ||
            !SameBits(Row(entity, 0), o.Row(entity, 0),
                      static_cast<std::size_t>(rows) * static_cast<std::size_t>(m_components))) {
            return false;
        }
    }
    return true;
}

GlobalResults::GlobalResults()
    : force(kNoVector),
      moment(kNoVector),
      reactForce(kNoVector),
      reactMoment(kNoVector),
      frequency(kNone),
      loadFactor(kNone),
      modalMass(kNone),
      modalStiff(kNone),
      modalGeoStiff(kNone),
      effMass(kNoVector),
      rotEffMass(kNoVector),
      mass(kNone),
      centreOfMass(kNoVector) {}

std::array<double, GlobalResults::kNumFigure> GlobalResults::Figures() const {
    return {force.x,        force.y,       force.z,      moment.x,     moment.y,
            moment.z,       reactForce.x,  reactForce.y, reactForce.z, reactMoment.x,
            reactMoment.y,  reactMoment.z, frequency,    loadFactor,   modalMass,
            modalStiff,     modalGeoStiff, effMass.x,    effMass.y,    effMass.z,
            rotEffMass.x,   rotEffMass.y,  rotEffMass.z, mass,         centreOfMass.x,
            centreOfMass.y, centreOfMass.z};
}

bool GlobalResults::operator==(const GlobalResults& o) const {
    return mode == o.mode && SameBits(Figures().data(), o.Figures().data(), kNumFigure);
}

ResultTable& CaseResults::Edit(ResultKind kind) {
    auto& table = m_tables[static_cast<std::size_t>(kind)];
    if (!table) {
        table = std::make_unique<ResultTable>(InfoOf(kind).components);
    }
    return *table;
}

bool CaseResults::Any() const {
    return !(m_global == GlobalResults()) ||
           std::any_of(m_tables.begin(), m_tables.end(),
                       [](const auto& table) { return table && table->NumEntity() > 0; });
}

CaseResults::CaseResults(const CaseResults& o) : m_global(o.m_global) {
    for (std::size_t i = 0; i < m_tables.size(); ++i) {
        m_tables[i] = o.m_tables[i] ? std::make_unique<ResultTable>(*o.m_tables[i]) : nullptr;
    }
}

CaseResults& CaseResults::operator=(CaseResults o) noexcept {
    m_tables.swap(o.m_tables);
    m_global = o.m_global;
    return *this;
}

bool CaseResults::operator==(const CaseResults& o) const {
    if (!(m_global == o.m_global)) {
        return false;
    }
    for (int i = 0; i < kNumResultKind; ++i) {
        const ResultTable kEmpty(kResultKinds[static_cast<std::size_t>(i)].components);
        const ResultTable* mine = Find(static_cast<ResultKind>(i));
        const ResultTable* other = o.Find(static_cast<ResultKind>(i));
        if (!((mine != nullptr ? *mine : kEmpty) == (other != nullptr ? *other : kEmpty))) {
            return false;
        }
    }
    return true;
}

int MemRes::NumResult() const {
    int count = 0;
    for (const auto& [number, results] : m_cases) {
        for (int i = 0; i < kNumResultKind; ++i) {
            count += results.Find(static_cast<ResultKind>(i)) != nullptr ? 1 : 0;
        }
    }
    return count;
}

bool MemRes::Any() const {
    return std::any_of(m_cases.begin(), m_cases.end(),
                       [](const auto& entry) { return entry.second.Any(); });
}

const CaseResults* MemRes::Find(int analysisCase) const {
    const auto found = m_cases.find(analysisCase);
    return found != m_cases.end() ? &found->second : nullptr;
}

}  // namespace Tevra
