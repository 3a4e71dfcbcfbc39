#include "model/EntList.h"

#include <optional>
#include <string_view>
#include <utility>

#include "model/ListParser.h"
#include "model/ListTerms.h"
#include "platform/text/Ascii.h"

namespace Tevra {

namespace {

std::shared_ptr<const ListTerms> Read(std::wstring_view text, SelType kind) {
    std::optional<ListTerms> terms = ParseList(text, kind);
    return terms ? std::make_shared<const ListTerms>(std::move(*terms)) : nullptr;
}

/// What most lists say; one reading of it serves them all.
std::shared_ptr<const ListTerms> NoTerms() {
    static const auto kNone = std::make_shared<const ListTerms>();
    return kNone;
}

}  // namespace

CEntList::CEntList() : m_terms(NoTerms()) {}

CEntList::CEntList(std::wstring_view text, SelType type) : m_type(type), m_text(Text::Trim(text)) {
    m_terms = m_text.empty() ? NoTerms() : Read(m_text, type);
}

bool CEntList::IsEmpty() const {
    return m_text.empty() || Text::EqualNoCase(std::wstring_view(m_text), L"none");
}

bool CEntList::IsValid() const {
    return m_terms != nullptr;
}

}  // namespace Tevra
