#pragma once

#include <istream>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/StandardShape.h"

namespace Tevra::Data {

/// A rolled profile, SI units.
struct Profile {
    std::wstring group;
    std::wstring name;  ///< with or without its group in front
    const StandardShape* shape = nullptr;
    ShapeSize size;
    double j = 0.0;  ///< tabulated torsion constant; 0: by the formula of the shape
    /// Published area and second moments, 0 where not stated; held against the outline.
    double area = 0.0;
    double iyy = 0.0;
    double izz = 0.0;
};

/// How far the outline of a profile may be off its published properties.
inline constexpr double kProfileTolerance = 0.01;

/// Rolled profiles by name, for the descriptions "CAT%group%name". Names are compared without
/// regard to case and blanks, with or without the group in front ("UB457x191x67", "457x191x67"),
/// trailing zeros of decimals left off ("100x100x5.0"); "HEA200" is "HE200A".
class CProfileCatalogue {
public:
    /// The profiles that come with the library.
    static CProfileCatalogue Shipped();

    /// The catalogue of this process; at first the shipped one. Descriptions are looked up when
    /// they are set: replace it before a model is read.
    static std::shared_ptr<const CProfileCatalogue> Current();
    static void SetCurrent(CProfileCatalogue catalogue);

    /// Adds the profiles of a text, one to a line: group, name, shape word, dimensions in mm, then
    /// as far as given r= (root radius), ro= (outer corners), A=, Iyy=, Izz=, J= (cm); "#" begins a
    /// comment; "units in" changes all of these to inches. A name that is already there is
    /// replaced. False when a line can't be read, its dimensions make no section, or stated
    /// properties do not fit them; then `error` names the line and nothing is added.
    bool Load(std::istream& text, std::wstring& error);
    bool Load(const std::wstring& path, std::wstring& error);

    /// Adds or replaces a profile.
    void Set(Profile profile);
    /// Null when there is no such profile. An empty group stands for one that the name begins with.
    const Profile* Find(std::wstring_view group, std::wstring_view name) const;
    const std::vector<Profile>& Profiles() const { return m_profiles; }

private:
    std::vector<Profile> m_profiles;
    std::map<std::wstring, std::size_t> m_places;  ///< in m_profiles, by the key of the full name
};

}  // namespace Tevra::Data
