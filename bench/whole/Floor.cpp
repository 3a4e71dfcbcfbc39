#include "whole/Floor.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>

namespace WholeBench {

namespace {

using namespace Tevra;

constexpr std::size_t kField = 16;
constexpr int kFieldsInLine = 5;

class PlainText {
public:
    PlainText(std::ofstream& stream, FloorKind kind) : m_stream(stream), m_kind(kind) {}

    void Int(int value) { Number(value); }
    void Real(double value) {
        if (m_kind == FloorKind::Fields) {
            Number(value, std::chars_format::scientific, 6);
        } else {
            Number(value, std::chars_format::general, 6);
        }
    }
    void EndLine() { m_buffer[m_used++] = '\n'; }
    bool Flush() {
        m_stream.write(m_buffer.data(), static_cast<std::streamsize>(m_used));
        m_used = 0;
        return m_stream.good();
    }

private:
    template <class... Format>
    void Number(Format... format) {
        constexpr std::size_t kRoom = 64;
        if (m_used + kRoom > m_buffer.size()) {
            Flush();
        }
        char* const at = m_buffer.data() + m_used;
        if (m_kind == FloorKind::Items) {
            char* const end = std::to_chars(at + 1, at + kRoom, format...).ptr;
            *at = ' ';
            m_used += static_cast<std::size_t>(end - at);
            return;
        }
        std::array<char, kRoom> text;  // NOLINT: filled by to_chars
        const char* const end = std::to_chars(text.data(), text.data() + kRoom, format...).ptr;
        const auto length = std::min(static_cast<std::size_t>(end - text.data()), kField);
        std::fill_n(at, kField, ' ');
        std::copy_n(text.data(), length, at + kField - length);
        m_used += kField;
    }

    std::ofstream& m_stream;
    FloorKind m_kind;
    std::array<char, 65536> m_buffer;  // NOLINT: only what was written is read
    std::size_t m_used = 0;
};

void WriteElement(PlainText& out, int number, const Data::CElement& element) {
    out.Int(number);
    out.Int(element.Property());
    for (int k = 1; k <= element.NumTopo(); ++k) {
        if (k % kFieldsInLine == 0) {
            out.EndLine();
        }
        out.Int(element.Topo(k));
    }
    out.EndLine();
}

}  // namespace

bool WriteFloor(const CVynData& model, FloorKind kind, const std::filesystem::path& path) {
    std::ofstream stream(path, std::ios::binary);
    PlainText out(stream, kind);
    for (const int number : model.NodeTable().Numbers()) {
        const Vec3<double>& at = model.Node(number).Position();
        out.Int(number);
        out.Real(at.x);
        out.Real(at.y);
        out.Real(at.z);
        out.EndLine();
    }
    for (const int number : model.ElemTable().Numbers()) {
        WriteElement(out, number, model.Elem(number));
    }
    return out.Flush();
}

}  // namespace WholeBench
