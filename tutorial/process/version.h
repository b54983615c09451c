// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// The version of the project's programs, "0.1" for example. The build takes it
// from CMake's project(), and nothing else names it.
QString projectVersion();
