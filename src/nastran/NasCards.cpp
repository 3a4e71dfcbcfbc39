#include <algorithm>
#include <cmath>

#include "io/CardFields.h"
#include "io/TextOut.h"
#include "nastran/NasFile.h"

// The card primitives: a name, then fields of one width, with a continuation marker wherever a line
// of 72 characters is full.

namespace Tevra {

namespace {

constexpr std::size_t kNameWidth = 8;
constexpr std::size_t kFullLine = 72;
/// A card longer than this goes to the file in pieces.
constexpr std::size_t kLongCard = 16384;

/// A count in letters: 1 is A, 26 is Z, 27 is AA.
void AppendLetters(std::string& line, int count) {
    std::array<char, 8> letters{};
    auto first = letters.end();
    for (int n = count; n > 0; n = (n - 1) / 26) {
        *--first = static_cast<char>('A' + (n - 1) % 26);
    }
    line.append(first, letters.end());
}

}  // namespace

void CNasFile::StartCard(std::string_view name) {
    m_line.assign(name);
    if (m_largeField) {
        m_line += '*';
    }
    m_line.resize(std::max(m_line.size(), kNameWidth), ' ');
    m_lineStart = 0;
    m_fieldWidth = static_cast<std::size_t>(FieldWidth());
    m_firstContinuation = m_continuations;
    m_hasBadNumber = false;
}

/// A line that a field has made longer than a line should be is never full: the card then goes on
/// along it.
void CNasFile::CheckContinuation() {
    if (m_line.size() - m_lineStart == kFullLine) {
        ContinueLine();
    }
}

void CNasFile::ContinueLine() {
    ++m_continuations;
    const std::size_t marker = m_line.size();
    m_line += m_largeField ? '*' : '+';
    AppendLetters(m_line, m_continuations);
    const std::string text = m_line.substr(marker);
    m_line += '\n';
    if (m_line.size() > kLongCard && !m_hasBadNumber) {
        m_out->Append(m_line);
        m_line.clear();
        m_firstContinuation = m_continuations;
    }
    m_lineStart = m_line.size();
    m_line += text;
    m_line.resize(std::max(m_line.size(), m_lineStart + kNameWidth), ' ');
}

void CNasFile::AddBlankFields(int count) {
    for (int i = 0; i < count; ++i) {
        CheckContinuation();
        m_line.append(m_fieldWidth, ' ');
    }
}

void CNasFile::AddTextField(std::string_view text) {
    CheckContinuation();
    m_line += text;
    if (text.size() < m_fieldWidth) {
        m_line.append(m_fieldWidth - text.size(), ' ');
    }
}

void CNasFile::AddInt(long long value) {
    CheckContinuation();
    AppendIntField(m_line, value, static_cast<int>(m_fieldWidth));
}

void CNasFile::AddReal(double value) {
    CheckContinuation();
    m_hasBadNumber = m_hasBadNumber || !std::isfinite(value);
    AppendRealField(m_line, value, static_cast<int>(m_fieldWidth));
}

void CNasFile::AddReals(const Vec3<double>& v) {
    AddReal(v.x);
    AddReal(v.y);
    AddReal(v.z);
}

void CNasFile::EndCard() {
    if (m_hasBadNumber) {
        m_continuations = m_firstContinuation;
        Skip(L"a value is not a number");
        return;
    }
    m_line += '\n';
    m_out->Append(m_line);
}

void CNasFile::StartSection(std::string_view title) {
    m_out->Append("$\n$ ").Append(title).Append("\n$\n");
}

void CNasFile::SetSubject(const wchar_t* kind, int number) {
    m_subjectKind = kind;
    m_subjectNumber = number;
}

void CNasFile::Skip(const std::wstring& reason) {
    AddNote(std::wstring(m_subjectKind) + L" " + std::to_wstring(m_subjectNumber) +
            L" is not written: " + reason);
}

void CNasFile::SkipMany(int count, const wchar_t* what, const wchar_t* reason) {
    if (count > 0) {
        AddNote(std::wstring(m_subjectKind) + L" " + std::to_wstring(m_subjectNumber) +
                L" is not written for " + std::to_wstring(count) + L" of its " + what + L": " +
                reason);
    }
}

}  // namespace Tevra
