#include "tests/fuzz/fuzzer.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <sanitizer/lsan_interface.h>

#include <cstdlib>

// Called once before the first input.
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);

extern "C" int LLVMFuzzerInitialize(int*, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.warning=false"));
    QStandardPaths::setTestModeEnabled(true);
    // Not the engine's arguments, but a connection id that nobody serves.
    static char id[] = "fuzzer";
    static char* arguments[] = {*argv ? (*argv)[0] : id, id, nullptr};
    static int count = 2;
    static auto* application = new QApplication(count, arguments);
    Q_UNUSED(application)
    // While Qt still refers to all that lives as long as the process.
    std::atexit(__lsan_do_leak_check);
    return 0;
}
