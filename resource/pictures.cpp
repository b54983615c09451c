// SPDX-License-Identifier: MIT
#include "resource/pictures.h"

// The pictures are linked from a static library, whose resources are not
// registered by themselves. The macro has to stand outside of any namespace.
static void registerPictures()
{
    Q_INIT_RESOURCE(tutorial);
}

QString getPngFilename(QString filename)
{
    return filename;
}

namespace {

// In the order of the icon kinds.
const char* const kIconFiles[Tutorial::IconKindCount] = {
    "click.png", "double_click.png", "right_click.png", "eye.png", "wait.png", "keyboard.png"};

QString pathOf(const char* file)
{
    registerPictures();
    return QStringLiteral(":/resource/png/%1").arg(getPngFilename(QLatin1String(file)));
}

} // namespace

QString Tutorial::getArrowFilename()
{
    return pathOf("arrow.png");
}

QString Tutorial::getIconFilename(EnumIconKind kind)
{
    return kind >= 0 && kind < IconKindCount ? pathOf(kIconFiles[kind]) : QString();
}
