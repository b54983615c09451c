// SPDX-License-Identifier: MIT
#include "editor/hostmessages.h"
#include "overlay/tutorialindicator.h"
#include "overlay/tutoriallog.h"
#include "overlay/tutorialtooltip.h"
#include "tests/fuzz/fuzzer.h"
#include "tests/support/windows.h"
#include "tutorial/runtime/tutorialmanager.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <QApplication>
#include <QPointer>

namespace {

constexpr int kLongestRead = 200;

// Ends the manager, and deletes the windows that managers leave behind.
void clean(TutorialManager* manager)
{
    if (manager)
        manager->close();
    delete manager;
    qDeleteAll(windows<TutorialIndicator>());
    qDeleteAll(windows<TutorialTooltip>());
    qDeleteAll(windows<TutorialLog>());
    expect(!TutorialManager::mInstance, "no manager is left");
    expect(QApplication::topLevelWidgets().isEmpty(), "no window is left");
}

// Reads with whatever is in the input. Their sizes are taken from its end.
void nonsense(FuzzedDataProvider input)
{
    QPointer<TutorialManager> manager = new TutorialManager(qApp);
    {
        // Its tasks wait for the event loop, and end with it.
        TutorialEditor::HostMessages messages(manager);
        while (manager && input.remaining_bytes() > 0) {
            const auto size = input.ConsumeIntegralInRange<std::size_t>(1, kLongestRead);
            manager->handleRead(QByteArray::fromStdString(input.ConsumeBytesAsString(size)));
            QCoreApplication::sendPostedEvents(manager, QEvent::DeferredDelete);
        }
    }
    QCoreApplication::processEvents(); // timers and paints
    clean(manager);

    manager = new TutorialManager(qApp);
    manager->handleRead(QByteArrayLiteral("0\2start\2windowPosition\1"
                                          "5\1"
                                          "6\1"
                                          "7\0"));
    expect(manager->getXy(Tutorial::Window_EventCommandTexts) == QPoint(6, 7),
        "a message is understood after nonsense");
    clean(manager);
}

// Whole packets, with the zero bytes of the input between their texts, come out
// as they are wherever the reads end.
void cutPackets(FuzzedDataProvider input, QByteArray texts)
{
    QStringList expected;
    QByteArray stream;
    for (const QByteArray& text : texts.split('\0')) {
        stream += "0\2" + text + '\0';
        if (!textOf(text).isEmpty())
            expected << textOf(text);
    }

    PacketReader reader;
    QStringList found;
    while (!stream.isEmpty()) {
        int size = input.ConsumeIntegralInRange(2, kLongestRead);
        if (stream.size() - size < 2) // a single byte is dropped
            size = stream.size();
        reader.append(stream.left(size));
        stream.remove(0, size);
        for (QString text; reader.next(&text);)
            found << text;
    }
    expect(found == expected, "packets are the same however they are cut into reads");
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    nonsense({data, size});
    cutPackets({data, size}, QByteArray(reinterpret_cast<const char*>(data), int(size)));
    return 0;
}
