#include "art/letters.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace hustle {

namespace {

// Centre lines in a box `width` by 100: moves, lines and quadratic curves in whole numbers.
struct glyph {
    char sign; // '#' is the pound
    int width;
    std::string_view lines;
    std::string_view slabs = {}; // feet, drawn where the face wants them
};

constexpr glyph glyphs[] = {
    {'A', 60, "M0 100 L30 0 L60 100 M13 66 L47 66", "M-10 100 L12 100 M48 100 L70 100"},
    {'B', 56, "M0 0 L0 100 L31 100 Q56 100 56 74 Q56 48 31 48 L0 48 M31 48 Q51 48 51 24 Q51 0 31 0 L0 0"},
    {'C', 56, "M56 28 Q56 0 28 0 Q0 0 0 28 L0 72 Q0 100 28 100 Q56 100 56 72"},
    {'D', 58, "M0 0 L0 100 L26 100 Q58 100 58 66 L58 34 Q58 0 26 0 Z", "M-10 0 L0 0 M-10 100 L0 100"},
    {'E', 50, "M50 0 L0 0 L0 100 L50 100 M0 49 L40 49",
     "M-10 0 L0 0 M-10 100 L0 100 M50 0 L50 18 M50 82 L50 100 M40 42 L40 56"},
    {'F', 48, "M48 0 L0 0 L0 100 M0 49 L40 49"},
    {'G', 56, "M56 28 Q56 0 28 0 Q0 0 0 28 L0 72 Q0 100 28 100 Q56 100 56 72 L56 54 L34 54"},
    {'H', 58, "M0 0 L0 100 M58 0 L58 100 M0 49 L58 49",
     "M-11 0 L11 0 M-11 100 L11 100 M47 0 L69 0 M47 100 L69 100"},
    {'I', 0, "M0 0 L0 100"},
    {'J', 44, "M44 0 L44 74 Q44 100 22 100 Q0 100 0 76"},
    {'K', 56, "M0 0 L0 100 M54 0 L2 57 M20 39 L56 100"},
    {'L', 46, "M0 0 L0 100 L46 100", "M-11 0 L11 0 M-11 100 L0 100 M46 82 L46 100"},
    {'M', 72, "M0 100 L0 0 L36 62 L72 0 L72 100"},
    {'N', 58, "M0 100 L0 0 L58 100 L58 0"},
    {'O', 58, "M29 0 Q58 0 58 30 L58 70 Q58 100 29 100 Q0 100 0 70 L0 30 Q0 0 29 0 Z"},
    {'P', 56, "M0 100 L0 0 L30 0 Q56 0 56 28 Q56 56 30 56 L0 56"},
    {'Q', 58, "M29 0 Q58 0 58 30 L58 70 Q58 100 29 100 Q0 100 0 70 L0 30 Q0 0 29 0 Z M36 76 L60 104"},
    {'R', 56, "M0 100 L0 0 L30 0 Q56 0 56 28 Q56 56 30 56 L0 56 M28 56 L56 100",
     "M-10 0 L0 0 M-11 100 L11 100 M50 100 L66 100"},
    {'S', 56, "M54 25 Q54 0 28 0 Q0 0 0 25 Q0 45 28 49 Q56 54 56 75 Q56 100 28 100 Q0 100 0 75",
     "M54 12 L54 27 M0 73 L0 88"},
    {'T', 58, "M0 0 L58 0 M29 0 L29 100", "M0 0 L0 20 M58 0 L58 20 M17 100 L41 100"},
    {'U', 58, "M0 0 L0 70 Q0 100 29 100 Q58 100 58 70 L58 0", "M-11 0 L11 0 M47 0 L69 0"},
    {'V', 58, "M0 0 L29 100 L58 0"},
    {'W', 80, "M0 0 L20 100 L40 22 L60 100 L80 0"},
    {'X', 56, "M0 0 L56 100 M56 0 L0 100"},
    {'Y', 58, "M0 0 L29 52 L58 0 M29 52 L29 100"},
    {'Z', 54, "M0 0 L54 0 L0 100 L54 100"},
    {'0', 56, "M28 0 Q56 0 56 30 L56 70 Q56 100 28 100 Q0 100 0 70 L0 30 Q0 0 28 0 Z"},
    {'1', 24, "M0 20 L24 0 L24 100"},
    {'2', 54, "M0 28 Q0 0 27 0 Q54 0 54 27 Q54 44 37 58 L0 100 L54 100"},
    {'3', 54, "M2 0 L52 0 L24 40 Q54 40 54 70 Q54 100 27 100 Q4 100 0 78"},
    {'4', 56, "M42 100 L42 0 L0 72 L56 72"},
    {'5', 54, "M50 0 L6 0 L3 45 Q14 38 27 38 Q54 38 54 69 Q54 100 26 100 Q4 100 0 80"},
    {'6', 56, "M50 12 Q42 0 29 0 Q0 0 0 38 L0 70 Q0 100 28 100 Q56 100 56 71 Q56 43 30 43 Q8 43 0 64"},
    {'7', 54, "M0 0 L54 0 L20 100"},
    {'8', 56,
     "M28 48 Q4 48 4 24 Q4 0 28 0 Q52 0 52 24 Q52 48 28 48 Q0 48 0 74 Q0 100 28 100 Q56 100 56 74 "
     "Q56 48 28 48 Z"},
    {'9', 56, "M6 88 Q14 100 27 100 Q56 100 56 62 L56 30 Q56 0 28 0 Q0 0 0 29 Q0 57 26 57 Q48 57 56 36"},
    {'+', 48, "M0 52 L48 52 M24 28 L24 76"},
    {'-', 34, "M0 52 L34 52"},
    {'.', 1, "M0 99 L1 99"},
    {'!', 0, "M0 0 L0 64 M0 99 L0 100"},
    {'?', 54, "M0 27 Q0 0 27 0 Q54 0 54 26 Q54 44 37 53 Q27 59 27 70 M27 99 L27 100"},
    {'\'', 0, "M0 0 L0 22"},
    {'&', 60,
     "M60 100 L12 36 Q3 21 12 8 Q22 -5 34 5 Q45 17 34 31 L9 54 Q-5 69 5 87 Q17 105 36 96 Q52 85 58 56"},
    {'#', 54, "M52 24 Q49 0 31 0 Q10 0 10 28 L10 68 Q10 90 0 100 L54 100 M-4 53 L38 53"},
    {'$', 54,
     "M52 27 Q52 11 27 11 Q1 11 1 30 Q1 46 27 50 Q53 54 53 70 Q53 89 27 89 Q1 89 1 73 M27 -3 L27 103"},
};
constexpr double space = 34, gap = 15; // of 100, beside the thickness of the strokes

const glyph* glyph_of(char sign) {
    const char wanted = static_cast<char>(std::toupper(static_cast<unsigned char>(sign)));
    const auto found =
        std::find_if(std::begin(glyphs), std::end(glyphs), [&](const glyph& g) { return g.sign == wanted; });
    return found == std::end(glyphs) ? nullptr : found;
}

// The words with the pound sign, two bytes long in UTF-8, as one.
std::string signs_of(std::string_view words) {
    std::string signs;
    for (const char c : words) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte == 0xC2)
            continue;
        signs += byte == 0xA3 ? '#' : c;
    }
    return signs;
}

// Widths in hundredths of the height: what grows with the letters and what stays.
struct extent {
    double letters, fixed;
};
extent extent_of(const std::string& signs, const face& f) {
    extent e{0, 0};
    for (const char c : signs) {
        const glyph* g = glyph_of(c);
        e.letters += g != nullptr ? g->width * (1 - f.weight * 0.5) : space;
        e.fixed += g != nullptr ? f.weight * 100 : 0;
        e.letters += gap + (f.slabs ? 16 : 0);
    }
    e.letters -= signs.empty() ? 0 : gap + (f.slabs ? 16 : 0);
    return e;
}

double stretch_of(const extent& e, double height, const face& f) {
    const double free = f.most * 100 / height - e.fixed;
    return f.most > 0 && e.letters > 0 ? std::min(f.stretch, std::max(free / e.letters, 0.2)) : f.stretch;
}

// Puts one glyph's lines at their place. Numbers come in pairs, x before y.
void place(std::string& to, std::string_view lines, double x, double y, double sx, double sy) {
    bool across = true;
    for (std::size_t i = 0; i < lines.size();) {
        const char c = lines[i];
        if (std::isalpha(static_cast<unsigned char>(c)) != 0) {
            to += c;
            ++i;
        } else if (c == ' ') {
            ++i;
        } else {
            std::size_t used = c == '-' ? 1 : 0;
            int value = 0;
            while (i + used < lines.size() && lines[i + used] >= '0' && lines[i + used] <= '9')
                value = value * 10 + (lines[i + used++] - '0');
            const int signed_value = c == '-' ? -value : value;
            to += joined(across ? x + signed_value * sx : y + signed_value * sy, " ");
            across = !across;
            i += used;
        }
    }
}

} // namespace

double words_width(std::string_view words, double height, const face& f) {
    const extent e = extent_of(signs_of(words), f);
    return (e.letters * stretch_of(e, height, f) + e.fixed) * height / 100;
}

std::string text_path(std::string_view words, double x, double y, double height, const face& f) {
    const std::string signs = signs_of(words);
    const double stretch = stretch_of(extent_of(signs, f), height, f);
    const double unit = height / 100, stroke = f.weight * height;
    const double sx = unit * stretch * (1 - f.weight * 0.5), sy = (height - stroke) / 100;
    std::string d;
    for (const char c : signs) {
        if (const glyph* g = glyph_of(c)) {
            place(d, g->lines, x + stroke / 2, y + stroke / 2, sx, sy);
            if (f.slabs)
                place(d, g->slabs, x + stroke / 2, y + stroke / 2, sx, sy);
            x += g->width * sx + stroke;
        } else {
            x += space * unit * stretch;
        }
        x += (gap + (f.slabs ? 16 : 0)) * unit * stretch;
    }
    return d;
}

void write(pen& p, std::string_view words, double x, double y, double height, const lettering& how) {
    if (words.empty())
        return;
    const std::string d =
        text_path(words, x - words_width(words, height, how.shape) / 2, y, height, how.shape);
    const double stroke = how.shape.weight * height;
    if (how.edge != "none")
        path(p, d,
             {.stroke = how.edge, .width = stroke + 2 * how.edge_width, .stroke_opacity = how.edge_opacity});
    path(p, d, {.stroke = how.fill, .width = stroke});
}

} // namespace hustle
