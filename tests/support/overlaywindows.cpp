// SPDX-License-Identifier: MIT
#include "tests/support/overlaywindows.h"

#include "tests/support/xdotool.h"

#include <QProcess>
#include <QStringList>

#include <algorithm>

QRect geometryOf(const QString& window)
{
    QProcess process;
    process.start(QStringLiteral("xwininfo"), {QStringLiteral("-id"), window});
    process.waitForFinished();
    const QString text = QString::fromLatin1(process.readAllStandardOutput());
    const auto number = [&text](const char* name) {
        const QString title = QString::fromLatin1(name) + QLatin1Char(':');
        return text.section(title, 1).section(QLatin1Char('\n'), 0, 0).trimmed().toInt();
    };
    return {number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
        number("Height")};
}

QVector<QRect> overlayWindows(const QSize& size)
{
    QVector<QRect> found;
    const QStringList windows =
        xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                    QStringLiteral("--classname"), QStringLiteral("^tutorial$")})
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& window : windows) {
        const QRect geometry = geometryOf(window);
        if (geometry.size() == size)
            found << geometry;
    }
    std::sort(
        found.begin(), found.end(), [](const QRect& a, const QRect& b) { return a.x() < b.x(); });
    return found;
}

void clickAt(const QPoint& point)
{
    xdotool({QStringLiteral("mousemove"), QString::number(point.x()), QString::number(point.y()),
        QStringLiteral("click"), QStringLiteral("1")});
}
