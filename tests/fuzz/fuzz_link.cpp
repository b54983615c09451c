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
constexpr int kLongestPacket = 60; // bytes, so that inputs hold longer ones

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
            const bool endsBurst = input.ConsumeBool();
            const std::string read = input.ConsumeBytesAsString(size);
            manager->handleRead(QByteArray::fromStdString(read), endsBurst);
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

// The texts of a stream's packets, by the plain rules, for which each burst lies
// in the memory as a whole.
QStringList plainTexts(const QList<QByteArray>& bursts)
{
    QStringList texts;
    QByteArray tail;
    bool isSkipping = false; // a packet that was longer than a tail may be
    for (const QByteArray& burst : bursts) {
        QByteArray data = tail + burst;
        if (isSkipping) {
            if (!burst.contains('\0'))
                continue;
            data = burst.mid(burst.indexOf('\0') + 1);
            isSkipping = false;
        } else if (data.size() < 2) {
            continue;
        }
        while (data.size() >= 3 && data.startsWith('0') && data.contains('\0')) {
            // A text ends at a zero byte, or where everything ends.
            const QByteArray text = data.mid(2).split('\0').first();
            if (text.size() + 2 <= kLongestPacket && !textOf(text).isEmpty())
                texts << textOf(text);
            data = data.mid(data.indexOf('\0') + 1);
        }
        const bool isUnfinished = data.startsWith('0') && !data.contains('\0');
        isSkipping = isUnfinished && data.size() > kLongestPacket;
        tail = isUnfinished && !isSkipping ? data : QByteArray();
    }
    return texts;
}

// However a stream's bursts are cut into reads, its texts are the plain ones.
void cutBursts(FuzzedDataProvider input, QByteArray stream)
{
    PacketReader reader(kLongestPacket);
    QList<QByteArray> bursts;
    QStringList found;
    for (bool endsBurst = true; !stream.isEmpty();) {
        const int size = input.ConsumeIntegralInRange(1, kLongestRead);
        if (endsBurst)
            bursts << QByteArray();
        endsBurst = input.ConsumeBool() || size >= stream.size();
        bursts.last() += stream.left(size);
        reader.append(stream.left(size), endsBurst);
        stream.remove(0, size);
        for (QString text; reader.next(&text);)
            found << text;
    }
    expect(found == plainTexts(bursts), "texts are the same however bursts are cut into reads");
}

// The input as packets: what stands between its zero bytes are their texts.
QByteArray packetsOf(const QByteArray& texts)
{
    QByteArray packets;
    for (const QByteArray& text : texts.split('\0'))
        packets += "0\2" + text + '\0';
    return packets;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    nonsense({data, size});
    const QByteArray bytes(reinterpret_cast<const char*>(data), int(size));
    cutBursts({data, size}, bytes);
    cutBursts({data, size}, packetsOf(bytes));
    return 0;
}
