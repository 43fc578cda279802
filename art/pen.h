// Puts one picture together: shapes go into the body, gradients into the definitions. Units are
// pixels of the picture, y downwards.
#pragma once

#include "art/palette.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hustle {

struct pen {
    int width, height;
    std::string body = {};
    std::string definitions = {};
    std::vector<std::string> gradients = {}; // texts already defined; gradient n has the id gn
    bool dollars = false;                    // money bears a dollar sign
};

std::string finish(const pen&); // the whole SVG text

// Numbers are written with two decimals at most, and always with a point.
void append(std::string& to, double);
inline void append(std::string& to, std::string_view text) { to.append(text); }
// Path data and the like, put together from texts and numbers.
template <class... Parts> std::string joined(const Parts&... parts) {
    std::string text;
    (append(text, parts), ...);
    return text;
}

struct paint {
    std::string_view fill = "none"; // a hex colour or what a gradient function returned
    double fill_opacity = 1;
    std::string_view stroke = "none";
    double width = 0; // of the stroke
    double stroke_opacity = 1;
    bool round = true;   // joins and ends of the stroke
    bool hollow = false; // even-odd filling: an inner path is a hole
};

struct shade {
    double at; // 0 to 1
    std::string_view colour;
    double opacity = 1;
};
using shades = std::initializer_list<shade>;

// Gradients across the painted shape's own box (0 to 1 in both directions).
std::string down(pen&, shades);   // from the top to the bottom
std::string across(pen&, shades); // from left to right
std::string ball(pen&, shades, double cx = 0.5, double cy = 0.5, double r = 0.5);
// Gradients between points of the picture.
std::string ramp(pen&, shades, double x1, double y1, double x2, double y2);
std::string halo(pen&, shades, double cx, double cy, double r);

// Ready metals, from the top to the bottom of the shape or of a stretch of the picture.
std::string gold(pen&);
std::string gold(pen&, double top, double bottom);
std::string silver(pen&);
std::string silver(pen&, double top, double bottom);

void path(pen&, std::string_view d, const paint&);
void box(pen&, double x, double y, double w, double h, double round, const paint&);
void oval(pen&, double cx, double cy, double rx, double ry, const paint&);
void disc(pen&, double cx, double cy, double r, const paint&);
void line(pen&, double x1, double y1, double x2, double y2, const paint&);

// Light or shadow that fades outward from a point.
void glow(pen&, double cx, double cy, double rx, double ry, std::string_view colour, double strength);
// A four-pointed sparkle.
void sparkle(pen&, double cx, double cy, double r, double strength = 1);

using point = std::pair<double, double>;
std::string polygon(std::initializer_list<point>);
// A star of n points, the first one upwards.
std::string star(double cx, double cy, double outer, double inner, int n);
// A box with round corners as path data, for hollow frames.
std::string boxpath(double x, double y, double w, double h, double round);

// Everything drawn while it lives is moved, turned (degrees, clockwise) and scaled.
class moved {
public:
    moved(pen&, double dx, double dy, double scale = 1, double turn = 0);
    moved(pen&, double dx, double dy, point scale, double turn);
    ~moved();
    moved(const moved&) = delete;
    moved& operator=(const moved&) = delete;

private:
    pen& p;
};

} // namespace hustle
