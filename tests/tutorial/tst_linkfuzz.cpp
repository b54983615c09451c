#include "overlay/tutorialindicator.h"
#include "overlay/tutoriallog.h"
#include "overlay/tutorialtooltip.h"
#include "tests/support/testhost.h"
#include "tests/support/windows.h"
#include "tutorial/tutorialmanager.h"

#include <QApplication>
#include <QPointer>
#include <QtTest>

#include <random>

namespace {

// Seeds of the mutations: one packet of each kind.
const char* const kPackets[] = {"start\1"
                                "0\1"
                                "0\1"
                                "1280\1"
                                "800",
    "stop", "alive", "contents\1text",
    "indicator\1update\1"
    "10\1"
    "20\1"
    "65\1<b>hint</b>\1"
    "3\1"
    "4",
    "indicator\1updateXy\1"
    "100\1-50",
    "state\1show", "state\1hide", "log\1append\1text",
    "windowStack\1push\1"
    "10",
    "windowStack\1pop\1"
    "10",
    "windowPosition\1"
    "66\1"
    "5\1"
    "6",
    "editor\1open\1path", "untr\1hint\1text"};

// Reads of a host that has gone mad: packets that are whole, bent, cut or
// joined, and plain noise.
class Reads {
public:
    explicit Reads(quint32 seed) : mRandom(seed) { }

    QByteArray next()
    {
        if (below(2000) == 0)
            return bytes("0\2bye\0");
        if (below(10) == 0)
            return noise(below(40));
        QByteArray read;
        for (int left = 1 + below(3); left > 0; --left) {
            QByteArray packet = "0\2" + QByteArray(kPackets[below(std::size(kPackets))]) + '\0';
            for (int bends = below(4); bends > 0; --bends)
                bend(&packet);
            read += packet;
        }
        return below(8) == 0 ? read.left(below(read.size() + 1)) : read;
    }

private:
    int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(mRandom); }

    QByteArray noise(int size)
    {
        QByteArray bytes(size, '0');
        for (char& byte : bytes)
            byte = static_cast<char>(below(4) == 0 ? below(3) : below(256));
        return bytes;
    }

    void bend(QByteArray* packet)
    {
        static const QByteArray numbers[] = {
            "2147483647", "-2147483648", "99999999999", "-1", "70", "-9999", "", "x"};
        const int at = below(packet->size());
        switch (below(4)) {
        case 0:
            (*packet)[at] = static_cast<char>(below(256));
            break;
        case 1:
            packet->remove(at, 1 + below(4));
            break;
        case 2:
            packet->insert(at, noise(1 + below(3)));
            break;
        case 3:
            packet->insert(at, '\1' + numbers[below(std::size(numbers))] + '\1');
            break;
        }
        if (packet->isEmpty())
            *packet = "0";
    }

    std::mt19937 mRandom;
};

// What managers that have ended leave behind.
void deleteWindows()
{
    qDeleteAll(windows<TutorialIndicator>());
    qDeleteAll(windows<TutorialTooltip>());
    qDeleteAll(windows<TutorialLog>());
}

} // namespace

// A million reads of nonsense, the same ones in every run. It looks for what
// the sanitizers report, and that a sound message is still understood after.
class tst_LinkFuzz : public QObject {
    Q_OBJECT

private slots:
    void nonsenseDoesNoHarm();
};

void tst_LinkFuzz::nonsenseDoesNoHarm()
{
    constexpr int kReads = 1000000;
    Reads reads(20260101);
    QPointer<TutorialManager> manager;
    int managers = 0;
    for (int i = 0; i < kReads; ++i) {
        if (!manager) {
            deleteWindows();
            manager = new TutorialManager(qApp);
            ++managers;
        }
        manager->handleRead(reads.next());
        QCoreApplication::sendPostedEvents(manager, QEvent::DeferredDelete);
        if (i % 1000 == 0)
            QCoreApplication::processEvents(); // timers and paints
    }
    QVERIFY(managers > 1);

    if (manager)
        manager->close();
    delete manager;
    manager = new TutorialManager(qApp);
    manager->handleRead(bytes("0\2start\2windowPosition\1"
                              "5\1"
                              "6\1"
                              "7\0"));
    QCOMPARE(manager->getXy(Tutorial::Window_EventCommandTexts), QPoint(6, 7));
    manager->close();
    delete manager;
    QVERIFY(!TutorialManager::mInstance);
    deleteWindows();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

int main(int argc, char** argv)
{
    // A connection id that nobody serves.
    QByteArray id = TestHost::randomId().toLatin1();
    char* arguments[] = {argv[0], id.data(), nullptr};
    int count = 2;
    QApplication application(count, arguments);
    tst_LinkFuzz test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_linkfuzz.moc"
