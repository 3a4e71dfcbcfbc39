#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Tevra::TestSupport {

/// The fields of one record of a legacy file, in order.
class VybFields {
public:
    VybFields() = default;
    /// Integers and reals as they are; texts with the length of their characters.
    using Field = std::variant<std::int32_t, float, std::string>;
    VybFields(std::initializer_list<Field> fields) : m_fields(fields) {}
    VybFields& Add(Field field) {
        m_fields.push_back(std::move(field));
        return *this;
    }
    VybFields& Ints(std::initializer_list<std::int32_t> values);
    VybFields& Reals(std::initializer_list<float> values);
    /// A text filled with blanks, or cut, to a length.
    VybFields& Text(std::string text, std::size_t length);
    /// Adds zeros up to a number of bytes.
    VybFields& PadTo(std::size_t length);

    const std::vector<Field>& All() const { return m_fields; }
    /// The bytes, words in the machine's order or the other one.
    std::string Bytes(bool swap) const;

private:
    std::vector<Field> m_fields;
};

/// Makes legacy binary model files record by record.
class VybWriter {
public:
    // Header; only what a reader uses has a name here.
    std::string version = "00006";
    int structType = 0;
    std::array<int, 6> freeDirections{1, 1, 1, 1, 1, 1};
    int massOption = 1;
    int massCase = 0;
    int massDirection = 0;
    float massScale = 0.0F;
    int numLoadCase = 0;
    int resultsIndicator = 0;
    int unitFlag = 0;
    std::string units = "m    N    kg   ";
    /// In place of the number that follows from the entries.
    int numDirectory = kFromEntries;
    /// In place of the entries that follow from the records, by their number from 1.
    std::map<int, std::int32_t> entries;
    /// In place of the counts and record lengths of tables, by their entry.
    std::map<int, std::int32_t> counts;
    std::map<int, std::int32_t> lengths;

    /// Adds a record to the table of an entry.
    void Add(int entry, const VybFields& record) { m_tables[entry].push_back(record); }
    void AddTitle(const std::string& title) { m_titles.Text(title, 10); }
    /// Sets the record of a load case's results.
    void SetResult(int loadCase, int solution, const VybFields& record);

    /// The whole file, words in the machine's order or the other one.
    std::string Bytes(bool swap = false) const;

private:
    static constexpr int kFromEntries = -12345;
    struct Piece {
        std::int32_t solution = 0;
        VybFields fields;
    };
    std::map<int, Piece> Pieces() const;
    int NumRecord(int entry) const;
    /// Of a kind of records that have numbers; else how many there are.
    int HighestNumber(int entry) const;
    void AppendHeader(std::string& out, int directoryCount, bool swap) const;

    std::map<int, std::vector<VybFields>> m_tables;
    VybFields m_titles;
    std::map<int, Piece> m_results;
};

/// A small file with every kind of record: a frame with a slab, springs, loads and results.
VybWriter SmallVyb();

}  // namespace Tevra::TestSupport
