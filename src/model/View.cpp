#include "model/View.h"

#include <utility>

namespace Tevra::Data {

namespace {

constexpr std::pair<const wchar_t*, const wchar_t*> kDescriptions[] = {
    {L"nodes", L"Nodes"},
    {L"elements", L"Elements"},
    {L"members", L"Members"},
    {L"sections", L"Sections"},
    {L"materials", L"Materials"},
    {L"loads", L"Loads"},
    {L"cases", L"Cases"},
    {L"displacements", L"Node displacements"},
    {L"reactions", L"Reactions"},
    {L"forces", L"Element forces"},
    {L"stresses", L"Element stresses"},
};

}  // namespace

std::wstring CDataRef::DataStr(const CModelData& /*model*/) const {
    for (const auto& [kind, description] : kDescriptions) {
        if (m_kind == kind) {
            return description;
        }
    }
    return m_kind;
}

}  // namespace Tevra::Data
