// SPDX-License-Identifier: MIT
#include "editor/document/diskwatch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <atomic>
#include <cstdio>
#include <functional>
#include <sys/stat.h>

using namespace TutorialEditor;

namespace {

constexpr qint64 kTooLarge = 300 * 1024 * 1024; // bytes
// Longer than what belongs to one change takes.
constexpr int kQuietMs = 600;

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

void write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(bytes);
}

void setTime(const QString& path, const QDateTime& time)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite) && file.setFileTime(time, QFile::FileModificationTime));
}

using Change = std::function<void(const QString&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

class tst_DiskWatch : public QObject {
    Q_OBJECT

private slots:
    void init();
    void noticesEachChangeOnce_data();
    void noticesEachChangeOnce();
    void followsWhatTakesThePlace();
    void ownWritingIsNoChange();
    void aPipeThatComesAndGoesIsNotWaitedFor();

private:
    QString path() const { return mFolder->filePath("work/garden.js"_s); }

    QScopedPointer<QTemporaryDir> mFolder;
};

void tst_DiskWatch::init()
{
    mFolder.reset(new QTemporaryDir);
    QVERIFY(QDir(mFolder->path()).mkpath("work"_s));
    write(path(), "first");
}

void tst_DiskWatch::noticesEachChangeOnce_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<int>("changes");
    QTest::addColumn<bool>("isReadable");
    const auto row = [](const char* name, int changes, bool isReadable, const Change& change) {
        QTest::newRow(name) << change << changes << isReadable;
    };
    const QDateTime past = QDateTime::fromSecsSinceEpoch(86400);
    row("written anew", 1, true, [](const QString& path) { write(path, "other"); });
    row("written bit by bit", 1, true, [](const QString& path) {
        for (const char* text : {"a", "ab", "abc", "abcd"})
            write(path, text);
    });
    row("replaced by a rename", 1, true, [](const QString& path) {
        write(path + ".new"_s, "other");
        QCOMPARE(rename(QFile::encodeName(path + ".new"_s), QFile::encodeName(path)), 0);
    });
    row("removed and made anew at the same time", 1, true, [](const QString& path) {
        const QDateTime time = QFileInfo(path).lastModified();
        QVERIFY(QFile::remove(path));
        write(path, "other");
        setTime(path, time);
    });
    row("by a clock that was set back", 1, true, [past](const QString& path) {
        write(path, "other");
        setTime(path, past);
    });
    row("folder renamed and made anew", 1, true, [](const QString& path) {
        const QString folder = QFileInfo(path).absolutePath();
        QVERIFY(QDir().rename(folder, folder + "-former"_s));
        QVERIFY(QDir().mkpath(folder));
        write(path, "other");
    });
    row("removed", 1, false, [](const QString& path) { QVERIFY(QFile::remove(path)); });
    row("folder gone", 1, false,
        [](const QString& path) { QVERIFY(QFileInfo(path).dir().removeRecursively()); });
    row("a folder", 1, false,
        [](const QString& path) { QVERIFY(QFile::remove(path) && QDir().mkpath(path + "/a"_s)); });
    row("a pipe", 1, false, [](const QString& path) {
        QVERIFY(QFile::remove(path) && mkfifo(QFile::encodeName(path), 0600) == 0);
    });
    row("too large", 1, false,
        [](const QString& path) { QVERIFY(QFile::resize(path, kTooLarge)); });
    row("empty", 1, true, [](const QString& path) { write(path, ""); });
    row("touched", 0, true, [past](const QString& path) { setTime(path, past); });
    row("made anew with the same bytes", 0, true, [](const QString& path) {
        QVERIFY(QFile::remove(path));
        write(path, "first");
    });
    row("another file beside it", 0, true, [](const QString& path) { write(path + "x"_s, "a"); });
}

void tst_DiskWatch::noticesEachChangeOnce()
{
    QFETCH(Change, change);
    QFETCH(int, changes);
    DiskWatch watch;
    watch.watch(path(), DiskFile::at(path()));
    QSignalSpy spy(&watch, &DiskWatch::changed);
    change(path());
    if (changes > 0)
        QVERIFY(spy.wait());
    QVERIFY(!spy.wait(kQuietMs));
    QCOMPARE(spy.count(), changes);
    QCOMPARE(watch.seen(), DiskFile::at(path()));
    QTEST(watch.seen().isReadable(), "isReadable");
}

void tst_DiskWatch::followsWhatTakesThePlace()
{
    DiskWatch watch;
    watch.watch(path(), DiskFile::at(path()));
    QSignalSpy spy(&watch, &DiskWatch::changed);
    QDir folder = QFileInfo(path()).dir();
    for (int i = 0; i < 2; ++i) {
        QVERIFY(folder.removeRecursively());
        QVERIFY(spy.wait());
        QVERIFY(folder.mkpath("."_s));
        write(path(), "again");
        QVERIFY(spy.wait());
        // As an editor writes it, and then a program that keeps the file.
        write(path() + "~"_s, "by rename");
        QCOMPARE(rename(QFile::encodeName(path() + "~"_s), QFile::encodeName(path())), 0);
        QVERIFY(spy.wait());
        write(path(), "in place");
        QVERIFY(spy.wait());
    }
    // A link into another folder, as version control of one's settings makes it.
    const QString target = mFolder->filePath("target.js"_s);
    write(target, "behind a link");
    QVERIFY(QFile::remove(path()) && QFile::link(target, path()));
    QVERIFY(spy.wait());
    write(target + "~"_s, "by rename");
    QCOMPARE(rename(QFile::encodeName(target + "~"_s), QFile::encodeName(target)), 0);
    QVERIFY(spy.wait());
    QCOMPARE(watch.seen(), DiskFile::of("by rename"));
}

void tst_DiskWatch::ownWritingIsNoChange()
{
    DiskWatch watch;
    watch.watch(path(), DiskFile::at(path()));
    QSignalSpy spy(&watch, &DiskWatch::changed);
    write(path(), "own");
    watch.setSeen(DiskFile::of("own"));
    QVERIFY(!spy.wait(kQuietMs));
    write(path(), "other");
    QVERIFY(spy.wait());
}

void tst_DiskWatch::aPipeThatComesAndGoesIsNotWaitedFor()
{
    const QByteArray name = QFile::encodeName(path());
    std::atomic<bool> isDone{false};
    const QScopedPointer<QThread> other(QThread::create([&] {
        while (!isDone) {
            mkfifo(name + ".pipe", 0600);
            rename(name + ".pipe", name);
            write(path() + ".new"_s, "other");
            rename(name + ".new", name);
        }
    }));
    other->start();
    QElapsedTimer clock;
    clock.start();
    int files = 0;
    int others = 0;
    while ((files < 2000 || others < 2000) && clock.elapsed() < 20000)
        ++(DiskFile::at(path()).isReadable() ? files : others);
    isDone = true;
    QVERIFY(other->wait());
    QVERIFY2(files > 0 && others > 0, "nothing came and went");
}

QTEST_GUILESS_MAIN(tst_DiskWatch)
#include "tst_diskwatch.moc"
