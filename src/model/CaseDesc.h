#pragma once

#include <string>
#include <vector>

namespace Tevra {

/// One part of an analysis case description.
struct CaseDescPart {
    struct Load {
        int loadCase = 0;
        double factor = 1.0;
        bool operator==(const Load&) const = default;
    };
    std::vector<Load> loads;  ///< in the order of the text, repeats kept
    int mode = 0;             ///< number of "M n", 0 none
    bool isPDelta = false;    ///< the loads of "P(...)", which give the geometric stiffness
    bool operator==(const CaseDescPart&) const = default;
};

/// Description of an analysis case: parts separated by ":". The first holds the loads as a signed
/// sum of factored load cases ("1.35L1 + 1.5L2 - L4") or a mode ("M2"); "P(...)" holds the loads of
/// the P-delta stiffness.
class CCaseDesc {
public:
    CCaseDesc() = default;
    explicit CCaseDesc(const std::wstring& text) { SetDescription(text); }

    /// Reads a description; false when it can't be read, which leaves the description without
    /// parts. The text is kept either way.
    bool SetDescription(const std::wstring& text);
    const std::wstring& Description() const { return m_text; }
    bool IsValid() const { return m_valid; }

    int NumPart() const { return static_cast<int>(m_parts.size()); }
    const std::vector<CaseDescPart>& Parts() const { return m_parts; }
    /// Factor of a load case in part `part` (from 0), repeats summed; 0 when absent.
    double CaseFactor(int part, int loadCase) const;
    /// The load cases of a part with their factors, ascending, repeats summed.
    std::vector<CaseDescPart::Load> Factors(int part) const;
    /// Number of the mode that the case stands for, 0 none.
    int Mode() const;

    bool operator==(const CCaseDesc& o) const { return m_text == o.m_text; }

private:
    std::wstring m_text;
    std::vector<CaseDescPart> m_parts;
    bool m_valid = true;
};

}  // namespace Tevra
