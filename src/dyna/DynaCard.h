#pragma once

#include <string>
#include <string_view>

namespace Tevra {

/// Takes the fields of a data line from its fixed columns, left to right. A blank field, or one
/// beyond the end of the line, is 0. The first field that can't be read makes the card bad; what is
/// taken from a bad card is 0.
class CDynaCard {
public:
    static constexpr int kNumberWidth = 8;

    explicit CDynaCard(std::string_view line) : m_line(line) {}

    /// An integer of any value.
    int Int();
    /// The number of an entity, 1 or more.
    int Number();
    /// The number of an entity that need not be there: 0 or more.
    int Reference();
    /// A constraint or release code: 0 to 7.
    int Code();
    /// A finite number, also one whose exponent has no letter or a D, as in 1.0+5 and 1.0d+5.
    double Real(int width);

    bool Good() const { return m_fault == Fault::None; }
    /// What is wrong and in which columns, as a sentence; empty for a good card.
    std::string Error() const;

private:
    enum class Fault : unsigned char {
        None,
        NoInteger,
        NoNumber,
        TooLarge,
        BelowOne,
        Negative,
        NoCode
    };

    std::string_view Cut(int width);
    int IntIn(int low, int high, Fault outside);
    void Spoil(Fault fault, std::string_view field, int width);

    std::string_view m_line;
    std::size_t m_next = 0;  ///< columns taken so far
    std::string_view m_badField;
    std::size_t m_badColumn = 0;
    int m_badWidth = 0;
    Fault m_fault = Fault::None;
};

}  // namespace Tevra
