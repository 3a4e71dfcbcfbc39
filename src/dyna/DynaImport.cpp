#include "dyna/DynaImport.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <utility>

#include "dyna/DynaCard.h"
#include "model/VynData.h"
#include "platform/text/Ascii.h"
#include "platform/text/HostPath.h"
#include "platform/text/LineReader.h"

namespace Tevra {

namespace {

/// A keyword line without blanks at its ends, in capitals; cut beyond what any keyword needs.
std::string Capitals(std::string_view line) {
    constexpr std::size_t kMost = 256;
    std::string text(Text::TrimLeft(line).substr(0, kMost));
    std::transform(text.begin(), text.end(), text.begin(), Text::ToUpper<char>);
    return text;
}

/// A blank before the asterisk does not hide a keyword: no data begins so.
bool IsKeyword(std::string_view line) {
    return Text::TrimLeft(line).starts_with('*');
}

bool IsComment(std::string_view line) {
    return line.starts_with('$');
}

struct Held {
    std::int64_t nodes = 0;
    std::int64_t elements = 0;
};

Held HeldBy(const CVynData& model) {
    return {model.NumNode(), model.NumElem()};
}

/// The keywords that begin and end a file hold no data.
bool IsFrame(std::string_view keyword) {
    return keyword.starts_with("*KEYWORD") || keyword == "*END";
}

}  // namespace

bool CDynaImport::OpenRead(const std::wstring& path) {
    m_line = 0;
    m_error.clear();
    m_report = DynaReport();
    std::ifstream file(Text::ToPath(path), std::ios::binary);
    if (!file.is_open()) {
        return Fail("the file can't be opened");
    }
    CLineReader lines(file);
    return Read(lines);
}

bool CDynaImport::Read(CLineReader& lines) {
    if (m_model == nullptr) {
        return Fail("there is no model");
    }
    const Held before = HeldBy(*m_model);
    const bool read = ReadKeywords(lines);
    const Held after = HeldBy(*m_model);
    m_report.nodesReplaced = m_report.nodes - (after.nodes - before.nodes);
    m_report.elementsReplaced = m_report.elements - (after.elements - before.elements);
    m_line = lines.Number();
    return lines.Error().empty() ? read : Fail(std::string(lines.Error()));
}

bool CDynaImport::ReadKeywords(CLineReader& lines) {
    std::string_view line;
    bool more = lines.Next(line);
    while (more) {
        bool known = false;
        if (IsKeyword(line) && !ReadBlock(lines, line, known)) {
            return false;
        }
        // A block reader leaves the line that ended its block, or nothing at the end of the file.
        more = known ? !line.empty() : lines.Next(line);
    }
    return true;
}

bool CDynaImport::ReadBlock(CLineReader& lines, std::string_view& line, bool& known) {
    struct Block {
        std::string_view keyword;
        bool (CDynaImport::*read)(CLineReader&, std::string_view&);
    };
    static constexpr std::array kBlocks = {
        Block{"*NODE", &CDynaImport::Node},
        Block{"*ELEMENT_BEAM", &CDynaImport::Beam},
        Block{"*ELEMENT_SHELL", &CDynaImport::Shell},
        Block{"*ELEMENT_SOLID", &CDynaImport::Solid},
        Block{"*ELEMENT_DISCRETE", &CDynaImport::Spring},
        Block{"*ELEMENT_MASS", &CDynaImport::Mass},
        Block{"*ELEMENT_INERTIA", &CDynaImport::Inertia},
    };
    const std::string text = Capitals(line);
    for (const Block& block : kBlocks) {
        if (text.starts_with(block.keyword)) {
            known = true;
            std::string error;
            return ReadDynaForm(text, block.keyword, m_form, error)
                       ? SkipHeading(lines, line) && (this->*block.read)(lines, line)
                       : Fail(std::move(error));
        }
    }
    if (!IsFrame(text)) {
        m_report.skipped.Add(text);
    }
    std::string error;
    return HasStandardFields(text, error) || Fail(std::move(error));
}

bool CDynaImport::NextData(CLineReader& lines, std::string_view& line) {
    while (lines.Next(line)) {
        if (!IsComment(line)) {
            return !IsKeyword(line);
        }
    }
    return false;
}

bool CDynaImport::NextEntry(CLineReader& lines, std::string_view& line) {
    while (NextData(lines, line)) {
        if (line.empty()) {
            continue;
        }
        return line.find(',') == std::string_view::npos ||
               Fail("the line is comma-separated: only fixed columns are read");
    }
    return false;
}

bool CDynaImport::NextOfEntry(CLineReader& lines, std::string_view& line) {
    if (NextEntry(lines, line)) {
        return true;
    }
    return m_error.empty() && Fail("the entry above lacks its second line");
}

bool CDynaImport::SkipHeading(CLineReader& lines, std::string_view& line) {
    if (!m_form.hasHeading) {
        return true;
    }
    // Any text is a heading, so nothing but the first column tells what is none.
    do {
        if (!lines.Next(line) || line.starts_with('*')) {
            return Fail("the keyword lacks its heading line");
        }
    } while (IsComment(line));
    return true;
}

bool CDynaImport::SkipFurther(CLineReader& lines, std::string_view& line, bool hasMidSideNodes) {
    for (const DynaFurtherLine& further : DynaFurtherLines()) {
        if ((m_form.furtherLines & further.bit) == 0 ||
            (further.withMidSideNodes && !hasMidSideNodes)) {
            continue;
        }
        // A blank line counts: its fields have their defaults.
        if (!NextData(lines, line)) {
            return Fail("the entry above lacks a further line, which its keyword asks for");
        }
        if (line.find(',') == std::string_view::npos && !IsFurtherLine(line, further)) {
            return false;
        }
    }
    return true;
}

/// Whether a line is made of the numbers that belong into a further line, and can't be the next
/// entry.
bool CDynaImport::IsFurtherLine(std::string_view line, const DynaFurtherLine& further) {
    const std::string what = "a further line of the entry above must stand here: ";
    CDynaCard card(line);
    for (int i = 0; i < further.fields; ++i) {
        card.Real(further.width);
    }
    if (!card.Good()) {
        return Fail(what + card.Error());
    }
    CDynaCard entry(line);
    entry.Number();
    entry.Reference();
    entry.Number();
    entry.Number();
    return !entry.Good() || Fail(what + "the line reads as an entry");
}

bool CDynaImport::IsGood(const CDynaCard& card) {
    return card.Good() || Fail(card.Error());
}

bool CDynaImport::Fail(std::string reason) {
    m_error = std::move(reason);
    return false;
}

}  // namespace Tevra
