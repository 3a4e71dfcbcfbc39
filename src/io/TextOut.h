#pragma once

#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "io/CardFields.h"
#include "io/NumberFormat.h"

namespace Tevra {

/// Builds the text of a file in one buffer and hands it to the stream in large pieces. The number
/// functions are those of NumberFormat.h and CardFields.h.
///
/// Nothing is written at destruction: what was appended after the last Flush() is lost, so a writer
/// ends with Flush() and returns what that says.
class TextOut {
public:
    explicit TextOut(std::ostream& stream);

    TextOut& Append(std::string_view text);
    TextOut& Append(char c);
    TextOut& Fill(int count, char c = ' ');
    TextOut& EndLine() { return Append('\n'); }

    /// Host text as UTF-8, as it is; see Text::AppendUtf8.
    TextOut& AppendWide(std::wstring_view text);
    /// Host text as UTF-8 on one line; see AppendCardText.
    TextOut& AppendCard(std::wstring_view text);

    TextOut& Int(long long value, int width = 0, int digits = 1);
    TextOut& Exp(double value, int width = 0, int precision = kDefaultPrecision);
    TextOut& Fixed(double value, int width = 0, int precision = kDefaultPrecision);
    TextOut& SignedFixed(double value, int width = 0, int precision = kDefaultPrecision);
    TextOut& General(double value, int width = 0, int precision = kDefaultPrecision);
    TextOut& Padded(double value, int width = 0, int precision = kDefaultPrecision);
    TextOut& Shortest(double value);
    TextOut& IntField(long long value, int width);
    TextOut& RealField(double value, int width, bool signSpace = false);

    /// Begins a piece of text that is handed over whole or taken back.
    void BeginPiece();
    /// Characters of the piece so far.
    std::size_t PieceSize() const { return static_cast<std::size_t>(m_end - m_piece); }
    /// Drops what was appended since BeginPiece().
    void TakeBackPiece() { m_end = m_piece; }
    void EndPiece() { m_holds = false; }

    /// Hands everything to the stream and flushes it; whether the stream is good.
    bool Flush();

    /// Whether the stream has taken everything that was handed to it so far.
    bool Good() const { return m_stream.good(); }

private:
    /// Makes sure of room for one number.
    char* Room() {
        if (m_last - m_end < kMaxNumberText) {
            MakeRoom();
        }
        return m_end;
    }
    void MakeRoom();
    void HandOver();
    void Grow();
    template <class Write>
    TextOut& Number(Write&& write);

    std::ostream& m_stream;
    std::unique_ptr<char[]> m_buffer;
    char* m_end;
    char* m_last;   ///< end of the buffer
    char* m_piece;  ///< begin of the piece
    bool m_holds = false;
    std::string m_text;
};

}  // namespace Tevra
