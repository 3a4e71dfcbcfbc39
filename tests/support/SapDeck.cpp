#include "support/SapDeck.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <map>
#include <set>
#include <sstream>

namespace Tevra::TestSupport {

namespace {

constexpr std::string_view kKeywords[] = {
    "SYSTEM",        "COORDINATE", "JOINT",      "LOCAL", "RESTRAINT",     "SPRING",
    "FRAME",         "NLLINK",     "SHELL",      "PLANE", "FRAME SECTION", "NLPROP",
    "SHELL SECTION", "MATERIAL",   "CONSTRAINT", "LOAD",  "END",
};

bool IsKeyword(std::string_view line) {
    return std::find(std::begin(kKeywords), std::end(kKeywords), line) != std::end(kKeywords);
}

std::vector<std::string> Split(const std::string& value, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(value);
    for (std::string part; std::getline(stream, part, separator);) {
        parts.push_back(part);
    }
    return parts;
}

/// A word without "=" goes on with the value before it.
SapLine ReadLine(const std::string& text, std::vector<std::string>& faults) {
    SapLine line;
    std::istringstream stream(text);
    for (std::string word; stream >> word;) {
        const std::size_t at = word.find('=');
        if (at != std::string::npos && at > 0) {
            line.items.emplace_back(word.substr(0, at), word.substr(at + 1));
        } else if (at == std::string::npos && !line.items.empty()) {
            std::string& value = line.items.back().second;
            value += (value.ends_with(',') ? "" : " ") + word;
        } else if (at == std::string::npos && line.number.empty()) {
            line.number = word;
        } else {
            faults.push_back("not an item: " + text);
        }
    }
    return line;
}

}  // namespace

bool SapLine::Has(std::string_view key) const {
    return std::any_of(items.begin(), items.end(), [&](const auto& i) { return i.first == key; });
}

std::string SapLine::Value(std::string_view key) const {
    const auto found =
        std::find_if(items.begin(), items.end(), [&](const auto& i) { return i.first == key; });
    return found != items.end() ? found->second : std::string();
}

double SapLine::Real(std::string_view key, std::size_t k) const {
    const std::vector<std::string> parts = Split(Value(key), ',');
    char* end = nullptr;
    const double value = k < parts.size() ? std::strtod(parts[k].c_str(), &end) : 0.0;
    return end != nullptr && *end == '\0' ? value : std::numeric_limits<double>::quiet_NaN();
}

bool SapDeck::Has(std::string_view keyword) const {
    return std::any_of(blocks.begin(), blocks.end(),
                       [&](const SapBlockText& b) { return b.keyword == keyword; });
}

const std::vector<SapLine>& SapDeck::Block(std::string_view keyword) const {
    static const std::vector<SapLine> kNone;
    const auto found = std::find_if(blocks.begin(), blocks.end(),
                                    [&](const SapBlockText& b) { return b.keyword == keyword; });
    return found != blocks.end() ? found->lines : kNone;
}

const SapLine& SapDeck::Line(std::string_view keyword, std::string_view number) const {
    static const SapLine kNone;
    const auto& lines = Block(keyword);
    const auto found = std::find_if(lines.begin(), lines.end(), [&](const SapLine& line) {
        return line.number == number || line.Value("NAME") == number;
    });
    return found != lines.end() ? *found : kNone;
}

SapDeck ReadSapDeck(const std::string& text) {
    SapDeck deck;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (IsKeyword(line)) {
            if (deck.Has(line)) {
                deck.faults.push_back("twice: " + line);
            }
            deck.blocks.push_back({line, {}});
        } else if (deck.blocks.empty()) {
            deck.head.push_back(line);
        } else {
            deck.blocks.back().lines.push_back(ReadLine(line, deck.faults));
        }
    }
    if (deck.blocks.empty() || deck.blocks.back().keyword != "END" || !text.ends_with("END\n")) {
        deck.faults.emplace_back("no END");
    }
    return deck;
}

namespace {

/// Names and numbers of a deck, and what refers to them.
class ReferenceCheck {
public:
    explicit ReferenceCheck(const SapDeck& deck) : m_deck(deck) {}

    std::vector<std::string> Run() {
        for (const SapBlockText& block : m_deck.blocks) {
            const std::string keyword = block.keyword;
            for (const SapLine& line : block.lines) {
                keyword == "LOAD" ? CheckLoad(line) : CheckLine(keyword, line);
            }
        }
        return m_open;
    }

private:
    void CheckLine(const std::string& keyword, const SapLine& line) {
        const std::string who = keyword + " " + line.number + line.Value("NAME");
        for (const char* key : {"J", "J9", "ADD"}) {
            for (const std::string& node : Split(line.Value(key), ',')) {
                if (node != "0" && !line.Has("NAME")) {
                    Need(who, "JOINT", node);
                }
            }
        }
        if (line.Has("SEC")) {
            Need(who, keyword + " SECTION", line.Value("SEC"));
        }
        if (line.Has("MAT")) {
            Need(who, "MATERIAL", line.Value("MAT"));
        }
        if (line.Has("NLP")) {
            std::string name = line.Value("NLP");
            name.insert(0, name.size() < 3 ? 3 - name.size() : 0, '0');
            Need(who, "NLPROP", name);
        }
        CheckAxis(who, line);
    }

    void CheckAxis(const std::string& who, const SapLine& line) {
        if (line.Has("CSYS") && line.Value("CSYS") != "0") {
            Need(who, "COORDINATE", line.Value("CSYS"));
        }
    }

    /// The type of the group tells what ADD names.
    void CheckLoad(const SapLine& line) {
        m_case = line.Has("NAME") ? line.Value("NAME") : m_case;
        m_type = line.Has("TYPE") ? line.Value("TYPE") : m_type;
        m_elements = line.Has("TYPE") ? line.Value("ELEM") : m_elements;
        const std::string who = "LOAD " + m_case + " " + m_type;
        CheckAxis(who, line);
        if (!line.Has("ADD")) {
            return;
        }
        const std::string number = line.Value("ADD");
        const bool isNode =
            m_type == "FORCE" || m_type == "SPRING DISPLACEMENT" || m_elements == "JOINT";
        const bool isFace = m_type == "UNIFORM" || m_elements == "SHELL";
        if (!isFace) {
            Need(who, isNode ? "JOINT" : "FRAME", number);
        } else if (m_deck.Line("PLANE", number).number.empty()) {
            Need(who, "SHELL", number);
        }
    }

    void Need(const std::string& who, const std::string& keyword, const std::string& number) {
        if (m_known.find(keyword) == m_known.end()) {
            for (const SapLine& line : m_deck.Block(keyword)) {
                m_known[keyword].insert(line.Has("NAME") ? line.Value("NAME") : line.number);
            }
        }
        if (m_known[keyword].count(number) == 0) {
            m_open.push_back(who + ": no " + keyword + " " + number);
        }
    }

    const SapDeck& m_deck;
    std::map<std::string, std::set<std::string>> m_known;
    std::vector<std::string> m_open;
    std::string m_case;
    std::string m_type;
    std::string m_elements;
};

}  // namespace

std::vector<std::string> OpenReferences(const SapDeck& deck) {
    return ReferenceCheck(deck).Run();
}

}  // namespace Tevra::TestSupport
