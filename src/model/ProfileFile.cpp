#include <algorithm>
#include <cmath>
#include <fstream>

#include "model/ProfileCatalogue.h"
#include "model/SectionText.h"
#include "platform/text/Ascii.h"
#include "platform/text/HostPath.h"
#include "platform/text/LineReader.h"
#include "platform/text/Quoted.h"
#include "platform/text/Utf8.h"

namespace Tevra::Data {

namespace {

/// Far above a catalogue of everything that is rolled.
constexpr int kMostLines = 200'000;

/// The words of a line: separated by blanks, up to a "#".
std::vector<std::wstring_view> WordsOf(std::wstring_view line) {
    line = line.substr(0, line.find(L'#'));
    std::vector<std::wstring_view> words;
    while (true) {
        line = Text::TrimLeft(line);
        if (line.empty()) {
            return words;
        }
        const auto end = std::find_if(line.begin(), line.end(), Text::IsSpace<wchar_t>);
        words.push_back(line.substr(0, static_cast<std::size_t>(end - line.begin())));
        line.remove_prefix(words.back().size());
    }
}

/// A value that a line may state after the dimensions.
struct OptionalValue {
    std::wstring_view key;
    double Profile::*property;     ///< of the profile, or
    double ShapeSize::*dimension;  ///< of its size
    int power;                     ///< of the unit
};
constexpr OptionalValue kOptional[] = {
    {L"r", nullptr, &ShapeSize::rootRadius, 1}, {L"ro", nullptr, &ShapeSize::cornerRadius, 1},
    {L"A", &Profile::area, nullptr, 2},         {L"Iyy", &Profile::iyy, nullptr, 4},
    {L"Izz", &Profile::izz, nullptr, 4},        {L"J", &Profile::j, nullptr, 4}};

/// Units in which the lines of a file are written, m.
struct FileUnits {
    double length = 0.001;
    double property = 0.01;
};

bool Fits(double published, double computed) {
    return published == 0.0 || std::abs(computed - published) <= kProfileTolerance * published;
}

/// What is wrong with a profile that has been read, empty when nothing is.
std::wstring ProblemOf(const Profile& profile) {
    SectionOutline outline = profile.shape->outline(profile.size);
    if (outline.IsEmpty()) {
        return L"the dimensions do not make a section";
    }
    const Vec2<double> centroid = outline.Integrals().Centroid();
    outline.Translate({-centroid.x, -centroid.y});
    const AreaIntegrals computed = outline.Integrals();
    if (!(computed.area > 0.0 && std::isfinite(computed.yy) && std::isfinite(computed.zz))) {
        return L"the dimensions do not make a section";
    }
    const struct {
        const wchar_t* name;
        double published;
        double computed;
    } checks[] = {{L"A", profile.area, computed.area},
                  {L"Iyy", profile.iyy, computed.zz},
                  {L"Izz", profile.izz, computed.yy}};
    for (const auto& check : checks) {
        if (!Fits(check.published, check.computed)) {
            return check.name + std::wstring(L" does not fit the dimensions");
        }
    }
    return {};
}

/// Reads the lines of a catalogue file, one after the other.
class CProfileReader {
public:
    /// What is wrong with the line, empty when nothing is.
    std::wstring Read(std::wstring_view line) {
        const auto words = WordsOf(line);
        if (words.empty()) {
            return {};
        }
        if (Text::EqualNoCase(words[0], L"units")) {
            return ReadUnits(words);
        }
        return ReadProfile(words);
    }
    std::vector<Profile>& Profiles() { return m_profiles; }

private:
    std::wstring ReadUnits(std::span<const std::wstring_view> words) {
        const bool metric = words.size() == 2 && Text::EqualNoCase(words[1], L"mm");
        const bool inches = words.size() == 2 && Text::EqualNoCase(words[1], L"in");
        if (!metric && !inches) {
            return L"units are \"mm\" or \"in\"";
        }
        m_units = metric ? FileUnits{} : FileUnits{LengthUnit(L"in"), LengthUnit(L"in")};
        return {};
    }

    std::wstring ReadProfile(std::span<const std::wstring_view> words) {
        if (words.size() < 3) {
            return L"a profile needs a group, a name, a shape and its dimensions";
        }
        Profile profile;
        profile.group = words[0];
        profile.name = words[1];
        profile.shape = FindStandardShape(words[2]);
        if (profile.shape == nullptr) {
            return L"unknown shape " + Text::Quoted(words[2]);
        }
        std::wstring problem = ReadValues(words.subspan(3), profile);
        if (problem.empty()) {
            problem = ProblemOf(profile);
        }
        if (problem.empty()) {
            m_profiles.push_back(std::move(profile));
        }
        return problem;
    }

    std::wstring ReadValues(std::span<const std::wstring_view> words, Profile& profile) const {
        std::vector<double> dimensions;
        for (const std::wstring_view word : words) {
            if (word.find(L'=') != std::wstring_view::npos) {
                if (!ReadOptional(word, profile)) {
                    return L"can't read " + Text::Quoted(word);
                }
                continue;
            }
            double value = 0.0;
            if (!ReadNumber(word, value)) {
                return L"not a number: " + Text::Quoted(word);
            }
            dimensions.push_back(value * m_units.length);
        }
        if (dimensions.size() != profile.shape->order.size()) {
            return L"shape " + Text::Quoted(profile.shape->word) + L" has " +
                   std::to_wstring(profile.shape->order.size()) + L" dimensions, not " +
                   std::to_wstring(dimensions.size());
        }
        if (!SetDimensions(*profile.shape, dimensions, profile.size)) {
            return L"a dimension is not a positive number";
        }
        return {};
    }

    bool ReadOptional(std::wstring_view word, Profile& profile) const {
        const auto equals = word.find(L'=');
        double value = 0.0;
        if (!ReadNumber(word.substr(equals + 1), value) || value < 0.0) {
            return false;
        }
        const auto* const found =
            std::find_if(std::begin(kOptional), std::end(kOptional), [&](const auto& known) {
                return Text::EqualNoCase(known.key, word.substr(0, equals));
            });
        if (found == std::end(kOptional)) {
            return false;
        }
        if (found->dimension != nullptr) {
            profile.size.*found->dimension = value * m_units.length;
        } else {
            profile.*found->property = value * std::pow(m_units.property, found->power);
        }
        return true;
    }

    FileUnits m_units;
    std::vector<Profile> m_profiles;
};

}  // namespace

bool CProfileCatalogue::Load(std::istream& text, std::wstring& error) {
    error.clear();
    CProfileReader reader;
    CLineReader lines(text);
    std::string_view line;
    while (lines.Next(line)) {
        const std::wstring problem = lines.Number() > kMostLines
                                         ? L"the catalogue is too large"
                                         : reader.Read(Text::FromUtf8(line));
        if (!problem.empty()) {
            error = L"line " + std::to_wstring(lines.Number()) + L": " + problem;
            return false;
        }
    }
    if (!lines.Error().empty()) {
        error = Text::FromUtf8(lines.Error());
        return false;
    }
    for (Profile& profile : reader.Profiles()) {
        Set(std::move(profile));
    }
    return true;
}

bool CProfileCatalogue::Load(const std::wstring& path, std::wstring& error) {
    std::ifstream file(Text::ToPath(path), std::ios::binary);
    if (!file) {
        error = L"the catalogue can't be opened";
        return false;
    }
    return Load(file, error);
}

}  // namespace Tevra::Data
