// The art bank, picture by picture: whole, self-contained, and made of nothing but what every SVG
// renderer that the window may use draws alike.
#include "art/art.h"
#include "panel/ring.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace hustle;

namespace {

struct named {
    art id;
    const char* name;
};
#define HUSTLE_NAMED(name) {art::name, #name},
constexpr named bank[] = {HUSTLE_ARTS(HUSTLE_NAMED)};
#undef HUSTLE_NAMED

const std::map<std::string, std::set<std::string>> allowed = {
    {"svg", {"xmlns", "width", "height", "viewBox"}},
    {"defs", {}},
    {"linearGradient", {"id", "gradientUnits", "x1", "y1", "x2", "y2"}},
    {"radialGradient", {"id", "gradientUnits", "cx", "cy", "r"}},
    {"stop", {"offset", "stop-color", "stop-opacity"}},
    {"g", {"transform"}},
    {"path", {"d"}},
    {"rect", {"x", "y", "width", "height", "rx"}},
    {"ellipse", {"cx", "cy", "rx", "ry"}},
};
const std::set<std::string> painted = {"path", "rect", "ellipse"};
const std::set<std::string> paints = {"fill",         "fill-opacity",   "fill-rule",       "stroke",
                                      "stroke-width", "stroke-opacity", "stroke-linejoin", "stroke-linecap"};

// What a value may look like, by attribute; where nothing is said it is a number.
const std::regex& form_of(const std::string& attribute) {
    static const std::regex plain_number("-?\\d+(\\.\\d+)?"), share("0|0\\.\\d+"),
        colour("none|#[0-9a-f]{6}|url\\(#g\\d+\\)");
    static const std::map<std::string, std::regex> forms = {
        {"xmlns", std::regex("http://www\\.w3\\.org/2000/svg")},
        {"viewBox", std::regex("0 0 \\d+ \\d+")},
        {"id", std::regex("g\\d+")},
        {"gradientUnits", std::regex("userSpaceOnUse")},
        {"stop-color", std::regex("#[0-9a-f]{6}")},
        {"fill", colour},
        {"stroke", colour},
        {"fill-rule", std::regex("evenodd")},
        {"stroke-linejoin", std::regex("round")},
        {"stroke-linecap", std::regex("round")},
        {"transform", std::regex("translate\\([-\\d.,]+\\)( rotate\\([-\\d.]+\\))?( scale\\([-\\d.,]+\\))?")},
        {"fill-opacity", share},
        {"stroke-opacity", share},
        {"stop-opacity", share},
        {"offset", std::regex("1|0|0\\.\\d+")},
    };
    const auto found = forms.find(attribute);
    return found == forms.end() ? plain_number : found->second;
}

bool value_is_right(const std::string& attribute, const std::string& value) {
    if (attribute == "d") // long, so looked at sign by sign
        return value.starts_with('M') &&
               value.find_first_not_of("MLHVhvQCAZ0123456789.,- ") == std::string::npos;
    return std::regex_match(value, form_of(attribute));
}

// One tag as it stands between < and >.
struct tag {
    bool closing = false, alone = false;
    std::string name;
    std::vector<std::pair<std::string, std::string>> attributes;
};

// Takes a tag to pieces; what does not read as name="value" becomes an attribute that no rule knows.
tag tag_of(std::string_view inside) {
    tag t;
    t.closing = inside.starts_with('/');
    t.alone = inside.ends_with('/');
    inside = inside.substr(t.closing ? 1 : 0, inside.size() - (t.closing ? 1 : 0) - (t.alone ? 1 : 0));
    const std::size_t end = std::min(inside.find(' '), inside.size());
    t.name = inside.substr(0, end);
    inside.remove_prefix(end);
    while (inside.starts_with(' ')) {
        inside.remove_prefix(1);
        const std::size_t equals = inside.find("=\""), quote = inside.find('"', equals + 2);
        if (equals == std::string_view::npos || quote == std::string_view::npos)
            break;
        t.attributes.emplace_back(inside.substr(0, equals), inside.substr(equals + 2, quote - equals - 2));
        inside.remove_prefix(quote + 1);
    }
    if (!inside.empty())
        t.attributes.emplace_back(inside, "");
    return t;
}

struct lint {
    std::string faults = {}; // a line each
    std::vector<std::string> open = {};
    std::set<std::string> defined = {}, used = {};

    void look_at(const tag& t) {
        if (t.closing) {
            if (open.empty() || open.back() != t.name)
                faults += "closes what is not open: " + t.name + "\n";
            else
                open.pop_back();
            return;
        }
        if (!t.alone)
            open.push_back(t.name);
        const auto rule = allowed.find(t.name);
        if (rule == allowed.end()) {
            faults += "element " + t.name + "\n";
            return;
        }
        for (const auto& [key, value] : t.attributes) {
            if (!rule->second.contains(key) && !(painted.contains(t.name) && paints.contains(key)))
                faults += t.name + " has " + key + "\n";
            if (!value_is_right(key, value))
                faults += t.name + " " + key + "=" + value.substr(0, 60) + "\n";
            if (key == "id" && !defined.insert(value).second)
                faults += "twice: " + value + "\n";
            if (value.starts_with("url(#"))
                used.insert(value.substr(5, value.size() - 6));
        }
    }
};

std::string faults_of(std::string_view text) {
    lint found;
    while (text.starts_with('<') && text.find('>') != std::string_view::npos) {
        const std::size_t end = text.find('>');
        found.look_at(tag_of(text.substr(1, end - 1)));
        text.remove_prefix(std::min(text.find_first_not_of(" \n", end + 1), text.size()));
    }
    if (!text.empty() || !found.open.empty())
        found.faults += "stray text, or it does not end: " + std::string(text.substr(0, 40)) + "\n";
    if (found.used != found.defined)
        found.faults += "gradients defined and used are not the same\n";
    return found.faults;
}

std::string with_light_for_dark(std::string name) { return name.replace(name.find("dark"), 4, "light"); }

} // namespace

TEST(ArtBank, DrawsEveryNameWithPlainMeansOnly) {
    for (const auto& [id, name] : bank) {
        const std::string text = svg(id);
        const auto [width, height] = svg_size(id);
        const auto head = "width=\"" + std::to_string(width) + "\" height=\"" + std::to_string(height) + "\"";
        EXPECT_GT(width * height, 0) << name;
        EXPECT_NE(text.find(head), std::string::npos) << name;
        EXPECT_EQ(faults_of(text), "") << name;
    }
    EXPECT_EQ(svg(art::none), "");
    EXPECT_EQ(svg_size(art::none).width, 0);
}

// A lint that lets everything pass would be worth nothing.
TEST(ArtBank, LintSeesWhatSomeRenderersLeaveOut) {
    const std::string head =
        "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\" viewBox=\"0 0 9 9\">\n";
    const auto faulty = [&](const std::string& body) { return !faults_of(head + body + "</svg>\n").empty(); };
    EXPECT_FALSE(faulty("<rect x=\"1\" y=\"1\" width=\"2\" height=\"2\" fill=\"#ff00aa\"/>"));
    for (const char* body :
         {"<text>HOLD</text>", "<mask id=\"g0\"/>", "<g opacity=\"0.5\"></g>",
          "<rect fill=\"rgba(0,0,0,1)\"/>", "<rect fill=#ff00aa/>", "<rect fill=\"#ff00aa80\"/>",
          "<rect fill=\"url(#g0)\"/>", "<rect style=\"fill:#ff00aa\"/>", "<rect x=\"nan\"/>",
          "<path d=\"M0,nan\"/>", "<rect x=\"1,5\"/>", "<g>"})
        EXPECT_TRUE(faulty(body)) << body;
}

// Their signs are paths: a picture that bears one must look different, and no other may.
TEST(ArtBank, ShowsDollarsWhereAPictureBearsAPound) {
    const auto differs = [](art a) { return svg(a, true) != svg(a, false); };
    EXPECT_TRUE(differs(art::transferpic));
    for (int n = 1; n <= 24; ++n) {
        const square what = ring[static_cast<std::size_t>(n - 1)];
        const bool money = what == square::cash1 || what == square::cash2;
        EXPECT_EQ(differs(nth(art::boxdark1, n)), money) << n;
        EXPECT_EQ(differs(nth(art::boxlight1, n)), money) << n;
    }
}

TEST(ArtBank, TellsAllPicturesApart) {
    std::map<std::string, std::string> seen; // text to name
    std::map<std::string, art> by_name;
    for (const auto& [id, name] : bank) {
        by_name[name] = id;
        const auto [first, fresh] = seen.emplace(svg(id), name);
        // The ring has some squares more than once; nothing else looks alike.
        EXPECT_TRUE(fresh || std::string(name).starts_with("box")) << name << " looks like " << first->second;
    }
    for (const auto& [id, name] : bank)
        if (std::string(name).find("dark") != std::string::npos) {
            const auto light = by_name.find(with_light_for_dark(name));
            ASSERT_NE(light, by_name.end()) << name;
            EXPECT_NE(svg(id), svg(light->second)) << name;
            EXPECT_EQ(svg_size(id).width, svg_size(light->second).width) << name;
        }
}
