// One line under the cabinet that says what can be done now and by which key, with what the player
// has at its end. It is the window's own; the machine knows nothing of it.
#pragma once

#include "core/game.h"

#include <QLabel>

namespace hustle::desktop {

class hintline : public QWidget {
public:
    explicit hintline(QWidget* parent);
    void tell(const game&, bool watched); // what can be done while a script is watched is the same all along
    QSize sizeHint() const override;
    static int height_at(int width); // of the line in a window of that width, pixels

protected:
    void resizeEvent(QResizeEvent*) override;

private:
    void fit();

    QLabel* what;
    QLabel* money;
    QString last;
};

} // namespace hustle::desktop
