// SPDX-License-Identifier: MIT
#pragma once

// Runs the tutorial until its host ends it. With "--version" or "--help" as the
// only argument it answers and returns, without a display.
// argc, argv: as given to main. Returns the process's exit code.
int runApplication(int argc, char** argv);
