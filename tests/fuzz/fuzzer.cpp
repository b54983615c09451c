// SPDX-License-Identifier: MIT
#include "tests/fuzz/fuzzer.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <sanitizer/lsan_interface.h>

#include <cstdlib>

extern "C" {

// The sanitizers ask for their options.
const char* __lsan_default_options();
const char* __ubsan_default_options();
// Called once before the first input.
int LLVMFuzzerInitialize(int* argc, char*** argv);

const char* __lsan_default_options()
{
    return "suppressions=" LEAK_SUPPRESSIONS ":print_suppressions=0";
}

const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}

int LLVMFuzzerInitialize(int*, char***)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.warning=false"));
    QStandardPaths::setTestModeEnabled(true);
    // Not the engine's arguments, but a connection id that nobody serves.
    static char name[] = "fuzzer";
    static char id[] = "nobody";
    static char* arguments[] = {name, id, nullptr};
    static int count = 2;
    static auto* application = new QApplication(count, arguments);
    Q_UNUSED(application)
    // While Qt still refers to all that lives as long as the process.
    std::atexit(__lsan_do_leak_check);
    return 0;
}

} // extern "C"
