// SPDX-License-Identifier: MIT
#include "tutorial/process/version.h"

QString projectVersion()
{
    return QStringLiteral(PROJECT_VERSION);
}
