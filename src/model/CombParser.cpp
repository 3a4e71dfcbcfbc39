#include "model/CombParser.h"

#include <array>
#include <string_view>

#include "model/DescScanner.h"

namespace Tevra {

namespace {

/// Brackets nested deeper than this are no combination that anybody wrote.
constexpr int kDeepest = 64;

struct Suffix {
    std::string_view word;
    int code;
};
constexpr std::array<Suffix, 4> kSuffixes{{{"min", kMinimumEnvelope},
                                           {"max", kMaximumEnvelope},
                                           {"abs", kAbsoluteEnvelope},
                                           {"signabs", kSignedAbsoluteEnvelope}}};

class CombParser {
public:
    explicit CombParser(const std::wstring& text) : m_scanner(text) {}

    std::optional<CombDescription> Parse() {
        CombDescription description;
        if (!Description(description, 0) || !m_scanner.AtEnd()) {
            return std::nullopt;
        }
        return description;
    }

private:
    bool Description(CombDescription& description, int depth) {
        if (depth > kDeepest) {
            return false;
        }
        do {
            std::vector<CombTerm> terms;
            if (!Alternative(terms, depth)) {
                return false;
            }
            description.alternatives.push_back(std::move(terms));
        } while (m_scanner.TakeWord("or"));
        return true;
    }

    bool Alternative(std::vector<CombTerm>& terms, int depth) {
        double sign = 1.0;
        TakeSign(sign);
        do {
            CombTerm term;
            if (!Term(term, depth)) {
                return false;
            }
            for (double& factor : term.factors) {
                factor *= sign;
            }
            terms.push_back(std::move(term));
        } while (TakeSign(sign));
        return true;
    }

    /// Takes a sign into `sign`; false when there is none.
    bool TakeSign(double& sign) {
        if (m_scanner.Take('+')) {
            sign = 1.0;
            return true;
        }
        if (m_scanner.Take('-')) {
            sign = -1.0;
            return true;
        }
        return false;
    }

    bool Term(CombTerm& term, int depth) {
        if (const std::optional<double> factor = m_scanner.TakeNumber()) {
            term.factors = {*factor};
        } else if (m_scanner.Peek() == '(') {
            // A bracket holds factors to choose from, or a description.
            const std::size_t place = m_scanner.Place();
            if (!Factors(term.factors)) {
                m_scanner.GoBack(place);
                term.factors = {1.0};
            }
        }
        if (m_scanner.Take('(')) {
            return Description(term.inner, depth + 1) && m_scanner.Take(')');
        }
        return Reference(term);
    }

    bool Factors(std::vector<double>& factors) {
        factors.clear();
        m_scanner.Take('(');
        do {
            double sign = 1.0;
            TakeSign(sign);
            const std::optional<double> factor = m_scanner.TakeNumber();
            if (!factor) {
                return false;
            }
            factors.push_back(sign * *factor);
        } while (m_scanner.TakeWord("or"));
        return m_scanner.Take(')');
    }

    CaseOp Letter() {
        if (m_scanner.Take('a')) {
            return CaseOp::Analysis;
        }
        return m_scanner.Take('c') ? CaseOp::Combination : CaseOp::None;
    }

    bool Reference(CombTerm& term) {
        term.op = Letter();
        const std::optional<int> number =
            term.op != CaseOp::None ? m_scanner.TakeInteger() : std::nullopt;
        if (!number) {
            return false;
        }
        term.from = *number;
        term.to = *number;
        if (m_scanner.TakeWord("to")) {
            const CaseOp op = Letter();
            const std::optional<int> last = m_scanner.TakeInteger();
            term.to = last.value_or(0);
            return op == term.op && last.has_value();
        }
        return TakeSuffix(term) && (term.op == CaseOp::Combination || IsCaseItself(term));
    }

    /// The one permutation of an analysis case, and its envelopes, are the case.
    static bool IsCaseItself(CombTerm& term) {
        const bool fits = term.permutation <= 1;
        term.permutation = 0;
        return fits;
    }

    bool TakeSuffix(CombTerm& term) {
        for (const Suffix& suffix : kSuffixes) {
            if (m_scanner.TakeWord(suffix.word)) {
                term.permutation = suffix.code;
                return true;
            }
        }
        if (m_scanner.Take('p')) {
            const std::optional<int> permutation = m_scanner.TakeInteger();
            term.permutation = permutation.value_or(0);
            return permutation.has_value();
        }
        return true;
    }

    DescScanner m_scanner;
};

}  // namespace

std::optional<CombDescription> ParseCombination(const std::wstring& text) {
    return CombParser(text).Parse();
}

}  // namespace Tevra
