#pragma once

#include <vector>

#include "model/EntList.h"
#include "model/Entity.h"

namespace Tevra::Data {

/// A property or a material that stands in for another in a stage.
struct StageReplacement {
    PropertyType kind = PropertyType::Section;
    int from = 0;      ///< property number
    int property = 0;  ///< property used instead, 0 the same
    int material = 0;  ///< analysis material used instead, 0 the property's own
    bool operator==(const StageReplacement&) const = default;
};

/// Restraint that nodes have in a stage besides their own.
struct StageRestraint {
    CEntList nodes{L"", SelType::Node};
    Vbool6 restraint;
    bool operator==(const StageRestraint&) const = default;
};

/// A stage of construction.
class CStage : public NamedEntity {
public:
    /// Elements that exist in the stage.
    const CEntList& Elements() const { return m_elements; }
    const std::vector<StageReplacement>& Replacements() const { return m_replacements; }
    const std::vector<StageRestraint>& Restraints() const { return m_restraints; }
    void SetElements(const CEntList& elements) { m_elements = elements; }
    void SetReplacements(std::vector<StageReplacement> replacements) {
        m_replacements = std::move(replacements);
    }
    void SetRestraints(std::vector<StageRestraint> restraints) {
        m_restraints = std::move(restraints);
    }
    bool operator==(const CStage&) const = default;

private:
    CEntList m_elements{L"all", SelType::Element};
    std::vector<StageReplacement> m_replacements;
    std::vector<StageRestraint> m_restraints;
};

}  // namespace Tevra::Data
