#include "support/VybWriter.h"

#include <algorithm>
#include <cstring>

namespace Tevra::TestSupport {

namespace {

constexpr std::size_t kBlock = 512;
constexpr std::int32_t kSolutionUnit = 1'000'000;
constexpr int kLastNumbered = 10;  // elements; loads have no numbers
constexpr int kTitles = 17;
constexpr int kCombinations = 18;
constexpr int kResults = 20;

template <class T>
std::string Word(T value, bool swap) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    if (swap) {
        std::reverse(bytes.begin(), bytes.end());
    }
    return bytes;
}

std::string Zeros(int words) {
    std::string bytes(static_cast<std::size_t>(words) * 4, '\0');
    return bytes;
}

void PadToBlock(std::string& out) {
    out.resize((out.size() + kBlock - 1) / kBlock * kBlock, '\0');
}

int ValueOr(const std::map<int, std::int32_t>& given, int key, std::size_t fallback) {
    const auto found = given.find(key);
    return found != given.end() ? found->second : static_cast<int>(fallback);
}

}  // namespace

VybFields& VybFields::Ints(std::initializer_list<std::int32_t> values) {
    m_fields.insert(m_fields.end(), values.begin(), values.end());
    return *this;
}

VybFields& VybFields::Reals(std::initializer_list<float> values) {
    m_fields.insert(m_fields.end(), values.begin(), values.end());
    return *this;
}

VybFields& VybFields::Text(std::string text, std::size_t length) {
    text.resize(length, ' ');
    return Add(std::move(text));
}

VybFields& VybFields::PadTo(std::size_t length) {
    while (Bytes(false).size() < length) {
        Add(0);
    }
    return *this;
}

std::string VybFields::Bytes(bool swap) const {
    std::string out;
    for (const Field& field : m_fields) {
        if (const auto* text = std::get_if<std::string>(&field)) {
            out += *text;
        } else if (const auto* real = std::get_if<float>(&field)) {
            out += Word(*real, swap);
        } else {
            out += Word(std::get<std::int32_t>(field), swap);
        }
    }
    return out;
}

void VybWriter::SetResult(int loadCase, int solution, const VybFields& record) {
    m_results[loadCase] = {solution * kSolutionUnit, record};
}

/// What the entries of the directory point to.
std::map<int, VybWriter::Piece> VybWriter::Pieces() const {
    std::map<int, Piece> pieces;
    for (const auto& [entry, records] : m_tables) {
        const std::size_t length = records.front().Bytes(false).size();
        VybFields& fields = pieces[entry].fields;
        fields.Ints({ValueOr(counts, entry, records.size()), ValueOr(lengths, entry, length)});
        for (const VybFields& record : records) {
            for (const auto& field : record.All()) {
                fields.Add(field);
            }
        }
    }
    if (!m_titles.All().empty()) {
        pieces[kTitles].fields = m_titles;
    }
    for (const auto& [loadCase, piece] : m_results) {
        pieces[kResults + loadCase] = piece;
    }
    return pieces;
}

int VybWriter::NumRecord(int entry) const {
    const auto found = m_tables.find(entry);
    return found != m_tables.end() ? static_cast<int>(found->second.size()) : 0;
}

int VybWriter::HighestNumber(int entry) const {
    int highest = 0;
    const auto found = m_tables.find(entry);
    if (entry <= kLastNumbered && found != m_tables.end()) {
        for (const VybFields& record : found->second) {
            highest = std::max(highest, std::get<std::int32_t>(record.All().front()));
        }
        return highest;
    }
    return NumRecord(entry);
}

void VybWriter::AppendHeader(std::string& out, int directoryCount, bool swap) const {
    const VybFields texts = VybFields()
                                .Text(version, 5)
                                .Text("VYB", 5)
                                .Text("1005", 10)
                                .Text("21/11/1996", 10)
                                .Text("VYN", 5)
                                .Text("09:05:00", 10)
                                .Text("6.4", 5);
    VybFields second;
    second.Ints({structType});
    for (const int isFree : freeDirections) {
        second.Ints({isFree});
    }
    second.Ints({massOption, massCase, massDirection}).Reals({massScale});
    second.Ints(
        {numLoadCase, NumRecord(kCombinations), directoryCount, resultsIndicator, unitFlag});
    // Tolerance, gravity, reference temperature; then the highest numbers of the sixteen kinds.
    VybFields first;
    first.Ints({0, 0, 0, 0, 0, 0, 0, 0, 0, 0}).Reals({1e-3F}).Ints({0}).Reals({9.80665F});
    first.Ints({0}).Reals({20.0F}).Ints({0});
    for (int kind = 1; kind <= 16; ++kind) {
        first.Ints({HighestNumber(kind)});
    }
    out = texts.Bytes(swap) + first.Bytes(swap) + Zeros(21) + second.Bytes(swap) + Zeros(44);
    out += VybFields().Text(units, 15).Bytes(swap) + Zeros(60) + std::string(30, ' ') + Zeros(78);
}

std::string VybWriter::Bytes(bool swap) const {
    const std::map<int, Piece> pieces = Pieces();
    const int last = std::max(pieces.empty() ? 0 : pieces.rbegin()->first,
                              entries.empty() ? 0 : entries.rbegin()->first);
    std::string header;
    AppendHeader(header, numDirectory != kFromEntries ? numDirectory : last + 1, swap);
    std::string body = header + Zeros(last);
    PadToBlock(body);
    std::string directory;
    for (int entry = 1; entry <= last; ++entry) {
        std::int32_t value = 0;
        if (const auto piece = pieces.find(entry); piece != pieces.end()) {
            value = piece->second.solution + static_cast<std::int32_t>(body.size() / kBlock) + 1;
            body += piece->second.fields.Bytes(swap);
            PadToBlock(body);
        }
        directory += Word(ValueOr(entries, entry, static_cast<std::size_t>(value)), swap);
    }
    return body.replace(header.size(), directory.size(), directory);
}

VybWriter SmallVyb() {
    VybWriter file;
    file.structType = 2;
    file.massOption = 3;
    file.massCase = 2;
    file.massDirection = 3;
    file.massScale = 0.5F;
    file.numLoadCase = 3;
    file.unitFlag = 1;
    file.units = "mm   kN   t    ";
    file.resultsIndicator = 1'000'000;
    file.freeDirections = {1, 0, 1, 0, 1, 1};

    file.Add(1, VybFields{7, 1, 2, 0, 0, 1, 0, 4}.PadTo(176));
    file.Add(1, VybFields{8, 2, 1, 2, 1, 1, 2, 3, 2, 4}.PadTo(176));
    file.Add(1, VybFields{9, 1, 1, 0, 0, 2}.PadTo(176));
    file.Add(1, VybFields{10, 2, 1, 0, 0, 3}.PadTo(176));
    file.Add(2, VybFields{4, 2}.Reals({1, 2, 3, 0, 1, 0, 0, 0, 1}));
    file.Add(3, VybFields{1}.Reals({2.05e11F, 0.3F, 7850, 1.2e-5F, 0}));
    file.Add(3, VybFields{2}.Reals({3e10F, 0.2F, 2400, 1e-5F, 1.1e10F}));
    file.Add(4, VybFields{1, 1, 1}.Text("UB457x191x67", 32).Reals({0, 0, 0, 0, 0, 0}));
    file.Add(4, VybFields{2, 1, 20}.Text("STI500x200x12x20", 32).Reals({0, 0, 0, 0, 0, 0}));
    file.Add(4, VybFields{3, 2, 21}.Text("any", 32).Reals({0.1F, 1e-3F, 2e-3F, 3e-4F, 0.5F, 0.6F}));
    file.Add(5, VybFields{2, 0}.Reals({1e6F, 2e6F, 3e6F, 4e5F, 0, 0}));
    file.Add(5, VybFields{5, 4}.Reals({0, 0, 0, 1e4F, 0, 0}));
    file.Add(6, VybFields{3, 0}.Reals({1250, 1, 2, 3, 0.1F, 0.2F, 0.3F}));
    file.Add(7, VybFields{1, 5, 0, 2, 0.25F});
    file.Add(8, VybFields{1, 6, 3, 7});
    file.Add(9, VybFields{1}.Reals({0, 0, 0}).Ints({0, 63, 0, 0}));
    file.Add(9, VybFields{2}.Reals({0, 0, 4.5F}).Ints({0, 0, 0, 3}));
    file.Add(9, VybFields{3}.Reals({6, 0, 4.5F}).Ints({0, 0, 2, 0}));
    file.Add(9, VybFields{4}.Reals({6, 5, 4.5F}).Ints({4, 7, 0, 0}));
    file.Add(9, VybFields{6}.Reals({0, 5, 4.5F}).Ints({0, 0, 0, 0}));
    const auto element = [&file](VybFields start, std::initializer_list<int> nodes) {
        start.Ints({static_cast<int>(nodes.size())});
        start.Ints(nodes);
        file.Add(10, start.PadTo(88));
    };
    element(VybFields{1, 1, 2, 1, 0, 30.0F, 0, 48}.Reals({0.1F, -0.2F, 0.3F, 0.4F}).Ints({0}),
            {1, 2});
    element(VybFields{2, 1, 1, 1, 6, 0.0F, 0, 0}.Reals({0, 0, 0, 0}).Ints({1}), {2, 3});
    element(VybFields{3, 6, 1, 2, 0, 0.0F, 0, 0}.Reals({0, 0, 0, 0}).Ints({0}), {2, 3, 4, 6});
    element(VybFields{5, 5, 2, 3, 0, 0.0F, 0, 0}.Reals({0, 0, 0, 0}).Ints({0}), {4, 6});
    element(VybFields{8, 4, 3, 4, 0, 0.0F, 0, 0}.Reals({0, 0, 0, 0}).Ints({0}), {1, 6});
    file.Add(11, VybFields{1, 0}.Reals({0, 0, -1}));
    file.Add(12, VybFields{2, 7, 0, 3, -1e4F});
    file.Add(13, VybFields{2, 9, -1, 1, 0.01F});
    file.Add(14, VybFields{3, 8, -1, 3, 4, 1, 1}.Reals({0.25F, -5, 0.75F, -6, 0, 0}));
    file.Add(14, VybFields{1, 8, 0, 3, 2, 0, 0}.Reals({0, -5, 0, 0, 0, 0}));
    file.Add(14, VybFields{3, 8, 0, 1, 11, 0, 0}.Reals({0, 8e5F, 0, 0, 0.05F, -0.15F}));
    file.Add(15, VybFields{1, 10, -1, 3, 2, 0}.Reals({1, 2, 3, 4}));
    file.Add(16, VybFields{3, 8, 2, 12.0F, 5.0F});
    file.Add(16, VybFields{3, 10, 5, 8.0F, 3.0F});
    file.AddTitle("Dead");
    file.AddTitle("Wind \xC4");
    file.AddTitle("");
    file.Add(18, VybFields{4}.Text("Both", 20).Reals({1.0F, 0.0F, -0.5F}));
    file.Add(18, VybFields{5}.Text("Odd", 20).Reals({1.1F, 1e-11F, 0.1F}));
    file.SetResult(1, 1, VybFields{1, 0, 1, 12.5F}.Reals({3000, 2500, 4500}));
    file.SetResult(3, 4, VybFields{2, 7, 0, 0.0F}.Reals({0, 0, 0}));
    return file;
}

}  // namespace Tevra::TestSupport
