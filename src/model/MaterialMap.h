#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/Material.h"
#include "model/NumberedTable.h"
#include "model/Types.h"

namespace Tevra {

class CVynData;

/// A material as a file has it: its number there, and what it is in the model (see
/// CModelData::FindMaterial).
struct ExportedMaterial {
    int mid = 0;
    Data::MaterialChoice source;
    bool operator==(const ExportedMaterial&) const = default;
};

/// A property as a file has it: its number there and that of its material.
struct ExportedProperty {
    int pid = 0;
    int mid = 0;
    bool operator==(const ExportedProperty&) const = default;
};

/// Numbers of materials and properties in formats whose properties have one material each.
///
/// Analysis materials keep their numbers. Design grades that stand for themselves follow above the
/// highest analysis material and the highest cable property, whose materials take the numbers
/// between: in the order of use by sections, 2D and 3D properties. A property that has several
/// materials (components of a section, layers, materials that stages give it) is exported once for
/// each: first under its own number, with its own material, then under numbers above all property
/// numbers and above twice the highest section, which leaves room for a second form of a section.
class CMaterialMap {
public:
    /// Highest number that a field of eight characters holds.
    static constexpr int kHighestNumber = 99'999'999;

    /// Maps a model, in place of what was mapped before. False, and nothing is mapped, when a
    /// number would be above `kHighestNumber`.
    bool CreateMap(const CVynData& model);

    /// The exported materials, ascending: all analysis materials, then design grades.
    const std::vector<ExportedMaterial>& Materials() const { return m_materials; }
    int NumMaterial() const { return static_cast<int>(m_materials.size()); }
    /// Material `k`, from 1.
    const ExportedMaterial& Material(int k) const {
        return m_materials[static_cast<std::size_t>(k - 1)];
    }

    /// What a section, 2D or 3D property is exported as, its own number first. Empty for one that
    /// does not exist or has no material that does, and for load panels.
    const std::vector<ExportedProperty>& Prop1D(int section) const {
        return m_sections.Get(section);
    }
    const std::vector<ExportedProperty>& Prop2D(int property) const {
        return m_properties2D.Get(property);
    }
    const std::vector<ExportedProperty>& Prop3D(int property) const {
        return m_properties3D.Get(property);
    }

    /// The first number above those of all exported properties.
    std::int64_t NextProperty() const { return m_nextPid; }

    /// The materials, and the properties with several, as tables in the host's report markup.
    std::wstring Report() const;

private:
    using Table = NumberedTable<std::vector<ExportedProperty>>;
    using StageMaterials = std::map<std::pair<PropertyType, int>, std::vector<int>>;

    void Clear();
    void AddProperties(const CVynData& model);
    static StageMaterials MaterialsOfStages(const CVynData& model);
    void Add(const CVynData& model, PropertyType kind, int number,
             std::vector<Data::MaterialChoice> choices, const StageMaterials& staged, Table& table);
    int Next(std::int64_t& next);
    int MidOf(const CVynData& model, const Data::MaterialChoice& choice);
    static void ReportProperties(const wchar_t* kind, const Table& table, std::wstring& rows);

    std::vector<ExportedMaterial> m_materials;
    std::vector<std::wstring> m_names;  ///< of `m_materials`
    std::map<std::pair<MatType, int>, int> m_grades;
    Table m_sections;
    Table m_properties2D;
    Table m_properties3D;
    std::int64_t m_nextMid = 1;
    std::int64_t m_nextPid = 1;
    bool m_isTooHigh = false;
};

}  // namespace Tevra
