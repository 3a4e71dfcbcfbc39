#pragma once

#include <string>

#include "model/AnalysisTask.h"
#include "model/CaseDesc.h"
#include "model/CombCaseDesc.h"
#include "model/Entity.h"

namespace Tevra {

/// An analysis case: what a task solved for.
class CAnalysisCase : public Data::NamedEntity {
public:
    CAnalysisCase() = default;
    CAnalysisCase(std::wstring name, int task, const std::wstring& description)
        : NamedEntity(std::move(name)), m_task(task), m_description(description) {}

    /// Number of the task that the case belongs to, 0 none.
    int Task() const { return m_task; }
    const CCaseDesc& Desc() const { return m_description; }
    /// Reads a description; false when it can't be read.
    bool SetDescription(const std::wstring& text) { return m_description.SetDescription(text); }
    double CaseFactor(int part, int loadCase) const {
        return m_description.CaseFactor(part, loadCase);
    }
    void SetTask(int task) { m_task = task; }
    bool operator==(const CAnalysisCase&) const = default;

private:
    int m_task = 0;
    CCaseDesc m_description;
};

/// A combination of analysis cases and other combinations.
class CCombinationCase : public Data::NamedEntity {
public:
    CCombinationCase() = default;
    CCombinationCase(std::wstring name, const std::wstring& description)
        : NamedEntity(std::move(name)), m_description(description) {}

    const CCombCaseDesc& Desc() const { return m_description; }
    bool SetDescription(const std::wstring& text) { return m_description.SetDescription(text); }
    bool operator==(const CCombinationCase&) const = default;

private:
    CCombCaseDesc m_description;
};

}  // namespace Tevra

/// The host's own name for the namespace of its cases.
namespace Vyn = Tevra;  // NOLINT(misc-unused-alias-decls)
