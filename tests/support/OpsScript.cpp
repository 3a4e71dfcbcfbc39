#include "support/OpsScript.h"

#include <cstdlib>
#include <limits>
#include <map>
#include <set>
#include <sstream>

namespace Tevra::TestSupport {

std::string OpsCommand::Rest(std::size_t first) const {
    std::string text;
    for (std::size_t k = first; k < words.size(); ++k) {
        text += (k > first ? " " : "") + words[k];
    }
    return text;
}

double OpsCommand::Real(std::size_t k) const {
    char* end = nullptr;
    const double value = k < words.size() ? std::strtod(words[k].c_str(), &end) : 0.0;
    return end != nullptr && *end == '\0' ? value : std::numeric_limits<double>::quiet_NaN();
}

std::vector<std::string> OpsScript::Named(std::string_view word) const {
    std::vector<std::string> found;
    for (const OpsCommand& command : commands) {
        if (command.words.front() == word) {
            found.push_back(command.Rest(1));
        }
    }
    return found;
}

OpsScript ReadOpsScript(const std::string& text) {
    OpsScript script;
    std::string block;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.empty()) {
            continue;
        }
        if (line[0] == '#') {
            script.comments.push_back(line);
            if (line.back() == '\\') {
                script.faults.push_back("comment goes on: " + line);
            }
            continue;
        }
        if (line == "}") {
            if (block.empty()) {
                script.faults.emplace_back("brace without a block");
            }
            block.clear();
            continue;
        }
        if (line.find_first_of("[]$;\"\\") != std::string::npos ||
            line.find("  ") != std::string::npos || line.back() == ' ') {
            script.faults.push_back("not plain words: " + line);
        }
        OpsCommand command{{}, block};
        std::istringstream words(line);
        for (std::string word; words >> word;) {
            command.words.push_back(word);
        }
        if (command.words.back() == "{") {
            if (!block.empty()) {
                script.faults.push_back("block in a block: " + line);
            }
            command.words.pop_back();
            block = command.words.front();
        }
        script.commands.push_back(std::move(command));
    }
    if (!block.empty()) {
        script.faults.emplace_back("block without an end");
    }
    return script;
}

namespace {

/// Which kind of thing each word of a command from the third on names, as letters: n node, m
/// material, s section, t transformation, . something else; the last letter goes on for all words
/// that follow.
struct ElementForm {
    const char* type;
    const char* letters;
};
constexpr ElementForm kElements[] = {
    {"elasticBeamColumn", "nn......t"},
    {"dispBeamColumn", "nn.st"},
    {"nonlinearBeamColumn", "nn.st"},
    {"beamWithHinges", "nns.s.......t"},
    {"truss", "nn.m"},
    {"corotTruss", "nn.m"},
    {"quad", "nnnn..m"},
    {"ShellMITC4", "nnnns"},
};

class TagCheck {
public:
    std::vector<std::string> Run(const OpsScript& script) {
        for (const OpsCommand& command : script.commands) {
            Check(command);
        }
        return m_open;
    }

private:
    void Check(const OpsCommand& command) {
        const std::string& word = command.words.front();
        const auto at = [&](std::size_t k) {
            return k < command.words.size() ? command.words[k] : std::string("(none)");
        };
        if (word == "node" || word == "load") {
            word == "node" ? Define(word, at(1)) : Need(command, "node", at(1));
        } else if (word == "uniaxialMaterial" || word == "section" || word == "geomTransf") {
            Define(word, at(2));
        } else if (word == "patch") {
            Need(command, "uniaxialMaterial", at(2));
        } else if (word == "element") {
            Define(word, at(2));
            CheckElement(command);
        } else if (word == "eleLoad") {
            Need(command, "element", at(2));
        } else if (word == "rigidLink" || word == "rigidDiaphragm") {
            NeedNodes(command, 2, command.words.size());
        } else if (word == "equalDOF") {
            NeedNodes(command, 1, 3);
        }
    }

    void CheckElement(const OpsCommand& command) {
        for (const ElementForm& form : kElements) {
            if (form.type != command.words[1]) {
                continue;
            }
            const std::string letters = form.letters;
            if (command.words.size() != letters.size() + 3) {
                m_open.push_back("wrong number of words: " + command.Rest());
                return;
            }
            for (std::size_t k = 0; k < letters.size(); ++k) {
                const std::string& word = command.words[k + 3];
                switch (letters[k]) {
                    case 'n':
                        Need(command, "node", word);
                        break;
                    case 'm':
                        Need(command, "uniaxialMaterial", word);
                        break;
                    case 's':
                        Need(command, "section", word);
                        break;
                    case 't':
                        Need(command, "geomTransf", word);
                        break;
                    default:
                        break;
                }
            }
            return;
        }
        m_open.push_back("unknown element: " + command.Rest());
    }

    void NeedNodes(const OpsCommand& command, std::size_t first, std::size_t end) {
        for (std::size_t k = first; k < end && k < command.words.size(); ++k) {
            Need(command, "node", command.words[k]);
        }
    }

    void Define(const std::string& kind, const std::string& tag) {
        if (!m_tags[kind].insert(tag).second) {
            m_open.push_back(kind + " " + tag + " twice");
        }
    }

    void Need(const OpsCommand& command, const std::string& kind, const std::string& tag) {
        if (m_tags[kind].count(tag) == 0) {
            m_open.push_back(command.Rest() + ": no " + kind + " " + tag);
        }
    }

    std::map<std::string, std::set<std::string>> m_tags;
    std::vector<std::string> m_open;
};

}  // namespace

std::vector<std::string> OpenReferences(const OpsScript& script) {
    return TagCheck().Run(script);
}

}  // namespace Tevra::TestSupport
