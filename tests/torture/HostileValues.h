#pragma once

#include <cstdint>
#include <random>
#include <span>
#include <string>
#include <string_view>

namespace Tevra::TestSupport {

/// How bad a model is. Chances are from 0 to 1.
struct Hostility {
    double oddNumber = 0.0;  ///< chance of a number that no structure has
    double oddText = 0.0;    ///< chance of a text that breaks the rules of some format
    double oddRefer = 0.0;   ///< chance of a reference to a record that is not there
    bool isHuge = false;     ///< records have numbers up to the limit, wider than fields
    bool isFinite = false;   ///< odd numbers are finite
    bool isUnicode = false;  ///< odd texts hold characters alone, no stray surrogates
};

/// Numbers and texts of hostile models, the same ones for the same seed.
class HostileValues {
public:
    HostileValues(std::uint64_t seed, const Hostility& hostility);

    const Hostility& Level() const { return m_hostility; }
    bool Chance(double probability) {
        return Below(1'000'000) < static_cast<int>(probability * 1e6);
    }
    /// 0 to `count` - 1.
    int Below(int count);
    template <class T>
    const T& OneOf(std::span<const T> values) {
        return values[static_cast<std::size_t>(Below(static_cast<int>(values.size())))];
    }

    double Real();
    /// Small whole numbers with many repeats, so that structures hang together, or `Real`.
    double Coordinate();
    /// A number that a record may have: small ones, gaps, numbers at the limits.
    int RecordNumber();
    /// A number of a record that may exist.
    int Reference();
    /// Number of a load case; rarely one so high that formats with an entry for each stop at it.
    int LoadCase();
    /// Any whole number.
    int Integer();
    std::wstring Name();
    /// The same as UTF-8 bytes that can be read.
    std::string Utf8Name();
    /// A text of one of the languages of the model, by the key of a document that it stands under;
    /// a name when the key has none.
    std::string TextOf(std::string_view section, std::string_view key);
    /// An entity list, or a text that is none.
    std::string ListText();

private:
    int OddInteger();
    std::wstring OddText();
    std::wstring LongText();

    std::mt19937_64 m_random;
    Hostility m_hostility;
};

}  // namespace Tevra::TestSupport
