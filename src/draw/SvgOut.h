#pragma once

#include <span>
#include <string>
#include <string_view>

#include "io/TextOut.h"
#include "model/Types.h"

namespace Tevra {

/// Appends host text for the content of an XML element: what the mark-up reserves as entities, what
/// XML does not allow as a blank, and no more than `most` characters, with an ellipsis where it was
/// cut.
void AppendXmlText(std::string& out, std::wstring_view text, std::size_t most);

/// The elements of an SVG file, in units of the paper with one decimal.
class CSvgOut {
public:
    explicit CSvgOut(TextOut& out) : m_out(out) {}

    void BeginFile(double width, double height);
    void Style(std::string_view sheet);
    /// A white rectangle behind everything.
    void Background(double width, double height);
    /// A group of elements of a class.
    void BeginGroup(std::string_view name);
    void EndGroup() { m_out.Append("</g>\n"); }
    void Path(std::span<const Vec2<double>> points, bool isClosed);
    void Line(const Vec2<double>& from, const Vec2<double>& to);
    void Circle(const Vec2<double>& centre, double radius);
    /// Text of a class that begins at a place, on its base line.
    void Text(const Vec2<double>& at, std::string_view name, std::wstring_view text,
              std::size_t most = kMostText);
    void EndFile() { m_out.Append("</svg>\n"); }

    static constexpr std::size_t kMostText = 100;

private:
    void Number(double value);
    void Place(const Vec2<double>& place);
    void Attribute(std::string_view name, double value);

    TextOut& m_out;
    std::string m_text;
};

}  // namespace Tevra
