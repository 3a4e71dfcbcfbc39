#include "support/NasDeck.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

namespace Tevra::TestSupport {

namespace {

constexpr std::size_t kName = 8;
constexpr std::size_t kData = 72;

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos
               ? std::string()
               : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

/// Joins the lines of bulk data.
class BulkReader {
public:
    explicit BulkReader(NasDeck& deck) : m_deck(deck) {}

    void Line(const std::string& line) {
        const std::string name = Trimmed(std::string_view(line).substr(0, kName));
        const bool continues = !name.empty() && (name[0] == '*' || name[0] == '+');
        if (continues != !m_marker.empty() || (continues && name != m_marker)) {
            Fault("continuation does not follow its card", line);
        }
        if (!continues) {
            m_isLarge = name.back() == '*';
            m_deck.cards.push_back({m_isLarge ? name.substr(0, name.size() - 1) : name, {}});
        }
        const std::size_t width = m_isLarge ? 16 : 8;
        m_marker = line.size() > kData ? Trimmed(std::string_view(line).substr(kData)) : "";
        const std::string data = line.substr(0, kData);
        if (data.size() < kName || (data.size() - kName) % width != 0) {
            Fault("fields are not of one width", line);
        }
        for (std::size_t at = kName; at < data.size(); at += width) {
            m_deck.cards.back().fields.push_back(Trimmed(std::string_view(data).substr(at, width)));
        }
        if (!m_marker.empty()) {
            if (m_marker[0] != (m_isLarge ? '*' : '+') || !m_markers.insert(m_marker).second) {
                Fault("marker is wrong or not unique", line);
            }
        }
    }

private:
    void Fault(const std::string& what, const std::string& line) {
        m_deck.faults.push_back(what + ": " + line);
    }

    NasDeck& m_deck;
    bool m_isLarge = false;
    std::string m_marker;
    std::set<std::string> m_markers;
};

enum class Kind { Grid, Property, Material, System };

/// Which fields of a card refer to what; `last` 0 is the same as `first`, -1 the end of the card.
struct Reference {
    std::string_view card;
    Kind kind;
    int first;
    int last = 0;
};

constexpr Reference kReferences[] = {
    {"GRID", Kind::System, 6},     {"SPC", Kind::Grid, 2},        {"SPCD", Kind::Grid, 2},
    {"CELAS1", Kind::Grid, 3},     {"CDAMP1", Kind::Grid, 3},     {"CELAS2", Kind::Grid, 3},
    {"CELAS2", Kind::Grid, 5},     {"CONM2", Kind::Grid, 2},      {"CONM2", Kind::System, 3},
    {"CBAR", Kind::Property, 2},   {"CBAR", Kind::Grid, 3, 4},    {"CBEAM", Kind::Property, 2},
    {"CBEAM", Kind::Grid, 3, 4},   {"CROD", Kind::Property, 2},   {"CROD", Kind::Grid, 3, 4},
    {"CGAP", Kind::Property, 2},   {"CGAP", Kind::Grid, 3, 4},    {"CONROD", Kind::Grid, 2, 3},
    {"CONROD", Kind::Material, 4}, {"RBAR", Kind::Grid, 2, 3},    {"RBE2", Kind::Grid, 2},
    {"RBE2", Kind::Grid, 4, -1},   {"MPC", Kind::Grid, 2},        {"MPC", Kind::Grid, 5},
    {"CQUAD4", Kind::Property, 2}, {"CQUAD4", Kind::Grid, 3, 6},  {"CQUAD8", Kind::Property, 2},
    {"CQUAD8", Kind::Grid, 3, 10}, {"CTRIA3", Kind::Property, 2}, {"CTRIA3", Kind::Grid, 3, 5},
    {"CTRIA6", Kind::Property, 2}, {"CTRIA6", Kind::Grid, 3, 8},  {"CHEXA8", Kind::Property, 2},
    {"CHEXA8", Kind::Grid, 3, 10}, {"CPENTA", Kind::Property, 2}, {"CPENTA", Kind::Grid, 3, 8},
    {"CTETRA", Kind::Property, 2}, {"CTETRA", Kind::Grid, 3, 6},  {"CPYRA", Kind::Property, 2},
    {"CPYRA", Kind::Grid, 3, 7},   {"PBAR", Kind::Material, 2},   {"PBARL", Kind::Material, 2},
    {"PBEAM", Kind::Material, 2},  {"PBEAML", Kind::Material, 2}, {"PROD", Kind::Material, 2},
    {"PSOLID", Kind::Material, 2}, {"PSHELL", Kind::Material, 2}, {"PSHELL", Kind::Material, 6},
    {"FORCE", Kind::Grid, 2},      {"FORCE", Kind::System, 3},    {"MOMENT", Kind::Grid, 2},
    {"MOMENT", Kind::System, 3},   {"PLOAD4", Kind::Grid, 7, 8},  {"PLOAD4", Kind::System, 9},
};

std::set<std::string> NumbersOf(const NasDeck& deck, std::string_view prefixes) {
    std::set<std::string> numbers;
    for (const NasCard& card : deck.cards) {
        std::istringstream stream{std::string(prefixes)};
        for (std::string prefix; stream >> prefix;) {
            if (card.name.starts_with(prefix)) {
                numbers.insert(card.Field(1));
            }
        }
    }
    return numbers;
}

}  // namespace

std::string NasCard::Field(int k) const {
    return k >= 1 && k <= static_cast<int>(fields.size()) ? fields[static_cast<std::size_t>(k - 1)]
                                                          : std::string();
}

long NasCard::Int(int k) const {
    char* end = nullptr;
    const std::string text = Field(k);
    const long value = std::strtol(text.c_str(), &end, 10);
    return text.empty() || *end != '\0' ? -999'999'999 : value;
}

double NasCard::Real(int k) const {
    char* end = nullptr;
    const std::string text = Field(k);
    const double value = std::strtod(text.c_str(), &end);
    const bool isReal = text.find('.') != std::string::npos && *end == '\0';
    return isReal ? value : -1.2345e99;
}

std::vector<NasCard> NasDeck::Named(std::string_view name) const {
    std::vector<NasCard> found;
    std::copy_if(cards.begin(), cards.end(), std::back_inserter(found),
                 [name](const NasCard& card) { return card.name == name; });
    return found;
}

NasDeck ReadNasDeck(const std::string& text) {
    NasDeck deck;
    BulkReader bulk(deck);
    bool inBulk = false;
    bool ended = false;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with('$')) {
            continue;
        }
        if (ended) {
            deck.faults.push_back("text after the end: " + line);
        }
        ended = line == "ENDDATA";
        if (!inBulk) {
            deck.control.push_back(line);
            inBulk = line == "BEGIN BULK";
        } else if (!ended && !line.starts_with("PARAM,")) {
            bulk.Line(line);
        }
    }
    if (!ended) {
        deck.faults.emplace_back("no end of data");
    }
    return deck;
}

std::vector<std::string> OpenReferences(const NasDeck& deck) {
    std::map<Kind, std::set<std::string>> known{{Kind::Grid, NumbersOf(deck, "GRID")},
                                                {Kind::Property, NumbersOf(deck, "PB PR PG PS")},
                                                {Kind::Material, NumbersOf(deck, "MAT")},
                                                {Kind::System, NumbersOf(deck, "CORD")}};
    std::vector<std::string> open;
    for (const NasCard& card : deck.cards) {
        for (const Reference& reference : kReferences) {
            if (reference.card != card.name) {
                continue;
            }
            const int end = static_cast<int>(card.fields.size());
            const int last = reference.last == -1  ? end
                             : reference.last == 0 ? reference.first
                                                   : std::min(reference.last, end);
            for (int k = reference.first; k <= last; ++k) {
                const std::string number = card.Field(k);
                const bool isNone =
                    number.empty() || (reference.kind == Kind::System && number == "0");
                if (!isNone && !known[reference.kind].contains(number)) {
                    open.push_back(card.name + " " + card.Field(1) + ": field " +
                                   std::to_string(k) + " refers to " + number);
                }
            }
        }
    }
    return open;
}

}  // namespace Tevra::TestSupport
