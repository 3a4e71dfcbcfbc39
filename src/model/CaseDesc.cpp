#include "model/CaseDesc.h"

#include <cmath>
#include <map>

#include "model/DescScanner.h"

namespace Tevra {

namespace {

/// Reads the parts of an analysis case description.
class CaseDescParser {
public:
    explicit CaseDescParser(const std::wstring& text) : m_scanner(text) {}

    std::optional<std::vector<CaseDescPart>> Parse() {
        std::vector<CaseDescPart> parts;
        if (m_scanner.AtEnd()) {
            return parts;
        }
        do {
            CaseDescPart part;
            if (!Part(part)) {
                return std::nullopt;
            }
            parts.push_back(std::move(part));
        } while (m_scanner.Take(':'));
        return m_scanner.AtEnd() ? std::optional(std::move(parts)) : std::nullopt;
    }

private:
    bool Part(CaseDescPart& part) {
        if (m_scanner.Take('p')) {
            part.isPDelta = true;
            return m_scanner.Take('(') && Loads(part) && m_scanner.Take(')');
        }
        if (m_scanner.Take('m')) {
            const std::optional<int> mode = m_scanner.TakeInteger();
            part.mode = mode.value_or(0);
            return mode.has_value();
        }
        return Loads(part);
    }

    /// A signed sum of factored load cases whose factors can be summed up.
    bool Loads(CaseDescPart& part) {
        double total = 0.0;
        double sign = m_scanner.Take('-') ? -1.0 : (m_scanner.Take('+'), 1.0);
        while (true) {
            const double factor = m_scanner.TakeNumber().value_or(1.0);
            if (!m_scanner.Take('l')) {
                return false;
            }
            const std::optional<int> loadCase = m_scanner.TakeInteger();
            if (!loadCase) {
                return false;
            }
            part.loads.push_back({*loadCase, sign * factor});
            total += factor;
            if (m_scanner.Take('+')) {
                sign = 1.0;
            } else if (m_scanner.Take('-')) {
                sign = -1.0;
            } else {
                return std::isfinite(total);
            }
        }
    }

    DescScanner m_scanner;
};

}  // namespace

bool CCaseDesc::SetDescription(const std::wstring& text) {
    m_text = text;
    std::optional<std::vector<CaseDescPart>> parts = CaseDescParser(text).Parse();
    m_valid = parts.has_value();
    m_parts = std::move(parts).value_or(std::vector<CaseDescPart>());
    return m_valid;
}

double CCaseDesc::CaseFactor(int part, int loadCase) const {
    if (part < 0 || part >= NumPart()) {
        return 0.0;
    }
    double factor = 0.0;
    for (const CaseDescPart::Load& load : m_parts[static_cast<std::size_t>(part)].loads) {
        factor += load.loadCase == loadCase ? load.factor : 0.0;
    }
    return factor;
}

std::vector<CaseDescPart::Load> CCaseDesc::Factors(int part) const {
    if (part < 0 || part >= NumPart()) {
        return {};
    }
    std::map<int, double> sums;
    for (const CaseDescPart::Load& load : m_parts[static_cast<std::size_t>(part)].loads) {
        sums[load.loadCase] += load.factor;
    }
    std::vector<CaseDescPart::Load> factors;
    factors.reserve(sums.size());
    for (const auto& [loadCase, factor] : sums) {
        factors.push_back({loadCase, factor});
    }
    return factors;
}

int CCaseDesc::Mode() const {
    for (const CaseDescPart& part : m_parts) {
        if (part.mode != 0) {
            return part.mode;
        }
    }
    return 0;
}

}  // namespace Tevra
