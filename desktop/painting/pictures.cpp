#include "desktop/painting/pictures.h"

#include "art/art.h"
#include "desktop/painting/keeping.h"

namespace hustle::desktop {

namespace {

using enum element;

constexpr coming_art main_arts[] = {
    {art::holdpicdark, art::cancelpiclight, hold1},
    {art::startpicdark, art::startpiclight, start},
    {art::nudgenowpicdark, art::nudgenowpiclight, nudgenow},
    {art::trailheldpic, art::trailheldpic, trailheld},
    {art::title, art::title2, toplogo},
};
constexpr coming_art feature_arts[] = {
    {art::dice1pic, art::spineffect4, feature_dicepic},
    {art::fstoppicdark, art::exchangepiclight, feature_startbutton},
    {art::hipicdark, art::lopiclight, feature_hibutton},
    {art::bombicondark, art::bombiconlight, feature_bomb1},
    {art::title, art::title2, feature_toplogo},
    {art::boxdark1, art::boxlight24, feature_square1},
};

quint64 key(art a, QSize size) {
    return (static_cast<quint64>(a) << 48) | (static_cast<quint64>(size.width()) << 24) |
           static_cast<quint64>(size.height());
}

} // namespace

QPixmap draw_art(art a, QSizeF size, bool dollars) { return draw_svg(svg(a, dollars), size); }

const QPixmap& picture(picture_store& store, art a, QSize size) {
    const auto sharp = store.sharp.constFind(key(a, size));
    if (sharp != store.sharp.cend())
        return *sharp;
    if (store.settling) {
        const auto old = store.latest.constFind(static_cast<int>(a));
        if (old != store.latest.cend())
            return *old;
    }
    store.latest.insert(static_cast<int>(a), draw_art(a, size, store.dollars));
    return *store.sharp.insert(key(a, size), store.latest.value(static_cast<int>(a)));
}

void give_picture(picture_store& store, art a, const QPixmap& pixmap) {
    store.latest.insert(static_cast<int>(a), pixmap);
    store.sharp.insert(key(a, pixmap.size()), pixmap);
}

void begin_settling(picture_store& store) {
    store.settling = true;
    store.sharp.clear();
}

QIcon program_icon() {
    QIcon icon;
    for (const int size : {16, 32, 48, 128})
        icon.addPixmap(draw_art(row(About_picIcon).picture, QSizeF(size, size)));
    return icon;
}

std::span<const coming_art> coming_arts(screen s) {
    if (s == screen::main)
        return main_arts;
    if (s == screen::feature)
        return feature_arts;
    return {};
}

} // namespace hustle::desktop
