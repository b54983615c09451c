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

QString Tutorial::getScaledFilename(const QString& filename, double scale)
{
    if (scale <= 1 || filename.isEmpty())
        return filename;
    const int dot = filename.lastIndexOf(QLatin1Char('.'));
    return QString(filename).insert(dot, scale <= 2 ? QLatin1String("@2x") : QLatin1String("@3x"));
}

QString Tutorial::getArrowFilename()
{
    return pathOf("arrow.png");
}

QString Tutorial::getIconFilename(EnumIconKind kind)
{
    return kind >= 0 && kind < IconKindCount ? pathOf(kIconFiles[kind]) : QString();
}
