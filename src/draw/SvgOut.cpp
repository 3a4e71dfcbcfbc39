#include "draw/SvgOut.h"

#include <cmath>

#include "platform/text/Utf8.h"

namespace Tevra {

namespace {

/// Whether XML has the character: no control characters, and not the two that are none.
bool IsAllowed(wchar_t c) {
    return c >= L' ' && (c < 0x7F || c > 0x9F) && c != 0xFFFE && c != 0xFFFF;
}

std::string_view EntityOf(wchar_t c) {
    switch (c) {
        case L'&':
            return "&amp;";
        case L'<':
            return "&lt;";
        case L'>':
            return "&gt;";
        case L'"':
            return "&quot;";
        default:
            return {};
    }
}

/// The part of a text that is shown. Characters of two units are not torn apart.
std::wstring_view Shown(std::wstring_view text, std::size_t most) {
    if (text.size() <= most) {
        return text;
    }
    const bool tears = text[most - 2] >= 0xD800 && text[most - 2] < 0xDC00;
    return text.substr(0, most - (tears ? 2 : 1));
}

}  // namespace

void AppendXmlText(std::string& out, std::wstring_view text, std::size_t most) {
    const std::wstring_view shown = Shown(text, most);
    std::wstring plain;
    for (const wchar_t c : shown) {
        const std::string_view entity = EntityOf(c);
        if (entity.empty()) {
            plain += IsAllowed(c) ? c : L' ';
            continue;
        }
        Text::AppendUtf8(out, plain);
        plain.clear();
        out += entity;
    }
    Text::AppendUtf8(out, plain);
    if (shown.size() < text.size()) {
        Text::AppendUtf8(out, L"…");
    }
}

void CSvgOut::Number(double value) {
    const long long tenths = std::llround(value * 10.0);
    if (tenths % 10 == 0) {
        m_out.Int(tenths / 10);
    } else {
        m_out.Fixed(static_cast<double>(tenths) / 10.0, 0, 1);
    }
}

void CSvgOut::Place(const Vec2<double>& place) {
    Number(place.x);
    m_out.Append(' ');
    Number(place.y);
}

void CSvgOut::Attribute(std::string_view name, double value) {
    m_out.Append(' ').Append(name).Append("=\"");
    Number(value);
    m_out.Append('"');
}

void CSvgOut::BeginFile(double width, double height) {
    m_out.Append("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
    m_out.Append("<svg xmlns=\"http://www.w3.org/2000/svg\"");
    Attribute("width", width);
    Attribute("height", height);
    m_out.Append(" viewBox=\"0 0 ");
    Place({width, height});
    m_out.Append("\">\n");
}

void CSvgOut::Style(std::string_view sheet) {
    m_out.Append("<style>\n").Append(sheet).Append("</style>\n");
}

void CSvgOut::Background(double width, double height) {
    m_out.Append("<rect fill=\"#fff\"");
    Attribute("width", width);
    Attribute("height", height);
    m_out.Append("/>\n");
}

void CSvgOut::BeginGroup(std::string_view name) {
    m_out.Append("<g class=\"").Append(name).Append("\">\n");
}

void CSvgOut::Path(std::span<const Vec2<double>> points, bool isClosed) {
    m_out.Append("<path d=\"");
    for (std::size_t k = 0; k < points.size(); ++k) {
        m_out.Append(k == 0 ? 'M' : 'L');
        Place(points[k]);
    }
    m_out.Append(isClosed ? "Z\"/>\n" : "\"/>\n");
}

void CSvgOut::Line(const Vec2<double>& from, const Vec2<double>& to) {
    const Vec2<double> points[] = {from, to};
    Path(points, false);
}

void CSvgOut::Circle(const Vec2<double>& centre, double radius) {
    m_out.Append("<circle");
    Attribute("cx", centre.x);
    Attribute("cy", centre.y);
    Attribute("r", radius);
    m_out.Append("/>\n");
}

void CSvgOut::Text(const Vec2<double>& at, std::string_view name, std::wstring_view text,
                   std::size_t most) {
    m_out.Append("<text class=\"").Append(name).Append('"');
    Attribute("x", at.x);
    Attribute("y", at.y);
    m_out.Append('>');
    m_text.clear();
    AppendXmlText(m_text, text, most);
    m_out.Append(m_text).Append("</text>\n");
}

}  // namespace Tevra
