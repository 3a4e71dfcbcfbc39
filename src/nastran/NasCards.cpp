#include <array>
#include <cmath>

#include "io/TextOut.h"
#include "nastran/NasFile.h"

// The card primitives: a name, then fields of one width, with a continuation marker wherever a line
// of 72 characters is full.

namespace Tevra {

namespace {

constexpr int kNameWidth = 8;
constexpr std::size_t kFullLine = 72;

/// A continuation marker: its first character and a count in letters (1 is A, 26 is Z, 27 is AA).
class Marker {
public:
    Marker(char first, int count) {
        for (int n = count; n > 0; n = (n - 1) / 26) {
            *--m_first = static_cast<char>('A' + (n - 1) % 26);
        }
        *--m_first = first;
    }
    std::string_view Text() const {
        return {m_first, static_cast<std::size_t>(m_letters.data() + m_letters.size() - m_first)};
    }

private:
    std::array<char, 8> m_letters{};
    char* m_first = m_letters.data() + m_letters.size();
};

}  // namespace

void CNasFile::StartCard(std::string_view name) {
    m_out->BeginPiece();
    m_out->Append(name);
    if (m_largeField) {
        m_out->Append('*');
    }
    m_out->Fill(kNameWidth - static_cast<int>(m_out->PieceSize()));
    m_lineStart = 0;
    m_fieldWidth = FieldWidth();
    m_firstContinuation = m_continuations;
    m_hasBadNumber = false;
}

/// A line that a field has made longer than a line should be is never full: the card then goes on
/// along it.
void CNasFile::CheckContinuation() {
    if (m_out->PieceSize() - m_lineStart == kFullLine) {
        ContinueLine();
    }
}

void CNasFile::ContinueLine() {
    ++m_continuations;
    const Marker marker(m_largeField ? '*' : '+', m_continuations);
    m_out->Append(marker.Text()).EndLine();
    m_lineStart = m_out->PieceSize();
    m_out->Append(marker.Text()).Fill(kNameWidth - static_cast<int>(marker.Text().size()));
}

void CNasFile::AddBlankFields(int count) {
    for (int i = 0; i < count; ++i) {
        CheckContinuation();
        m_out->Fill(m_fieldWidth);
    }
}

void CNasFile::AddTextField(std::string_view text) {
    CheckContinuation();
    m_out->Append(text).Fill(m_fieldWidth - static_cast<int>(text.size()));
}

void CNasFile::AddInt(long long value) {
    CheckContinuation();
    m_out->IntField(value, m_fieldWidth);
}

void CNasFile::AddReal(double value) {
    CheckContinuation();
    m_hasBadNumber = m_hasBadNumber || !std::isfinite(value);
    m_out->RealField(value, m_fieldWidth);
}

void CNasFile::AddReals(const Vec3<double>& v) {
    AddReal(v.x);
    AddReal(v.y);
    AddReal(v.z);
}

void CNasFile::EndCard() {
    if (m_hasBadNumber) {
        m_out->TakeBackPiece();
        m_out->EndPiece();
        m_continuations = m_firstContinuation;
        Skip(L"a value is not a number");
        return;
    }
    m_out->EndLine();
    m_out->EndPiece();
}

void CNasFile::StartSection(std::string_view title) {
    m_out->Append("$\n$ ").Append(title).Append("\n$\n");
}

void CNasFile::SetSubject(const wchar_t* kind, int number) {
    m_subjectKind = kind;
    m_subjectNumber = number;
}

void CNasFile::Skip(const std::wstring& reason) {
    AddNote(m_subjectKind, m_subjectNumber, L"is not written: " + reason);
}

void CNasFile::SkipMany(int count, const wchar_t* what, const wchar_t* reason) {
    if (count > 0) {
        AddNote(
            m_subjectKind, m_subjectNumber,
            L"is not written for " + std::to_wstring(count) + L" of its " + what + L": " + reason);
    }
}

}  // namespace Tevra
