#include "desktop/window/keys.h"

#include <QGuiApplication>
#include <QKeyEvent>

namespace hustle::desktop {

namespace {

struct key_row {
    int toolkit;
    int machine;
};
// clang-format off
constexpr key_row named[] = {
    {Qt::Key_Space, 32}, {Qt::Key_Return, 13}, {Qt::Key_Enter, 13}, {Qt::Key_F1, 112}, {Qt::Key_C, 67},
    {Qt::Key_QuoteLeft, 192}, {Qt::Key_notsign, 223},
};
// The key left of 1 and the row of digits by their place on the keyboard, whatever is printed on
// them: hardware key codes of X11 and Wayland.
constexpr key_row placed[] = {
    {49, 192}, {10, 49}, {11, 50}, {12, 51}, {19, 48},
};
// clang-format on

constexpr int keypad_0 = 96;

int digit(const QKeyEvent& event) {
    const int figure = event.key() - Qt::Key_0;
    if (figure < 0 || figure > 3)
        return 0;
    return (event.modifiers() & Qt::KeypadModifier) ? keypad_0 + figure : '0' + figure;
}

} // namespace

int machine_key(const QKeyEvent& event) {
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    if (const int code = digit(event))
        return code;
    for (const key_row& k : named)
        if (k.toolkit == event.key())
            return k.machine;
    const QString platform = QGuiApplication::platformName();
    if (platform != "xcb" && !platform.startsWith("wayland"))
        return 0;
    for (const key_row& k : placed)
        if (k.toolkit == static_cast<int>(event.nativeScanCode()))
            return k.machine;
    return 0;
}

} // namespace hustle::desktop
