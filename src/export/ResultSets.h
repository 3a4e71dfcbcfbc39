#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include "export/ResultRecord.h"
#include "model/Types.h"

namespace Tevra::Export {

/// Results of a node, in the order of the pairs.
class NodeResult : public ResultRecord<30> {
public:
    Vector3 Disp() const { return Vector3At(0); }
    Vector3 Rotn() const { return Vector3At(3); }
    Vector3 Vel() const { return Vector3At(6); }
    Vector3 RotVel() const { return Vector3At(9); }
    Vector3 Acc() const { return Vector3At(12); }
    Vector3 RotAcc() const { return Vector3At(15); }
    Vector3 ReactForce() const { return Vector3At(18); }
    Vector3 ReactMoment() const { return Vector3At(21); }
    Vector3 ConsForce() const { return Vector3At(24); }
    Vector3 ConsMoment() const { return Vector3At(27); }
};

/// Results at a position of a 1D element or a spring: displacement in global axes, force and moment
/// in element axes.
class LineResult : public ResultRecord<9> {
public:
    Vector3 Disp() const { return Vector3At(0); }
    Vector3 Force() const { return Vector3At(3); }
    Vector3 Moment() const { return Vector3At(6); }
};
class SpringResult : public LineResult {};
class Elem1DResult : public LineResult {};

/// Results at a position of a 2D element.
class Elem2DResult : public ResultRecord<29> {
public:
    Vector3 Disp() const { return Vector3At(0); }
    Tensor2 Force() const { return Tensor2At(3); }
    Tensor2 Moment() const { return Tensor2At(6); }
    Vector2 Shear() const { return Vector2At(9); }
    Tensor3 StressTop() const { return Tensor3At(11); }
    Tensor3 StressMiddle() const { return Tensor3At(17); }
    Tensor3 StressBottom() const { return Tensor3At(23); }
};

/// Results at a position of a 3D element.
class Elem3DResult : public ResultRecord<9> {
public:
    Vector3 Disp() const { return Vector3At(0); }
    Tensor3 Stress() const { return Tensor3At(3); }
};

/// Results at a position along an assembly.
class AssemblyResult : public ResultRecord<15> {
public:
    Vector3 Disp() const { return Vector3At(0); }
    Vector3 Rotation() const { return Vector3At(3); }
    Vector3 Drift() const { return Vector3At(6); }
    Vector3 Force() const { return Vector3At(9); }
    Vector3 Moment() const { return Vector3At(12); }
};

/// The one record of a node.
class NodeSet : public NodeResult {
public:
    std::span<NodeResult> Records() {
        NodeResult* const record = this;
        return {record, 1};
    }
};

/// Records of one entity at several positions, each with its coordinates in the entity.
template <class Record, class Place>
class PositionSet {
public:
    using RecordType = Record;
    using PlaceType = Place;

    explicit PositionSet(std::size_t count, const Place& place = {})
        : m_places(count, place), m_records(count) {}
    explicit PositionSet(std::vector<Place> places)
        : m_places(std::move(places)), m_records(m_places.size()) {}
    /// A set with the positions of another, and its records or (false) without values.
    PositionSet(const PositionSet& other, bool copyRecords) : m_places(other.m_places) {
        if (copyRecords) {
            m_records = other.m_records;
        } else {
            m_records.resize(other.m_records.size());
        }
    }

    std::size_t NumPosition() const { return m_records.size(); }
    const Place& Position(std::size_t i) const { return m_places[i]; }
    void SetPosition(std::size_t i, const Place& place) { m_places[i] = place; }
    std::span<Record> Records() { return m_records; }
    Record& operator[](std::size_t i) { return m_records[i]; }
    const Record& operator[](std::size_t i) const { return m_records[i]; }

    /// Makes room for a number of positions. What they held before is without meaning.
    void Resize(std::size_t count) {
        m_places.resize(count);
        m_records.resize(count);
    }

    void Init(double value) {
        for (Record& record : m_records) {
            record.Init(value);
        }
    }
    void SetPermutation(int permutation) {
        for (Record& record : m_records) {
            record.SetPermutation(permutation);
        }
    }
    // With another set of the same entity; positions that only one of them has are left alone.
    void Add(const PositionSet& other, double factor) {
        for (std::size_t i = 0; i < NumShared(other); ++i) {
            m_records[i].Add(other.m_records[i], factor);
        }
    }
    void CombineResult(CombineOption option, const PositionSet& other) {
        for (std::size_t i = 0; i < NumShared(other); ++i) {
            m_records[i].CombineResult(option, other.m_records[i]);
        }
    }

private:
    std::size_t NumShared(const PositionSet& other) const {
        return std::min(m_records.size(), other.m_records.size());
    }

    std::vector<Place> m_places;
    std::vector<Record> m_records;
};

/// Position 0 and 1 are the ends.
using SpringSet = PositionSet<SpringResult, double>;
/// Positions in millionths of the length.
using Elem1DSet = PositionSet<Elem1DResult, int>;
/// Positions in natural coordinates.
using Elem2DSet = PositionSet<Elem2DResult, Vec2<double>>;
using Elem3DSet = PositionSet<Elem3DResult, Vec3<double>>;

/// Positions as fractions of the length; not known at first.
class AssemblySet : public PositionSet<AssemblyResult, double> {
public:
    explicit AssemblySet(std::size_t count) : PositionSet(count, kMissing) {}
    explicit AssemblySet(std::vector<double> positions) : PositionSet(std::move(positions)) {}
    AssemblySet(const AssemblySet& other, bool copyRecords) : PositionSet(other, copyRecords) {}
};

}  // namespace Tevra::Export
