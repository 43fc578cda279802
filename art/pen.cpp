#include "art/pen.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace hustle {

// By to_chars, for a printed number must not follow the country's decimal comma.
void append(std::string& to, double value) {
    char text[32];
    const double rounded = std::round(value * 100) / 100;
    to.append(text, std::to_chars(text, text + sizeof text, rounded == 0 ? 0.0 : rounded).ptr);
}

namespace {

template <class Value> void attribute(std::string& to, std::string_view name, const Value& value) {
    append(to, " ");
    append(to, name);
    append(to, "=\"");
    append(to, value);
    append(to, "\"");
}

void painted(std::string& to, const paint& how) {
    attribute(to, "fill", how.fill);
    if (how.fill_opacity < 1)
        attribute(to, "fill-opacity", how.fill_opacity);
    if (how.hollow)
        attribute(to, "fill-rule", "evenodd");
    if (how.stroke != "none") {
        attribute(to, "stroke", how.stroke);
        attribute(to, "stroke-width", how.width);
        if (how.stroke_opacity < 1)
            attribute(to, "stroke-opacity", how.stroke_opacity);
        if (how.round)
            to += " stroke-linejoin=\"round\" stroke-linecap=\"round\"";
    }
    to += "/>\n";
}

// Defines a gradient once and names it for a fill or stroke.
std::string defined(pen& p, std::string_view kind, std::string text) {
    const auto known = std::find(p.gradients.begin(), p.gradients.end(), text);
    const auto id = joined("g", static_cast<double>(known - p.gradients.begin()));
    if (known == p.gradients.end()) {
        p.definitions += joined("<", kind, " id=\"", id, "\"", text, "</", kind, ">\n");
        p.gradients.push_back(std::move(text));
    }
    return joined("url(#", id, ")");
}

void add_shades(std::string& to, shades list) {
    to += ">";
    for (const shade& s : list) {
        to += "<stop";
        attribute(to, "offset", s.at);
        attribute(to, "stop-color", s.colour);
        if (s.opacity < 1)
            attribute(to, "stop-opacity", s.opacity);
        to += "/>";
    }
}

std::string straight(pen& p, shades list, bool own, double x1, double y1, double x2, double y2) {
    std::string text;
    if (!own)
        attribute(text, "gradientUnits", "userSpaceOnUse");
    attribute(text, "x1", x1);
    attribute(text, "y1", y1);
    attribute(text, "x2", x2);
    attribute(text, "y2", y2);
    add_shades(text, list);
    return defined(p, "linearGradient", std::move(text));
}

std::string ring(pen& p, shades list, bool own, double cx, double cy, double r) {
    std::string text;
    if (!own)
        attribute(text, "gradientUnits", "userSpaceOnUse");
    attribute(text, "cx", cx);
    attribute(text, "cy", cy);
    attribute(text, "r", r);
    add_shades(text, list);
    return defined(p, "radialGradient", std::move(text));
}

} // namespace

std::string finish(const pen& p) {
    const double w = p.width, h = p.height;
    return joined("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"", w, "\" height=\"", h,
                  "\" viewBox=\"0 0 ", w, " ", h, "\">\n<defs>\n", p.definitions, "</defs>\n", p.body,
                  "</svg>\n");
}

std::string down(pen& p, shades list) { return straight(p, list, true, 0, 0, 0, 1); }
std::string across(pen& p, shades list) { return straight(p, list, true, 0, 0, 1, 0); }
std::string ball(pen& p, shades list, double cx, double cy, double r) {
    return ring(p, list, true, cx, cy, r);
}
std::string ramp(pen& p, shades list, double x1, double y1, double x2, double y2) {
    return straight(p, list, false, x1, y1, x2, y2);
}
std::string halo(pen& p, shades list, double cx, double cy, double r) {
    return ring(p, list, false, cx, cy, r);
}

std::string gold(pen& p) {
    return down(p, {{0, "#fffbe0"},
                    {0.22, "#ffe27a"},
                    {0.46, "#f0b62e"},
                    {0.54, "#b8750f"},
                    {0.74, "#e9b040"},
                    {0.9, "#ffe89a"},
                    {1, "#8a5208"}});
}
std::string gold(pen& p, double top, double bottom) {
    return ramp(p,
                {{0, "#fffbe0"},
                 {0.22, "#ffe27a"},
                 {0.46, "#f0b62e"},
                 {0.54, "#b8750f"},
                 {0.74, "#e9b040"},
                 {0.9, "#ffe89a"},
                 {1, "#8a5208"}},
                0, top, 0, bottom);
}
std::string silver(pen& p) {
    return down(p, {{0, "#ffffff"},
                    {0.3, "#dfe8f4"},
                    {0.5, "#aab6c8"},
                    {0.56, "#6d7a90"},
                    {0.8, "#d5deea"},
                    {1, "#56627a"}});
}
std::string silver(pen& p, double top, double bottom) {
    return ramp(p,
                {{0, "#ffffff"},
                 {0.3, "#dfe8f4"},
                 {0.5, "#aab6c8"},
                 {0.56, "#6d7a90"},
                 {0.8, "#d5deea"},
                 {1, "#56627a"}},
                0, top, 0, bottom);
}

void path(pen& p, std::string_view d, const paint& how) {
    p.body += "<path";
    attribute(p.body, "d", d);
    painted(p.body, how);
}

void box(pen& p, double x, double y, double w, double h, double round, const paint& how) {
    p.body += "<rect";
    attribute(p.body, "x", x);
    attribute(p.body, "y", y);
    attribute(p.body, "width", w);
    attribute(p.body, "height", h);
    if (round > 0)
        attribute(p.body, "rx", round);
    painted(p.body, how);
}

void oval(pen& p, double cx, double cy, double rx, double ry, const paint& how) {
    p.body += "<ellipse";
    attribute(p.body, "cx", cx);
    attribute(p.body, "cy", cy);
    attribute(p.body, "rx", rx);
    attribute(p.body, "ry", ry);
    painted(p.body, how);
}

void disc(pen& p, double cx, double cy, double r, const paint& how) { oval(p, cx, cy, r, r, how); }

void line(pen& p, double x1, double y1, double x2, double y2, const paint& how) {
    path(p, joined("M", x1, ",", y1, "L", x2, ",", y2), how);
}

void glow(pen& p, double cx, double cy, double rx, double ry, std::string_view colour, double strength) {
    const auto fading = ball(p, {{0, colour, strength},
                                 {0.35, colour, strength * 0.62},
                                 {0.7, colour, strength * 0.18},
                                 {1, colour, 0}});
    oval(p, cx, cy, rx, ry, {.fill = fading});
}

void sparkle(pen& p, double cx, double cy, double r, double strength) {
    glow(p, cx, cy, r * 0.8, r * 0.8, ink::goldlight, strength * 0.7);
    path(p, star(cx, cy, r, r * 0.13, 4), {.fill = ink::white, .fill_opacity = strength});
}

std::string polygon(std::initializer_list<point> points) {
    std::string d;
    for (const auto& [x, y] : points)
        d += joined(d.empty() ? "M" : "L", x, ",", y);
    return d + "Z";
}

std::string star(double cx, double cy, double outer, double inner, int n) {
    std::string d;
    for (int i = 0; i < 2 * n; ++i) {
        const double angle = std::numbers::pi * (i / static_cast<double>(n) - 0.5);
        const double r = i % 2 == 0 ? outer : inner;
        d += joined(i == 0 ? "M" : "L", cx + r * std::cos(angle), ",", cy + r * std::sin(angle));
    }
    return d + "Z";
}

std::string boxpath(double x, double y, double w, double h, double round) {
    const double right = x + w, bottom = y + h;
    const auto turn = joined("A", round, ",", round, " 0 0 1 ");
    return joined("M", x + round, ",", y, "L", right - round, ",", y, turn, right, ",", y + round, "L", right,
                  ",", bottom - round, turn, right - round, ",", bottom, "L", x + round, ",", bottom, turn, x,
                  ",", bottom - round, "L", x, ",", y + round, turn, x + round, ",", y, "Z");
}

moved::moved(pen& picture, double dx, double dy, double scale, double turn)
    : moved(picture, dx, dy, point(scale, scale), turn) {}

moved::moved(pen& picture, double dx, double dy, point scale, double turn) : p(picture) {
    std::string how = joined("translate(", dx, ",", dy, ")");
    if (turn != 0)
        how += joined(" rotate(", turn, ")");
    if (scale != point(1, 1))
        how += joined(" scale(", scale.first, ",", scale.second, ")");
    p.body += "<g";
    attribute(p.body, "transform", how);
    p.body += ">\n";
}

moved::~moved() { p.body += "</g>\n"; }

} // namespace hustle
