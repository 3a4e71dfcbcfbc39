#include "support/NasDeck.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
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

/// Which fields of a card refer to what: beginnings of the names of the cards that may have the
/// number first. `last` 0 is the same as `first`, -1 the end of the card; `step` 8 looks at the
/// same field of every logical line.
struct Reference {
    std::string_view card;
    std::string_view to;
    int first;
    int last = 0;
    int step = 1;
};

constexpr std::string_view kGrid = "GRID";
constexpr std::string_view kSystem = "CORD";
constexpr std::string_view kMaterial = "MAT";
constexpr std::string_view kBeams = "CBAR CBEAM CROD";
constexpr std::string_view kPlanes = "CQUAD CTRIA";
constexpr std::string_view kFaces = "CQUAD CTRIA CHEXA CPENTA CTETRA CPYRA";

constexpr Reference kReferences[] = {
    {"GRID", kSystem, 6},     {"CORD2R", kSystem, 2},   {"CORD2C", kSystem, 2},
    {"CORD2S", kSystem, 2},   {"SPC", kGrid, 2},        {"SPCD", kGrid, 2},
    {"CELAS1", kGrid, 3},     {"CDAMP1", kGrid, 3},     {"CELAS2", kGrid, 3},
    {"CELAS2", kGrid, 5},     {"CONM2", kGrid, 2},      {"CONM2", kSystem, 3},
    {"CBAR", "PBAR", 2},      {"CBAR", kGrid, 3, 4},    {"CBEAM", "PBEAM", 2},
    {"CBEAM", kGrid, 3, 4},   {"CROD", "PROD", 2},      {"CROD", kGrid, 3, 4},
    {"CGAP", "PGAP", 2},      {"CGAP", kGrid, 3, 4},    {"CONROD", kGrid, 2, 3},
    {"CONROD", kMaterial, 4}, {"RBAR", kGrid, 2, 3},    {"RBE2", kGrid, 2},
    {"RBE2", kGrid, 4, -1},   {"MPC", kGrid, 2, -1, 8}, {"MPC", kGrid, 5, -1, 8},
    {"CQUAD4", "PSHELL", 2},  {"CQUAD4", kGrid, 3, 6},  {"CQUAD8", "PSHELL", 2},
    {"CQUAD8", kGrid, 3, 10}, {"CTRIA3", "PSHELL", 2},  {"CTRIA3", kGrid, 3, 5},
    {"CTRIA6", "PSHELL", 2},  {"CTRIA6", kGrid, 3, 8},  {"CHEXA8", "PSOLID", 2},
    {"CHEXA8", kGrid, 3, 10}, {"CPENTA", "PSOLID", 2},  {"CPENTA", kGrid, 3, 8},
    {"CTETRA", "PSOLID", 2},  {"CTETRA", kGrid, 3, 6},  {"CPYRA", "PSOLID", 2},
    {"CPYRA", kGrid, 3, 7},   {"PBAR", kMaterial, 2},   {"PBARL", kMaterial, 2},
    {"PBEAM", kMaterial, 2},  {"PBEAML", kMaterial, 2}, {"PROD", kMaterial, 2},
    {"PSOLID", kMaterial, 2}, {"PSHELL", kMaterial, 2}, {"PSHELL", kMaterial, 4},
    {"PSHELL", kMaterial, 6}, {"FORCE", kGrid, 2},      {"FORCE", kSystem, 3},
    {"MOMENT", kGrid, 2},     {"MOMENT", kSystem, 3},   {"PLOAD1", "CBAR CBEAM", 2},
    {"PLOAD4", kFaces, 2},    {"PLOAD4", kGrid, 7, 8},  {"PLOAD4", kSystem, 9},
    {"TEMPRB", kBeams, 2},    {"TEMPP1", kPlanes, 2},
};

/// Fields that name what files in the field do not have, and why.
struct Kept {
    std::string_view card;
    int field;
    std::string_view value;  ///< alone, or empty for any
    std::string_view reason;
};
constexpr Kept kKept[] = {
    {"CELAS1", 2, "", "springs at nodes have no property card; CELAS2 cards have the stiffness"},
    {"CDAMP1", 2, "", "dampers at nodes have no property card"},
    {"PSHELL", 4, "-1", "plane strain"},
};

bool IsKept(const NasCard& card, int field) {
    return std::any_of(std::begin(kKept), std::end(kKept), [&](const Kept& kept) {
        return kept.card == card.name && kept.field == field &&
               (kept.value.empty() || kept.value == card.Field(field));
    });
}

bool NameBegins(const std::string& name, std::string_view prefixes) {
    std::istringstream stream{std::string(prefixes)};
    for (std::string prefix; stream >> prefix;) {
        if (name.starts_with(prefix)) {
            return true;
        }
    }
    return false;
}

std::set<std::string> NumbersOf(const NasDeck& deck, std::string_view prefixes) {
    std::set<std::string> numbers;
    for (const NasCard& card : deck.cards) {
        if (NameBegins(card.name, prefixes)) {
            numbers.insert(card.Field(1));
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
    std::map<std::string_view, std::set<std::string>> known;
    for (const Reference& reference : kReferences) {
        if (!known.contains(reference.to)) {
            known[reference.to] = NumbersOf(deck, reference.to);
        }
    }
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
            for (int k = reference.first; k <= last; k += reference.step) {
                const std::string number = card.Field(k);
                const bool isNone = number.empty() || (reference.to == kSystem && number == "0");
                if (!isNone && !known[reference.to].contains(number) && !IsKept(card, k)) {
                    open.push_back(card.name + " " + card.Field(1) + ": field " +
                                   std::to_string(k) + " refers to " + number);
                }
            }
        }
    }
    return open;
}

std::vector<std::string> SharedNumbers(const NasDeck& deck) {
    // Cards of one line number one kind of thing. A section of bars and rods, or of bars and beams,
    // has a card of each with its number; PSOLID cards stand twice.
    constexpr std::string_view kElements =
        "CBAR CBEAM CROD CGAP CONROD CELAS CDAMP CONM CQUAD CTRIA CHEXA "
        "CPENTA CTETRA CPYRA RBAR RBE2";
    constexpr std::string_view kKinds[] = {"GRID",      "MAT",        "CORD",      kElements,
                                           "PBAR PGAP", "PBEAM PGAP", "PROD PGAP", "PSHELL"};
    std::vector<std::string> shared;
    for (const std::string_view kind : kKinds) {
        std::set<std::string> numbers;
        for (const NasCard& card : deck.cards) {
            if (NameBegins(card.name, kind) && !numbers.insert(card.Field(1)).second) {
                shared.push_back(card.name + " " + card.Field(1));
            }
        }
    }
    return shared;
}

std::vector<std::string> OpenSets(const NasDeck& deck, const std::set<std::string>& emptyCases) {
    std::map<std::string, std::set<std::string>> sets{
        {"LOAD", NumbersOf(deck, "FORCE MOMENT PLOAD GRAV SPCD LOAD")},
        {"TEMPERATURE(LOAD)", NumbersOf(deck, "TEMP")},
        {"METHOD", NumbersOf(deck, "EIGRL")}};
    std::vector<std::string> open;
    const auto look = [&](const std::string& kind, const std::string& set) {
        if (sets.contains(kind) && !sets[kind].contains(set) && !emptyCases.contains(set)) {
            open.push_back(kind + " " + set);
        }
    };
    for (const std::string& line : deck.control) {
        const std::size_t equals = line.find(" = ");
        if (equals != std::string::npos) {
            look(line.substr(0, equals), line.substr(equals + 3));
        }
    }
    for (const NasCard& card : deck.Named("LOAD")) {
        for (int k = 4; k <= static_cast<int>(card.fields.size()); k += 2) {
            look("LOAD", card.Field(k));
        }
    }
    return open;
}

}  // namespace Tevra::TestSupport
