// Pictures that are painted when the program is built, because the first frame waits for them: bare
// pixels in a file, so that no reader of picture formats has to be looked for.
#pragma once

#include <QImage>
#include <QString>

namespace hustle::desktop {

// False where the file cannot be written.
bool store_ready(const QImage&, const QString& file);
// Null where there is no such file, or its length is not that of a picture of the size.
QImage read_ready(const QString& file, QSize);

} // namespace hustle::desktop
