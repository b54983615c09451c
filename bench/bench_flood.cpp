// SPDX-License-Identifier: MIT
#include "bench/guest.h"
#include "bench/report.h"
#include "bench/samplesteps.h"
#include "editor/scenario/scenariowriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QPoint>
#include <QQueue>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QThread>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <iterator>

// Measures what a flood of messages does to the tutorial while an author works
// with a large scenario: whether all of them are handled, in order, what stays of
// them in memory, and whether "alive" is still sent.
//
//   bench_flood TUTORIAL [MESSAGES]
//
// Whatever moves a step is acknowledged by the tutorial: each acknowledgement has
// to come, with its own numbers, and nothing besides. The other messages stand
// between those, so that none of their bytes can be missing.

using namespace TutorialEditor;

namespace {

constexpr int kMessages = 1000000;
constexpr int kSteps = 10000;
constexpr int kEditedSteps = 100; // an edited step holds memory of its own
constexpr int kFirstMessages = 20000;
constexpr int kSettleMs = 3000;
constexpr int kDeadlineMs = 60000; // without an answer
constexpr int kMostDelayMs = 10; // of what has arrived
constexpr int kEverySize = 4096; // bytes; writes have every size up to here
constexpr int kMostInPacket = 8; // messages
constexpr int kAlivesAfter = 5;
constexpr double kMostMemory = 1.1; // to what it was, besides what can be undone
constexpr double kActMiB = 640.0 / (1 << 20); // a change of one step, to be undone
constexpr double kMostAliveMs = 1500; // for one a second
#ifdef TUTORIAL_SANITIZED
constexpr bool kJudgesMemory = false; // what is released is kept, to find late users
#else
constexpr bool kJudgesMemory = true;
#endif

// Those that are not answered; %1 is a number.
const QString kUnanswered[] = {QStringLiteral("windowStack|push|%1"),
    QStringLiteral("windowPosition|66|%1|-%1"),
    QStringLiteral("indicator|update|%1|-%1|65|Step <b>%1</b>|1|0"),
    QStringLiteral("indicator|updateXy|%1|-%1"), QStringLiteral("state|hide"),
    QStringLiteral("state|show"), QStringLiteral("windowStack|pop"), QStringLiteral("alive")};

// What the tutorial says, as it has to.
class Answers {
public:
    explicit Answers(Guest* guest) : mGuest(guest) { mClock.start(); }

    qint64 now() const { return mClock.elapsed(); }
    // When each "alive" came.
    const QVector<qint64>& alives() const { return mAlives; }

    // The next message but for "alive"; its fields are separated by '|'.
    void expect(const QString& message)
    {
        mExpected.enqueue(message.toUtf8().replace('|', '\x01'));
    }

    // Takes what has arrived; when that is nothing, waits so long for something.
    void take(int timeoutMs)
    {
        mReceived += mGuest->receive(timeoutMs);
        int begin = 0;
        for (int end; (end = mReceived.indexOf('\0', begin)) >= 0; begin = end + 1)
            handle(mReceived.mid(begin, end - begin));
        mReceived.remove(0, begin);
    }

    void takeAll()
    {
        while (!mExpected.isEmpty()) {
            const int missing = mExpected.size();
            const qint64 begin = now();
            while (mExpected.size() == missing) {
                if (now() - begin > kDeadlineMs)
                    qFatal("%d answers are missing", missing);
                take(kDeadlineMs);
            }
        }
    }

private:
    void handle(const QByteArray& packet)
    {
        if (packet == "1\x02" + QByteArray("alive")) {
            mAlives << now();
            return;
        }
        const QByteArray expected = mExpected.isEmpty() ? "nothing" : "1\x02" + mExpected.dequeue();
        if (packet != expected)
            qFatal("%s came instead of %s", packet.constData(), expected.constData());
    }

    Guest* mGuest;
    QQueue<QByteArray> mExpected;
    QByteArray mReceived; // until a packet's zero byte has arrived
    QElapsedTimer mClock;
    QVector<qint64> mAlives;
};

// The messages that a host sends while an author works.
class Messages {
public:
    explicit Messages(Answers* answers) : mAnswers(answers)
    {
        for (int i = 0; i < kEditedSteps; ++i)
            mPoints << QPoint(step(i).value(QLatin1String("x")).toInt(),
                step(i).value(QLatin1String("y")).toInt());
    }

    // Selects a step that is not selected yet.
    QString focus(int i)
    {
        mStep = i;
        mAnswers->expect(QStringLiteral("untr|comment|step number %1").arg(i));
        return acknowledged(QStringLiteral("editor|focus|%1").arg(i));
    }

    // How many of them have changed a step, which the author can undo.
    int acts() const { return mActs; }

    QString next()
    {
        constexpr int kUnansweredCount = std::size(kUnanswered);
        const int i = mCount++;
        const int turn = i % (4 * kUnansweredCount);
        if (turn < kUnansweredCount)
            return QString(kUnanswered[turn])
                .replace(QLatin1String("%1"), QString::number(i % 1000));
        switch (turn) {
        case kUnansweredCount:
            return focus((mStep + 1) % kEditedSteps);
        case kUnansweredCount + 1:
            return acknowledged(QStringLiteral("untr|hint|Press no. %1").arg(i));
        case kUnansweredCount + 2:
            ++mActs;
            return acknowledged(QStringLiteral("editor|condition|wait|%1").arg(i));
        }
        ++mActs;
        mPoints[mStep] = QPoint(i, -i);
        return acknowledged(QStringLiteral("editor|coordinates|%1|%2").arg(i).arg(-i));
    }

private:
    QString acknowledged(const QString& message)
    {
        const QPoint point = mPoints.at(mStep);
        mAnswers->expect(
            QStringLiteral("indicator|updateXYFollowWindow|%1|%2|0").arg(point.x()).arg(point.y()));
        return message;
    }

    Answers* mAnswers;
    QVector<QPoint> mPoints; // of the steps
    int mStep = 0; // the selected one
    int mCount = 0;
    int mActs = 0;
};

// The sizes of the writes: those up to kEverySize in turn, and as many bytes in
// larger ones, up to 1 MiB and spread over the orders of magnitude.
class Sizes {
public:
    int next()
    {
        if (mMoreInSmall > 0) {
            const int size = static_cast<int>(kEverySize * std::exp2(mRandom.bounded(8.0)));
            mMoreInSmall -= size;
            return size;
        }
        mSmall = mSmall == kEverySize ? kSmallest : mSmall + 1;
        mMoreInSmall += mSmall;
        return mSmall;
    }

private:
    static constexpr int kSmallest = 2; // bytes
    QRandomGenerator mRandom{1};
    int mSmall = kSmallest - 1;
    int mMoreInSmall = 0; // bytes
};

// Sends so many messages, alone in a packet and several in one, and takes all
// answers. A packet is cut wherever a write ends.
void flood(Guest* guest, Answers* answers, Messages* messages, int count)
{
    Sizes sizes;
    QRandomGenerator random(2);
    QByteArray bytes;
    for (int left = count; left > 0 || !bytes.isEmpty();) {
        const int size = sizes.next();
        while (bytes.size() < size && left > 0) {
            const int together = random.bounded(2) ? 1 : random.bounded(2, kMostInPacket + 1);
            QStringList packet;
            for (int i = 0; i < together && left > 0; ++i, --left)
                packet << messages->next();
            bytes += Guest::packet(packet);
        }
        guest->write(bytes.left(size));
        bytes.remove(0, size);
        do
            answers->take(0);
        while (!guest->flush(kMostDelayMs));
    }
    answers->takeAll();
}

// The longest time without one of these events, which are in their order.
double longestGap(qint64 begin, const QVector<qint64>& events)
{
    qint64 longest = 0;
    for (qint64 event : events) {
        longest = std::max(longest, event - begin);
        begin = event;
    }
    return longest;
}

} // namespace

int main(int argc, char** argv)
{
    // A line for each message that the authoring tool takes.
    qputenv("QT_LOGGING_RULES", "default.debug=false");
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const int count = arguments.size() > 2 ? arguments.at(2).toInt() : kMessages;
    if (arguments.size() < 2 || count < 1)
        qFatal("usage: bench_flood TUTORIAL [MESSAGES]");

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scenario.js"));
    if (!writeScenarioFile(path, scenarioJson(steps(kSteps))))
        qFatal("%s is not written", qUtf8Printable(path));
    // What is kept of the unsaved changes goes with the scenario.
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));

    Guest guest(arguments.at(1));
    Answers answers(&guest);
    Messages messages(&answers);
    // The author sees the first step, every hint looked up.
    QStringList translations;
    for (int i = 0; i < kSteps; ++i) {
        answers.expect(QStringLiteral("untr|hint%1|%2")
                           .arg(i)
                           .arg(step(i).value(QLatin1String("hint")).toString()));
        translations << QStringLiteral("untr|hint%1|Press the <b>button</b> no. %1").arg(i);
    }
    answers.expect(QStringLiteral("editor|opened|") + path);
    guest.send(
        {QStringLiteral("start|0|0|1280|800"), QStringLiteral("indicator|update|0|0|0|Press|1|0"),
            QStringLiteral("indicator|updateXy|300|200"), QStringLiteral("editor|open|") + path});
    answers.takeAll();
    guest.send(translations << messages.focus(0));
    answers.takeAll();
    // What the first messages of each kind and the first edits leave behind is no
    // part of the flood's.
    flood(&guest, &answers, &messages, kFirstMessages);
    QThread::msleep(kSettleMs);
    const double memoryBefore = guest.memoryMiB();
    const int actsBefore = messages.acts();

    answers.take(0);
    const qint64 begin = answers.now();
    flood(&guest, &answers, &messages, count);
    const qint64 end = answers.now();
    const int during = answers.alives().size();
    while (answers.alives().size() < during + kAlivesAfter) {
        if (answers.now() - end > kDeadlineMs)
            qFatal("no \"alive\" comes any more");
        answers.take(kDeadlineMs);
    }
    const double historyMiB = (messages.acts() - actsBefore) * kActMiB;
    const double memoryAfter = guest.memoryMiB() - historyMiB;

    const QVector<qint64>& alives = answers.alives();
    const double afterMs = longestGap(end, alives.mid(during));
    const double ratio = memoryAfter / memoryBefore;
    const auto figure = [](double value, const char* unit) {
        return QStringLiteral("%1 %2").arg(value, 0, 'f', 1).arg(QLatin1String(unit));
    };
    const QString none = QStringLiteral("-");
    reportRow(QStringLiteral("flood of %L1 messages, 10,000 steps open").arg(count),
        figure((end - begin) / 1e3, "s"), none, none, QString(), true);
    reportRow(QStringLiteral("longest wait for \"alive\" meanwhile"),
        figure(longestGap(begin, alives.mid(0, during) << end) / 1e3, "s"), none, none, QString(),
        true);
    bool kept =
        reportRow(QStringLiteral("the same after it"), figure(afterMs / 1e3, "s"), none, none,
            QStringLiteral("at most ") + figure(kMostAliveMs / 1e3, "s"), afterMs <= kMostAliveMs);
    kept &= reportRow(QStringLiteral("memory after it, to before, but for %1 of history")
                          .arg(figure(historyMiB, "MiB")),
        figure(memoryAfter, "MiB"), figure(memoryBefore, "MiB"),
        QStringLiteral("%1 x").arg(ratio, 0, 'f', 2),
        kJudgesMemory ? QStringLiteral("at most %1 x").arg(kMostMemory) : QString(),
        !kJudgesMemory || ratio <= kMostMemory);
    return kept ? 0 : 1;
}
