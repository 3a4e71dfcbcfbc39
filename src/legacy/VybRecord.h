#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "model/Types.h"

namespace Tevra {

/// Latin-1 text of a legacy file as host text: what stands before a NUL, with blanks for control
/// characters and without blanks at its end.
std::wstring VybText(std::string_view bytes);

/// A single-precision value as the double that its shortest text reads as: 0.1 is 0.1.
double ThroughShortestText(float value);

/// The fields of one record of a legacy file, one after the other. A field that its kind does not
/// allow, or that lies past the end, makes the record bad and reads as the least value of its kind.
class CVybRecord {
public:
    CVybRecord(std::span<const char> bytes, bool swap) : m_bytes(bytes), m_swap(swap) {}

    /// Whether all fields so far were there and allowed.
    bool Good() const { return m_good; }
    void Refuse() { m_good = false; }
    std::size_t BytesLeft() const { return m_bytes.size(); }

    /// Any integer.
    int Int();
    /// An integer of a range.
    int Int(int least, int most);
    /// The number of a record, 1 on.
    int Number();
    /// The number of another record, 0 none.
    int Reference();
    /// The number of a user axis; 0 global, -1 the loaded entity's own.
    int LoadAxis();
    bool Flag() { return Int() != 0; }
    /// Six bits for the directions.
    Vbool6 Directions() { return Vbool6::FromBits(static_cast<unsigned>(Int())); }
    /// A code from 1, by the table of what its values mean.
    template <class T, std::size_t N>
    T Code(const std::array<T, N>& meanings) {
        return Meaning(Int(), meanings);
    }
    /// The same of a code that was read.
    template <class T, std::size_t N>
    T Meaning(int code, const std::array<T, N>& meanings) {
        const bool isKnown = code >= 1 && code <= static_cast<int>(N);
        m_good = m_good && isKnown;
        return meanings[isKnown ? static_cast<std::size_t>(code - 1) : 0];
    }
    /// A finite single-precision real.
    float Single();
    double Real() { return static_cast<double>(Single()); }
    Vec3<double> Vector();
    template <std::size_t N>
    std::array<double, N> Reals() {
        std::array<double, N> values{};
        for (double& value : values) {
            value = Real();
        }
        return values;
    }
    std::wstring Text(std::size_t length);

private:
    std::span<const char> Take(std::size_t length);

    std::span<const char> m_bytes;
    bool m_swap;
    bool m_good = true;
};

}  // namespace Tevra
