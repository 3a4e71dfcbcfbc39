#include "model/StandardOutlines.h"

#include <initializer_list>

namespace Tevra::Data {

namespace {

/// One contour round the material; nothing when the dimensions do not fit or a radius has no room.
SectionOutline Outline(bool fits, std::initializer_list<Corner> corners) {
    SectionOutline outline;
    Contour contour;
    if (fits) {
        contour = MakeContour({corners.begin(), corners.size()});
    }
    if (!contour.empty()) {
        outline.AddMaterial(std::move(contour));
    }
    return outline;
}

Contour MakeBox(double width, double depth, double radius) {
    const double y = 0.5 * width;
    const double z = 0.5 * depth;
    const Corner corners[] = {{-y, -z, radius}, {y, -z, radius}, {y, z, radius}, {-y, z, radius}};
    return MakeContour(corners);
}

/// Half-widths of a web with a flange below and one above, which are `bottom` and `top` thick.
struct FlangedParts {
    double halfBottom;
    double halfTop;
    double bottom;
    double top;
};

SectionOutline FlangedOutline(const ShapeSize& s, const FlangedParts& p) {
    const double w = 0.5 * s.Web();
    const double z = 0.5 * s.Depth();
    const double low = -z + p.bottom;
    const double high = z - p.top;
    const double r = s.rootRadius;
    return Outline(low < high && w < p.halfBottom && w < p.halfTop, {{-p.halfBottom, -z},
                                                                     {p.halfBottom, -z},
                                                                     {p.halfBottom, low},
                                                                     {w, low, r},
                                                                     {w, high, r},
                                                                     {p.halfTop, high},
                                                                     {p.halfTop, z},
                                                                     {-p.halfTop, z},
                                                                     {-p.halfTop, high},
                                                                     {-w, high, r},
                                                                     {-w, low, r},
                                                                     {-p.halfBottom, low}});
}

/// A tee whose flange is at the top when `up` is 1, at the bottom when it is -1.
SectionOutline TeeTowards(const ShapeSize& s, double up) {
    const double w = 0.5 * s.Web();
    const double y = 0.5 * s.Width();
    const double z = 0.5 * s.Depth() * up;
    const double under = z - s.Flange() * up;
    return Outline(s.Flange() < s.Depth() && s.Web() < s.Width(), {{-w, -z},
                                                                   {w, -z},
                                                                   {w, under, s.rootRadius},
                                                                   {y, under},
                                                                   {y, z},
                                                                   {-y, z},
                                                                   {-y, under},
                                                                   {-w, under, s.rootRadius}});
}

}  // namespace

SectionOutline RectangleOutline(const ShapeSize& s) {
    SectionOutline outline;
    outline.AddMaterial(MakeBox(s.Width(), s.Depth(), 0.0));
    return outline;
}

SectionOutline BoxOutline(const ShapeSize& s) {
    SectionOutline outline;
    const double innerWidth = s.Width() - 2.0 * s.Web();
    const double innerDepth = s.Depth() - 2.0 * s.Flange();
    if (innerWidth > 0.0 && innerDepth > 0.0) {
        Contour outer = MakeBox(s.Width(), s.Depth(), s.cornerRadius);
        Contour inner = MakeBox(innerWidth, innerDepth, s.rootRadius);
        if (!outer.empty() && !inner.empty()) {
            outline.AddMaterial(std::move(outer));
            outline.AddVoid(std::move(inner));
        }
    }
    return outline;
}

SectionOutline RoundOutline(const ShapeSize& s) {
    SectionOutline outline;
    outline.AddMaterial(MakeCircle(0.5 * s.Depth()));
    return outline;
}

SectionOutline TubeOutline(const ShapeSize& s) {
    SectionOutline outline;
    const double inner = 0.5 * s.Depth() - s.Web();
    if (inner > 0.0) {
        outline.AddMaterial(MakeCircle(0.5 * s.Depth()));
        outline.AddVoid(MakeCircle(inner));
    }
    return outline;
}

SectionOutline IOutline(const ShapeSize& s) {
    const double half = 0.5 * s.Width();
    return FlangedOutline(s, {half, half, s.Flange(), s.Flange()});
}

SectionOutline UnequalIOutline(const ShapeSize& s) {
    return FlangedOutline(s,
                          {0.5 * s.BottomWidth(), 0.5 * s.Width(), s.BottomFlange(), s.Flange()});
}

SectionOutline ChannelOutline(const ShapeSize& s) {
    const double y = 0.5 * s.Width();
    const double z = 0.5 * s.Depth();
    const double face = -y + s.Web();
    const double clear = z - s.Flange();
    return Outline(clear > 0.0 && s.Web() < s.Width(), {{-y, -z},
                                                        {y, -z},
                                                        {y, -clear},
                                                        {face, -clear, s.rootRadius},
                                                        {face, clear, s.rootRadius},
                                                        {y, clear},
                                                        {y, z},
                                                        {-y, z}});
}

SectionOutline TeeOutline(const ShapeSize& s) {
    return TeeTowards(s, 1.0);
}

SectionOutline InvertedTeeOutline(const ShapeSize& s) {
    return TeeTowards(s, -1.0);
}

SectionOutline AngleOutline(const ShapeSize& s) {
    const double y = 0.5 * s.Width();
    const double z = 0.5 * s.Depth();
    const double face = -y + s.Web();
    const double top = -z + s.Flange();
    return Outline(s.Flange() < s.Depth() && s.Web() < s.Width(),
                   {{-y, -z}, {y, -z}, {y, top}, {face, top, s.rootRadius}, {face, z}, {-y, z}});
}

SectionOutline ZedOutline(const ShapeSize& s) {
    const double w = 0.5 * s.Web();
    const double tip = s.Width() - w;
    const double z = 0.5 * s.Depth();
    const double clear = z - s.Flange();
    return Outline(clear > 0.0 && s.Web() < s.Width(), {{-tip, -z},
                                                        {w, -z},
                                                        {w, clear, s.rootRadius},
                                                        {tip, clear},
                                                        {tip, z},
                                                        {-w, z},
                                                        {-w, -clear, s.rootRadius},
                                                        {-tip, -clear}});
}

SectionOutline TrapeziumOutline(const ShapeSize& s) {
    const double top = 0.5 * s.d[1];
    const double bottom = 0.5 * s.d[2];
    const double z = 0.5 * s.Depth();
    return Outline(true, {{-bottom, -z}, {bottom, -z}, {top, z}, {-top, z}});
}

SectionOutline CrossOutline(const ShapeSize& s) {
    const double w = 0.5 * s.Web();
    const double f = 0.5 * s.Flange();
    const double y = 0.5 * s.Width();
    const double z = 0.5 * s.Depth();
    const double r = s.rootRadius;
    return Outline(w < y && f < z, {{-w, -z},
                                    {w, -z},
                                    {w, -f, r},
                                    {y, -f},
                                    {y, f},
                                    {w, f, r},
                                    {w, z},
                                    {-w, z},
                                    {-w, f, r},
                                    {-y, f},
                                    {-y, -f},
                                    {-w, -f, r}});
}

}  // namespace Tevra::Data
