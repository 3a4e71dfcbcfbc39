#include "support/KeywordDeck.h"

#include <algorithm>
#include <cstdlib>
#include <set>
#include <sstream>

#include "support/KeywordCards.h"

namespace Tevra::TestSupport {

namespace {

constexpr long kNoInt = -999'999'999;
constexpr double kNoReal = -1.2345e99;

std::string Trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos
               ? std::string()
               : std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool IsInt(const std::string& text) {
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    return text.size() > first && text.find_first_not_of("0123456789", first) == std::string::npos;
}

/// The number that a text begins with.
long NumberOf(const std::string& text) {
    return std::strtol(text.c_str(), nullptr, 10);
}

bool IsReal(const std::string& text) {
    if (text.empty() || text.find_first_not_of("0123456789.e+-") != std::string::npos) {
        return false;
    }
    char* end = nullptr;
    const double value = std::strtod(text.c_str(), &end);
    return *end == '\0' && value == value;
}

/// Lines that do not keep to the layout, on purpose: where and why.
struct Kept {
    std::string_view keyword;
    std::string_view field;
    std::string_view reason;
};

constexpr Kept kKeptForms[] = {
    {"DAMPING_PART_MASS_SET", "LCID", "the factor stands in the place of a curve"},
};

constexpr Kept kKeptReferences[] = {
    {"LOAD_NODE_POINT", "LCID", "the user adds the curve of a load case"},
    {"LOAD_BEAM_ELEMENT", "LCID", "the user adds the curve of a load case"},
    {"LOAD_SHELL_ELEMENT", "LCID", "the user adds the curve of a load case"},
    {"LOAD_SEGMENT", "LCID", "the user adds the curve of a load case"},
    {"LOAD_BODY_X", "LCID", "the user adds the curve of a load case"},
    {"LOAD_BODY_Y", "LCID", "the user adds the curve of a load case"},
    {"LOAD_BODY_Z", "LCID", "the user adds the curve of a load case"},
    {"PART", "MID", "later parts of a design grade, and models without a card"},
    {"DEFINE_COORDINATE_SYSTEM", "CID", "links count on from the number of user axes"},
    {"DEFINE_COORDINATE_NODES", "CID", "cross sections count on from the links"},
    {"PART_COMPOSITE", "PID", "layered properties have a *PART, too"},
};

template <std::size_t N>
bool IsKept(const Kept (&table)[N], std::string_view keyword, std::string_view field) {
    return std::any_of(std::begin(table), std::end(table), [&](const Kept& kept) {
        return kept.keyword == keyword && kept.field == field;
    });
}

/// Reads line by line, knowing where in its keyword it is.
class DeckReaderByCard {
public:
    explicit DeckReaderByCard(KeywordDeck& deck) : m_deck(deck) {}

    void Line(const std::string& line) {
        ++m_line;
        if (line.starts_with('$')) {
            return;
        }
        if (line.starts_with('*')) {
            Keyword(line.substr(1));
        } else {
            Data(line);
        }
    }

    void End() {
        EndKeyword();
        if (m_deck.keywords.empty() || m_deck.keywords.front() != "KEYWORD" ||
            m_deck.keywords.back() != "END") {
            Fault("the file does not begin with *KEYWORD and end with *END", "");
        }
    }

private:
    void Fault(const std::string& what, const std::string& line) {
        m_deck.faults.push_back("line " + std::to_string(m_line) + " (" + m_keyword + "): " + what +
                                ": " + line);
    }

    void EndKeyword() {
        if (m_card == nullptr) {
            return;
        }
        const int lines = m_card->NumLine();
        const bool isWhole = m_card->repeatFrom != 0
                                 ? m_next == m_card->repeatFrom || (m_next > lines)
                                 : m_next > lines;
        if (!isWhole) {
            Fault("the keyword above lacks lines", "");
        }
    }

    void Keyword(const std::string& name) {
        EndKeyword();
        m_keyword = name;
        m_deck.keywords.push_back(name);
        m_card = FindKeywordCard(name);
        m_next = 1;
        if (m_card == nullptr) {
            Fault("unknown keyword", name);
        }
    }

    std::string_view Layout() {
        const auto layout = m_card->lines[static_cast<std::size_t>(m_next - 1)];
        const bool isSecond = m_keyword.starts_with("SECTION_BEAM") && m_next == m_card->NumLine();
        return isSecond ? BeamSectionLine(m_deck.rows.back().Int("ELFORM")) : layout;
    }

    void Data(const std::string& line) {
        if (m_card == nullptr) {
            return;
        }
        const int lines = m_card->NumLine();
        if (m_next > lines && m_card->repeatFrom != 0) {
            m_next = m_card->repeatFrom;
        }
        if (m_next > lines) {
            Fault("more lines than the keyword has", line);
            return;
        }
        if (m_keyword.starts_with("SECTION_BEAM_TITLE") && m_next == 3 &&
            line.starts_with("SECTION_")) {
            Cut(line, "STYPE(10A) D1(10F) D2(10F) D3(10F) D4(10F) D5(10F) D6(10F)");
        } else {
            Cut(line, Layout());
        }
        ++m_next;
        if (m_next > lines && m_card->repeatFrom != 0) {
            m_next = m_card->repeatFrom;
        }
    }

    void Cut(const std::string& line, std::string_view layout) {
        KeywordRow row{m_keyword, m_next, m_line, {}};
        std::size_t at = 0;
        bool hasText = false;
        std::istringstream fields{std::string(layout)};
        for (std::string field; fields >> field && at < line.size();) {
            const std::size_t open = field.find('(');
            const auto width = static_cast<std::size_t>(NumberOf(field.substr(open + 1)));
            const char kind = field[field.size() - 2];
            const std::string text = Trimmed(line.substr(at, width));
            hasText = hasText || kind == 'A';
            if (kind != 'A' && !text.empty()) {
                Check(line, field.substr(0, open), kind, text, at + width <= line.size());
            }
            row.fields.emplace_back(field.substr(0, open), text);
            at += width;
        }
        // Titles may be longer than the solver keeps of them.
        if (at < line.size() && !hasText) {
            Fault("longer than its fields", line);
        }
        m_deck.rows.push_back(std::move(row));
    }

    void Check(const std::string& line, const std::string& field, char kind,
               const std::string& text, bool isWhole) {
        const bool isGood =
            isWhole &&
            (kind == 'I' && !IsKept(kKeptForms, m_keyword, field) ? IsInt(text) : IsReal(text));
        if (!isGood) {
            Fault(field + " is \"" + text + "\"", line);
        }
    }

    KeywordDeck& m_deck;
    std::string m_keyword;
    const KeywordCard* m_card = nullptr;
    int m_next = 1;
    int m_line = 0;
};

enum class Kind {
    Node,
    Part,
    Section,
    Material,
    Curve,
    System,
    NodeSet,
    ShellSet,
    PartSet,
    Beam,
    Discrete,
    Shell,
    Solid,
    Any,
    BeamSet,
    Contact,
    Cross
};

struct Place {
    Kind kind;
    int card;
    std::string_view keyword;  ///< the beginning of its name
    std::string_view field;    ///< the beginning of its name
};

constexpr Place kDefinitions[] = {
    {Kind::Node, 1, "NODE", "NID"},
    {Kind::Part, 2, "PART", "PID"},
    {Kind::Part, 1, "CONSTRAINED_NODAL_RIGID_BODY", "PID"},
    {Kind::Section, 2, "SECTION_BEAM_TITLE", "SECID"},
    {Kind::Section, 2, "SECTION_SOLID_TITLE", "SECID"},
    {Kind::Section, 1, "SECTION_", "SECID"},
    {Kind::Section, 2, "PART_COMPOSITE", "PID"},
    {Kind::Material, 1, "MAT_", "MID"},
    {Kind::Curve, 1, "DEFINE_CURVE", "LCID"},
    {Kind::System, 1, "DEFINE_COORDINATE_", "CID"},
    {Kind::NodeSet, 1, "SET_NODE", "SID"},
    {Kind::ShellSet, 1, "SET_SHELL", "SID"},
    {Kind::BeamSet, 1, "SET_BEAM", "SID"},
    {Kind::PartSet, 1, "SET_PART", "SID"},
    {Kind::Beam, 1, "ELEMENT_BEAM", "EID"},
    {Kind::Discrete, 1, "ELEMENT_DISCRETE", "EID"},
    {Kind::Shell, 1, "ELEMENT_SHELL", "EID"},
    {Kind::Solid, 1, "ELEMENT_SOLID", "EID"},
    {Kind::Any, 1, "ELEMENT_", "EID"},
    {Kind::Contact, 1, "CONTACT_", "CID"},
    {Kind::Cross, 1, "DATABASE_CROSS_", "CSID"},
};

constexpr Place kReferences[] = {
    {Kind::Section, 2, "PART", "SECID"},
    {Kind::Material, 2, "PART", "MID"},
    {Kind::Material, 3, "PART_COMPOSITE", "MID"},
    {Kind::Part, 1, "ELEMENT_", "PID"},
    {Kind::Node, 1, "ELEMENT_", "N"},
    {Kind::Node, 2, "ELEMENT_SOLID", "N"},
    {Kind::System, 2, "ELEMENT_SHELL_MCID", "MCID"},
    {Kind::System, 1, "ELEMENT_INERTIA", "CSID"},
    {Kind::System, 2, "SECTION_BEAM", "CID"},
    {Kind::NodeSet, 1, "CONSTRAINED_NODAL_RIGID_BODY", "NSID"},
    {Kind::System, 1, "CONSTRAINED_NODAL_RIGID_BODY", "CID"},
    {Kind::Part, 1, "CONSTRAINED_RIGID_BODIES", "PID"},
    {Kind::Node, 2, "CONSTRAINED_LINEAR_LOCAL", "NID"},
    {Kind::System, 2, "CONSTRAINED_LINEAR_LOCAL", "CID"},
    {Kind::Node, 2, "SET_NODE", "ID"},
    {Kind::Shell, 2, "SET_SHELL", "ID"},
    {Kind::Beam, 2, "SET_BEAM", "ID"},
    {Kind::Part, 2, "SET_PART_LIST", "ID"},
    {Kind::ShellSet, 2, "CONTACT_", "SURFB"},
    {Kind::Node, 1, "BOUNDARY_", "NID"},
    {Kind::System, 1, "BOUNDARY_SPC_NODE", "CID"},
    {Kind::Curve, 1, "BOUNDARY_PRESCRIBED", "LCID"},
    {Kind::Node, 1, "LOAD_NODE_POINT", "NID"},
    {Kind::System, 1, "LOAD_NODE_POINT", "CID"},
    {Kind::Beam, 1, "LOAD_BEAM_ELEMENT", "EID"},
    {Kind::Shell, 1, "LOAD_SHELL_ELEMENT", "EID"},
    {Kind::Node, 1, "LOAD_SEGMENT", "N"},
    {Kind::Curve, 1, "LOAD_", "LCID"},
    {Kind::Curve, 0, "MAT_", "LC"},
    {Kind::Curve, 0, "MAT_", "C"},
    {Kind::PartSet, 1, "DAMPING_", "PSID"},
    {Kind::PartSet, 2, "DATABASE_CROSS_", "PSID"},
    {Kind::System, 3, "DATABASE_CROSS_", "ID"},
    {Kind::Node, 1, "DEFINE_COORDINATE_NODES", "N"},
    {Kind::Node, 1, "DATABASE_HISTORY_NODE", "ID"},
    {Kind::Beam, 1, "DATABASE_HISTORY_BEAM", "ID"},
    {Kind::Any, 1, "DATABASE_HISTORY_DISCRETE", "ID"},  // springs that are discrete beams, too
    {Kind::Shell, 1, "DATABASE_HISTORY_SHELL", "ID"},
    {Kind::Solid, 1, "DATABASE_HISTORY_SOLID", "ID"},
};

/// The name stands for all keywords that begin with it, but for those that begin others.
bool IsOf(const std::string& keyword, std::string_view name) {
    const bool isWhole = name == "PART" || name == "NODE" || name == "SET_PART_LIST";
    return isWhole ? keyword == name : keyword.starts_with(name);
}

/// The name itself, the name and a number, or what begins with a name that stands for many.
bool IsField(std::string_view field, std::string_view name) {
    return field.starts_with(name) &&
           (name == "LC" ||
            field.substr(name.size()).find_first_not_of("0123456789") == std::string_view::npos);
}

template <class Use>
void ForEachField(const KeywordDeck& deck, const Place& place, Use use) {
    for (const KeywordRow& row : deck.rows) {
        if (!IsOf(row.keyword, place.keyword) || (place.card != 0 && row.card != place.card)) {
            continue;
        }
        for (const auto& [name, text] : row.fields) {
            if (IsField(name, place.field) && IsInt(text)) {
                use(row, name, NumberOf(text));
            }
        }
    }
}

std::string At(const KeywordRow& row, const std::string& field, long number) {
    return row.keyword + " line " + std::to_string(row.line) + ": " + field + " " +
           std::to_string(number);
}

}  // namespace

std::string KeywordRow::Text(std::string_view name) const {
    for (const auto& [field, text] : fields) {
        if (field == name) {
            return text;
        }
    }
    return {};
}

long KeywordRow::Int(std::string_view name) const {
    const std::string text = Text(name);
    return IsInt(text) ? NumberOf(text) : kNoInt;
}

double KeywordRow::Real(std::string_view name) const {
    const std::string text = Text(name);
    return IsReal(text) && text.find('.') != std::string::npos ? std::strtod(text.c_str(), nullptr)
                                                               : kNoReal;
}

std::vector<KeywordRow> KeywordDeck::Rows(std::string_view keyword, int card) const {
    std::vector<KeywordRow> found;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(found), [&](const KeywordRow& row) {
        return row.keyword == keyword && (card == 0 || row.card == card);
    });
    return found;
}

int KeywordDeck::Count(std::string_view keyword) const {
    return static_cast<int>(std::count(keywords.begin(), keywords.end(), keyword));
}

KeywordDeck ReadKeywordDeck(const std::string& text) {
    KeywordDeck deck;
    DeckReaderByCard reader(deck);
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        reader.Line(line);
    }
    reader.End();
    return deck;
}

std::vector<std::string> OpenReferences(const KeywordDeck& deck) {
    std::map<Kind, std::set<long>> known;
    std::vector<std::string> open;
    for (const Place& place : kDefinitions) {
        ForEachField(deck, place, [&](const KeywordRow& row, const std::string& name, long number) {
            const bool isNew = known[place.kind].insert(number).second;
            const bool isTitled = row.keyword.ends_with("_TITLE") && row.card == 1;
            if (!isNew && !isTitled && !IsKept(kKeptReferences, row.keyword, name)) {
                open.push_back(At(row, name, number) + " is there twice");
            }
        });
    }
    for (const Place& place : kReferences) {
        ForEachField(deck, place, [&](const KeywordRow& row, const std::string& name, long number) {
            if (number != 0 && !known[place.kind].contains(number) &&
                !IsKept(kKeptReferences, row.keyword, name)) {
                open.push_back(At(row, name, number));
            }
        });
    }
    for (const KeywordRow& row : deck.Rows("CONTACT_TIED_SHELL_EDGE_TO_SURFACE_ID", 2)) {
        const Kind kind = row.Int("SURFATYP") == 4 ? Kind::NodeSet : Kind::ShellSet;
        if (!known[kind].contains(row.Int("SURFA"))) {
            open.push_back(At(row, "SURFA", row.Int("SURFA")));
        }
    }
    for (const KeywordRow& row : deck.Rows("SET_PART_LIST_GENERATE", 2)) {
        if (row.Int("ID1") != 1 || row.Int("ID2") < static_cast<long>(known[Kind::Part].size())) {
            open.push_back(At(row, "range to", row.Int("ID2")));
        }
    }
    return open;
}

}  // namespace Tevra::TestSupport
