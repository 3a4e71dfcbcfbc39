#pragma once

#include <string>
#include <vector>

#include "model/EntList.h"
#include "model/Entity.h"

namespace Tevra {
class CModelData;
}

namespace Tevra::Data {

/// Reference to one kind of data that an output view shows, for example "node displacements".
class CDataRef {
public:
    CDataRef() = default;
    explicit CDataRef(std::wstring kind) : m_kind(std::move(kind)) {}
    /// Name of the provider of the data.
    const std::wstring& Kind() const { return m_kind; }
    /// What the data are, for a person; for kinds that only the host knows, their name.
    std::wstring DataStr(const CModelData& model) const;
    bool operator==(const CDataRef&) const = default;

private:
    std::wstring m_kind;
};

/// An output view: a table of model or result data for chosen entities and cases.
class COpView : public NamedEntity {
public:
    int NumOpData() const { return static_cast<int>(m_data.size()); }
    /// Data item `k`, from 1.
    const CDataRef& OpData(int k) const {
        static const CDataRef kNone{};
        return k >= 1 && k <= NumOpData() ? m_data[static_cast<std::size_t>(k - 1)] : kNone;
    }
    const std::vector<CDataRef>& Data() const { return m_data; }
    const CEntList& Nodes() const { return m_nodes; }
    const CEntList& Elements() const { return m_elements; }
    const CEntList& Members() const { return m_members; }
    const CEntList& Cases() const { return m_cases; }
    void SetData(std::vector<CDataRef> data) { m_data = std::move(data); }
    void SetNodes(const CEntList& list) { m_nodes = list; }
    void SetElements(const CEntList& list) { m_elements = list; }
    void SetMembers(const CEntList& list) { m_members = list; }
    void SetCases(const CEntList& list) { m_cases = list; }
    bool operator==(const COpView&) const = default;

private:
    std::vector<CDataRef> m_data;
    CEntList m_nodes{L"all", SelType::Node};
    CEntList m_elements{L"all", SelType::Element};
    CEntList m_members{L"all", SelType::Member};
    CEntList m_cases{L"all", SelType::Case};
};

}  // namespace Tevra::Data
