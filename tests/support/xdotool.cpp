// SPDX-License-Identifier: MIT
#include "tests/support/xdotool.h"

#include <QProcess>
#include <QTest>

namespace {

constexpr int kDeadlineMs = 20000;

} // namespace

QString xdotool(const QStringList& arguments)
{
    QProcess process;
    process.start(QStringLiteral("xdotool"), arguments);
    process.waitForFinished(kDeadlineMs);
    return QString::fromLatin1(process.readAllStandardOutput()).trimmed();
}

void press(const QString& keys)
{
    xdotool(QStringList{QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("30")}
        + keys.split(QLatin1Char(' ')));
}

void type(const QString& text)
{
    xdotool({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("10"),
        QStringLiteral("--"), text});
}

QString windowTitled(const QString& pattern)
{
    return xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                       QStringLiteral("--name"), pattern})
        .section(QLatin1Char('\n'), 0, 0);
}

bool waitForWindow(const QString& pattern, bool shown)
{
    return QTest::qWaitFor([&] { return windowTitled(pattern).isEmpty() != shown; }, kDeadlineMs);
}

void click(const QString& window, int x, int y)
{
    const QString size = xdotool({QStringLiteral("getwindowgeometry"), window})
                             .section(QLatin1String("Geometry: "), 1);
    const auto place = [&size](int pixels, int side) {
        const int from = pixels < 0 ? size.section(QLatin1Char('x'), side, side).toInt() : 0;
        return QString::number(from + pixels);
    };
    xdotool({QStringLiteral("mousemove"), QStringLiteral("--window"), window, place(x, 0),
        place(y, 1), QStringLiteral("click"), QStringLiteral("1")});
}
