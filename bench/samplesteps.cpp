// SPDX-License-Identifier: MIT
#include "bench/samplesteps.h"

QJsonObject step(int i)
{
    return {{QStringLiteral("x"), i % 1920}, {QStringLiteral("y"), i % 1080},
        {QStringLiteral("followWindow"), QStringLiteral("MainWindow")},
        {QStringLiteral("comment"), QStringLiteral("step number %1").arg(i)},
        {QStringLiteral("hint"), QStringLiteral("qsTr(\"Press the <b>button</b> no. %1\")").arg(i)},
        {QStringLiteral("condition"), QStringLiteral("click,")},
        {QStringLiteral("icon"), QStringLiteral("click")}};
}

QJsonArray steps(int count)
{
    QJsonArray array;
    for (int i = 0; i < count; ++i)
        array.append(step(i));
    return array;
}
