#include "model/ProfileCatalogue.h"

#include <algorithm>
#include <mutex>

#include "model/ProfileTable.h"
#include "platform/text/Ascii.h"

namespace Tevra::Data {

namespace {

constexpr wchar_t kMultiplication = 0xD7;

std::wstring UpperWithoutBlanks(std::wstring_view text) {
    std::wstring out;
    out.reserve(text.size());
    for (const wchar_t c : text) {
        if (!Text::IsSpace(c)) {
            out += c == kMultiplication ? L'X' : Text::ToUpper(c);
        }
    }
    return out;
}

/// The text with the trailing zeros of its decimals, and points left bare by that, taken out.
std::wstring WithoutTrailingZeros(std::wstring_view text) {
    std::wstring out;
    out.reserve(text.size());
    bool decimals = false;
    const auto endDecimals = [&out, &decimals] {
        while (decimals && out.back() == L'0') {
            out.pop_back();
        }
        if (decimals && out.back() == L'.') {
            out.pop_back();
        }
        decimals = false;
    };
    for (const wchar_t c : text) {
        if (!Text::IsDigit(c)) {
            endDecimals();
            decimals = c == L'.';
        }
        out += c;
    }
    endDecimals();
    return out;
}

/// European wide flange beams go by two names: "HEA200" becomes "HE200A".
std::wstring WithSeriesBehind(std::wstring key) {
    const auto digits = key.find_first_of(L"0123456789");
    if (key.starts_with(L"HE") && digits != std::wstring::npos && digits > 2 &&
        key.find_first_not_of(L"ABM", 2) == digits) {
        std::rotate(key.begin() + 2, key.begin() + static_cast<std::ptrdiff_t>(digits), key.end());
    }
    return key;
}

/// What a name is compared by.
std::wstring KeyOf(std::wstring_view group, std::wstring_view name) {
    const std::wstring prefix = UpperWithoutBlanks(group);
    std::wstring full = UpperWithoutBlanks(name);
    if (!full.starts_with(prefix)) {
        full.insert(0, prefix);
    }
    return WithSeriesBehind(WithoutTrailingZeros(full));
}

Profile ShippedProfile(const ProfileGroup& group, const ProfileRow& row) {
    const double a = group.propertyUnit * group.propertyUnit;
    Profile profile;
    profile.group = group.name;
    profile.name = std::wstring(group.name) + std::wstring(row.name);
    profile.shape = FindStandardShape(group.shape);
    std::array<double, 4> dimension = row.dimension;
    for (double& d : dimension) {
        d *= group.lengthUnit;
    }
    SetDimensions(*profile.shape, std::span(dimension).first(profile.shape->order.size()),
                  profile.size);
    profile.size.rootRadius = row.rootRadius * group.lengthUnit;
    profile.size.cornerRadius = profile.size.rootRadius * group.cornerRatio;
    profile.area = row.area * a;
    profile.iyy = row.iyy * a * a;
    profile.izz = row.izz * a * a;
    profile.j = row.j * a * a;
    return profile;
}

/// The catalogue in use, and what guards it.
struct InUse {
    std::mutex guard;
    std::shared_ptr<const CProfileCatalogue> catalogue =
        std::make_shared<const CProfileCatalogue>(CProfileCatalogue::Shipped());
};

InUse& TheOneInUse() {
    static InUse inUse;
    return inUse;
}

}  // namespace

CProfileCatalogue CProfileCatalogue::Shipped() {
    CProfileCatalogue catalogue;
    for (const ProfileGroup& group : ShippedProfiles()) {
        for (const ProfileRow& row : group.rows) {
            catalogue.Set(ShippedProfile(group, row));
        }
    }
    return catalogue;
}

std::shared_ptr<const CProfileCatalogue> CProfileCatalogue::Current() {
    const std::scoped_lock lock(TheOneInUse().guard);
    return TheOneInUse().catalogue;
}

void CProfileCatalogue::SetCurrent(CProfileCatalogue catalogue) {
    auto next = std::make_shared<const CProfileCatalogue>(std::move(catalogue));
    const std::scoped_lock lock(TheOneInUse().guard);
    TheOneInUse().catalogue.swap(next);
}

void CProfileCatalogue::Set(Profile profile) {
    const auto [place, isNew] =
        m_places.try_emplace(KeyOf(profile.group, profile.name), m_profiles.size());
    if (isNew) {
        m_profiles.push_back(std::move(profile));
    } else {
        m_profiles[place->second] = std::move(profile);
    }
}

const Profile* CProfileCatalogue::Find(std::wstring_view group, std::wstring_view name) const {
    const auto place = m_places.find(KeyOf(group, name));
    return place != m_places.end() ? &m_profiles[place->second] : nullptr;
}

}  // namespace Tevra::Data
