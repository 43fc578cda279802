#include "desktop/painting/backdrop.h"

#include "desktop/painting/keeping.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace hustle::desktop {

namespace {

using enum element;

// Pictures that no play changes. Where one of them touches a picture that does change it lies beneath it: the
// squares of the ring stand on the edge of what they run round.
struct part {
    element id;
    art to_come = art::none; // what the machine puts there as the screen comes up; none: what stands there
};
constexpr part parts[] = {
    {background, art::back},
    {buttonbar},
    {reelframe},
    {lineframe},
    {feature_background, art::back},
    {feature_buttonbar, art::buttonbarpic},
    {feature_trt},
    {feature_Image1},
    {feature_Shape1},
};

art picture_of(const panel& p, const part& drawn) {
    const element_state& state = at(p, drawn.id);
    if (!state.visible)
        return art::none;
    const art a = state.picture == art::none ? drawn.to_come : state.picture;
    return p.dollars ? dollar_version(a) : a;
}

QSize size_of(screen s, double pixel) {
    const auto to = [pixel](int twips) { return static_cast<int>(std::lround(twips / 15.0 * pixel)); };
    return {to(row(s).width), to(row(s).height)};
}

QPixmap draw_parts(const panel& p, screen s, double pixel) {
    std::vector<std::pair<QPoint, QImage>> pictures;
    for (const part& drawn : parts)
        if (const art a = picture_of(p, drawn); row(drawn.id).where == s && a != art::none) {
            const QRect box = device_place(p, drawn.id, pixel, {});
            pictures.emplace_back(box.topLeft(), draw_art(a, box.size(), p.dollars).toImage());
        }
    QImage whole(size_of(s, pixel), QImage::Format_RGB32);
    whole.fill(ground_colour());
    return draw_to_keep(std::move(whole), [&](QPainter& painter) {
        for (const auto& [place, picture] : pictures)
            painter.drawImage(place, picture);
    });
}

} // namespace

bool in_backdrop(element e) {
    return std::any_of(std::begin(parts), std::end(parts), [e](const part& drawn) { return drawn.id == e; });
}

bool prepare_backdrop(backdrop_store& store, const panel& p, screen s, double pixel) {
    quint64 now = p.dollars ? 1 : 0;
    bool any = false;
    for (const part& drawn : parts)
        if (row(drawn.id).where == s) {
            any = true;
            now = now << 8 | static_cast<quint64>(picture_of(p, drawn));
        }
    if (!any || (store.parts == now && store.drawn.size() == size_of(s, pixel)))
        return false;
    store = {draw_parts(p, s, pixel), now};
    return true;
}

void draw_backdrop(canvas& c, backdrop_store& store, const panel& p, screen s) {
    if (store.drawn.isNull() || !c.pictures.settling)
        prepare_backdrop(store, p, s, c.pixel);
    if (!store.drawn.isNull())
        c.painter.drawPixmap(QRect(c.origin, size_of(s, c.pixel)), store.drawn);
}

} // namespace hustle::desktop
