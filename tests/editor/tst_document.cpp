// SPDX-License-Identifier: MIT
#include "editor/document/datafolder.h"
#include "editor/document/openmark.h"
#include "editor/document/recoverycopy.h"
#include "editor/document/scenariodocument.h"
#include "editor/document/stepdifference.h"
#include "editor/scenario/scenarioreader.h"
#include "editor/scenario/scenariowriter.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace TutorialEditor;

using Document = ScenarioDocument;

namespace {

constexpr qint64 kTooLarge = 300 * 1024 * 1024; // bytes

QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

QJsonArray stepsOf(const QString& hints)
{
    QJsonArray steps;
    for (const QString& hint : hints.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        steps.append(QJsonObject{{"hint"_s, hint}});
    return steps;
}

QByteArray textOf(const QString& hints)
{
    return scenarioFileText(scenarioJson(stepsOf(hints))).toUtf8();
}

// A scenario of one step whose "hint" is this JSON.
QByteArray withHint(const QByteArray& value)
{
    return "var scenario = [\n{\n\"hint\": " + value + "\n}\n];";
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
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

void makePipe(const QString& path)
{
    QFile::remove(path);
    QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
}

// Files do not grow beyond so many bytes.
class FullDisk {
public:
    explicit FullDisk(rlim_t bytes)
    {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &mFormer);
        const rlimit limit{bytes, mFormer.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() { setrlimit(RLIMIT_FSIZE, &mFormer); }

private:
    rlimit mFormer;
};

// A document, and its steps as an author has them before the eyes.
class Work {
public:
    explicit Work(const QString& path) : document([this] { return steps; }) { open(path); }

    void open(const QString& path)
    {
        QString text;
        QStringList errors;
        if (!document.open(path, &text, &errors))
            return;
        steps = readScenario(text, &errors);
        document.setLoaded(steps, errors.isEmpty());
    }
    QString json() const { return scenarioJson(steps); }
    Document::SaveReport save() { return document.save(json(), steps); }

    QJsonArray steps;
    Document document;
};

using Change = std::function<void(const QString& path)>;

} // namespace

Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(TutorialEditor::ScenarioDocument::SaveResult)

class tst_Document : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(mFolder.isValid()); }
    void init();
    void cleanup();

    void saves_data();
    void saves();
    void keepsWhatWasNotReadWhole_data();
    void keepsWhatWasNotReadWhole();
    void keptFileIsNeverWorse_data();
    void keptFileIsNeverWorse();
    void replacesNothingThatIsNotKept();
    void agreementIsForOneFile();
    void noticesWhatOthersDo();
    void markIsOfALivingProcess();
    void toolsThatSaveAtOnceLoseNothing();
    void countsDifferences_data();
    void countsDifferences();

private:
    QString path() const { return mFolder.filePath("work/garden.js"_s); }
    QString kept(const QString& number = QString()) const { return path() + ".bak"_s + number; }

    QTemporaryDir mFolder;
};

void tst_Document::init()
{
    QVERIFY(QDir(mFolder.path()).mkpath("work"_s));
}

void tst_Document::cleanup()
{
    // Nothing is left behind but what is meant to stay.
    for (const QString& name : QDir(mFolder.filePath("work"_s)).entryList(QDir::Files))
        QVERIFY2(QRegularExpression("^garden.js(\\.bak(\\.\\d)?)?$"_s).match(name).hasMatch()
                || name.size() > 200,
            qPrintable(name));
    QDir(mFolder.filePath("work"_s)).removeRecursively();
    QCOMPARE(QDir(RecoveryCopy::folder()).entryList(QDir::Files), QStringList());
}

void tst_Document::saves_data()
{
    QTest::addColumn<QByteArray>("before"); // null for no file
    QTest::addColumn<Change>("change");
    QTest::addColumn<Document::SaveResult>("result");
    QTest::addColumn<QByteArray>("keptText"); // once the author agrees
    const QByteArray none;
    const QByteArray text = textOf("a b"_s);
    const QByteArray other = textOf("c d"_s);

    QTest::newRow("what was read")
        << text << Change([](const QString&) {}) << Document::Saved << none;
    QTest::newRow("the same bytes with a new time") << text << Change([](const QString& path) {
        setTime(path, QDateTime::currentDateTime().addSecs(3600));
    }) << Document::Saved << none;
    QTest::newRow("the same bytes in another file") << text << Change([text](const QString& path) {
        QVERIFY(QFile::rename(path, path + ".bak"_s));
        write(path, text);
        QFile::remove(path + ".bak"_s);
    }) << Document::Saved << none;
    QTest::newRow("another text") << text
                                  << Change([other](const QString& path) { write(path, other); })
                                  << Document::ChangedOnDisk << other;
    QTest::newRow("another text of the same size and time")
        << text << Change([other](const QString& path) {
               const QDateTime time = QFileInfo(path).lastModified();
               QFile::remove(path);
               write(path, other);
               setTime(path, time);
           })
        << Document::ChangedOnDisk << other;
    QTest::newRow("another text of an older time") << text << Change([other](const QString& path) {
        write(path, other);
        setTime(path, QDateTime::currentDateTime().addYears(-1));
    }) << Document::ChangedOnDisk << other;
    QTest::newRow("a file where there was none")
        << none << Change([other](const QString& path) { write(path, other); })
        << Document::ChangedOnDisk << other;
    QTest::newRow("none where there was none")
        << none << Change([](const QString&) {}) << Document::Saved << none;
    QTest::newRow("the file is gone")
        << text << Change([](const QString& path) { QFile::remove(path); }) << Document::Saved
        << none;
    QTest::newRow("the folder is gone") << text << Change([](const QString& path) {
        QVERIFY(QFileInfo(path).dir().removeRecursively());
    }) << Document::FolderGone << none;
    QTest::newRow("a folder") << text << Change([](const QString& path) {
        QFile::remove(path);
        QVERIFY(QDir().mkdir(path));
    }) << Document::NotAFile << none;
    QTest::newRow("a pipe") << text << Change(makePipe) << Document::NotAFile << none;
    QTest::newRow("an empty file")
        << text << Change([](const QString& path) { write(path, QByteArray()); })
        << Document::ChangedOnDisk << none;
    const QByteArray large = textOf("word "_s.repeated(200));
    QTest::newRow("a file ten times as large")
        << text << Change([large](const QString& path) { write(path, large); })
        << Document::ChangedOnDisk << large;
    QTest::newRow("what is no scenario")
        << text << Change([](const QString& path) { write(path, "<<<<<<< ours"); })
        << Document::ChangedOnDisk << QByteArray("<<<<<<< ours");
}

void tst_Document::saves()
{
    QFETCH(QByteArray, before);
    QFETCH(Change, change);
    QFETCH(Document::SaveResult, result);
    if (!before.isNull())
        write(path(), before);
    Work work(path());
    change(path());
    const QByteArray now = QFileInfo(path()).isFile() ? read(path()) : QByteArray();
    QCOMPARE(work.document.isChangedOnDisk(), result == Document::ChangedOnDisk);
    QCOMPARE(work.document.isGone(), !before.isNull() && !QFileInfo::exists(path()));

    work.steps.append(QJsonObject{{"hint"_s, "e"_s}});
    const QByteArray saved = scenarioFileText(work.json()).toUtf8();
    QCOMPARE(work.document.willBeKeptAs(), QString());
    QCOMPARE(work.save().result, result);
    if (result == Document::ChangedOnDisk) {
        QCOMPARE(read(path()), now);
        QVERIFY(!work.document.isSaved(work.json()));
        work.document.agreeToReplace(work.document.disk());
        result = Document::Saved;
        QCOMPARE(work.save().result, result);
    }
    QCOMPARE(work.document.lastResult(), result);
    QCOMPARE(work.document.isSaved(work.json()), result == Document::Saved);
    if (result == Document::Saved)
        QCOMPARE(read(path()), saved);
    QFETCH(QByteArray, keptText);
    QCOMPARE(read(kept()), keptText);
    // What it wrote itself is known to it.
    QVERIFY(result != Document::Saved || work.save().result == Document::Saved);
    QCOMPARE(read(kept()), keptText);
}

void tst_Document::keepsWhatWasNotReadWhole_data()
{
    QTest::addColumn<QByteArray>("text"); // empty for one that is too large
    QTest::addColumn<bool>("isKept");
    QTest::newRow("too large") << QByteArray() << true;
    QTest::newRow("errors") << textOf("a b"_s).chopped(5) << true;
    QTest::newRow("replaced characters") << withHint("\"caf\xe9\"") << true;
    QTest::newRow("a hint that is a number") << withHint("5") << true;
    QTest::newRow("a hint that is a list") << withHint("[\"a\"]") << true;
    QTest::newRow("a comment that is an object")
        << withHint("\"h\",\n\"comment\": {\"a\": 1}") << true;
    QTest::newRow("in a group") << withHint("\"h\",\n\"group\": [\n{\n\"hint\": true\n}\n]")
                                << true;
    QTest::newRow("a group's own place") << withHint("\"h\",\n\"x\": 1,\n\"group\": []") << true;
    QTest::newRow("digits that are not written") << withHint("\"h\",\n\"option\": 1234567") << true;
    QTest::newRow("odd values that are written")
        << withHint("\"h\",\n\"a\": [1, null],\n\"comment\": null,\n\"x\": 0.25") << false;
}

void tst_Document::keepsWhatWasNotReadWhole()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, isKept);
    write(path(), text);
    const bool isTooLarge = text.isEmpty();
    if (isTooLarge)
        QVERIFY(QFile::resize(path(), kTooLarge));
    struct stat before;
    stat(QFile::encodeName(path()).constData(), &before);

    Work work(path());
    QCOMPARE(work.document.isUnread(), isTooLarge);
    QCOMPARE(work.document.willBeKeptAs(), isKept ? kept() : QString());
    work.steps = stepsOf("a"_s);
    const auto report = work.save();
    QCOMPARE(report.result, Document::Saved);
    QCOMPARE(report.keptAs, isKept ? kept() : QString());
    QCOMPARE(read(path()), textOf("a"_s));
    QCOMPARE(QFileInfo(kept()).size(), isTooLarge ? kTooLarge : isKept ? text.size() : 0);
    if (isTooLarge) {
        // Not a byte of it was copied.
        struct stat after;
        QCOMPARE(stat(QFile::encodeName(kept()).constData(), &after), 0);
        QCOMPARE(after.st_ino, before.st_ino);
    } else if (isKept) {
        QCOMPARE(read(kept()), text);
    }
    // Only what it was before the first writing.
    const QByteArray firstKept = isTooLarge ? QByteArray() : read(kept());
    work.steps = stepsOf("b"_s);
    QCOMPARE(work.document.willBeKeptAs(), QString());
    QCOMPARE(work.save().keptAs, QString());
    if (!isTooLarge)
        QCOMPARE(read(kept()), firstKept);
}

void tst_Document::keptFileIsNeverWorse_data()
{
    QTest::addColumn<QByteArray>("former"); // the kept file that is there
    QTest::addColumn<QByteArray>("text"); // is kept now
    QTest::addColumn<QByteArray>("keptText");
    QTest::addColumn<QByteArray>("secondText"); // of the file with a number
    const QByteArray good = textOf("g"_s);
    const QByteArray better = textOf("h"_s);
    QTest::newRow("a scenario by a scenario") << good << better << better << QByteArray();
    QTest::newRow("a scenario by none") << good << QByteArray("[{") << good << QByteArray("[{");
    QTest::newRow("none by a scenario") << QByteArray("[{") << good << good << QByteArray("[{");
    QTest::newRow("none by none") << QByteArray("[{") << QByteArray("}]") << QByteArray("}]")
                                  << QByteArray("[{");
    QTest::newRow("by the same") << QByteArray("[{") << QByteArray("[{") << QByteArray("[{")
                                 << QByteArray();
}

void tst_Document::keptFileIsNeverWorse()
{
    QFETCH(QByteArray, former);
    QFETCH(QByteArray, text);
    write(path(), textOf("a"_s));
    Work work(path());
    write(path(), text);
    write(kept(), former);
    work.steps = stepsOf("b"_s);
    work.document.agreeToReplace(work.document.disk());
    const QString name = work.document.keptName();
    const auto report = work.save();
    QCOMPARE(report.result, Document::Saved);
    QCOMPARE(report.keptAs, name);
    QCOMPARE(read(name), text);
    QTEST(read(kept()), "keptText");
    QTEST(read(kept(".2"_s)), "secondText");
}

void tst_Document::replacesNothingThatIsNotKept()
{
    // A name so long that the file can only be kept as a copy, not as a link.
    const QString name = mFolder.filePath("work/"_s + "x"_s.repeated(230));
    const QByteArray broken = textOf("word "_s.repeated(1000)).chopped(5);
    write(name, broken);
    Work work(name);
    work.steps = stepsOf("a"_s);
    {
        const FullDisk disk(10000);
        QCOMPARE(work.save().result, Document::NotKept);
    }
    QCOMPARE(read(name), broken);
    QVERIFY(!QFile::exists(name + ".bak"_s));
    QCOMPARE(work.save().result, Document::Saved);
    QCOMPARE(read(name + ".bak"_s), broken);
}

void tst_Document::agreementIsForOneFile()
{
    write(path(), textOf("a"_s));
    Work work(path());
    work.steps = stepsOf("b"_s);
    write(path(), textOf("c"_s));
    work.document.agreeToReplace(work.document.disk());
    write(path(), textOf("d"_s)); // while the question was open
    QCOMPARE(work.save().result, Document::ChangedOnDisk);
    QCOMPARE(work.document.differenceFromDisk(work.steps), std::make_optional(1));
    work.open(path());
    QCOMPARE(work.steps, stepsOf("d"_s));
    QCOMPARE(work.save().result, Document::Saved);
    QVERIFY(!QFile::exists(kept()));
}

void tst_Document::noticesWhatOthersDo()
{
    write(path(), textOf("a"_s));
    Work work(path());
    QSignalSpy spy(&work.document, &Document::noticed);
    work.steps = stepsOf("b"_s);
    QCOMPARE(work.save().result, Document::Saved);
    write(path(), textOf("c"_s));
    QTRY_COMPARE(work.document.notice(), Document::ReadableFile);
    QVERIFY(QFile::resize(path(), kTooLarge));
    QTRY_COMPARE(work.document.notice(), Document::UnreadableFile);
    makePipe(path());
    QTRY_COMPARE(work.document.notice(), Document::NoFile);
    QVERIFY(QFileInfo(path()).dir().removeRecursively());
    QTRY_COMPARE(work.document.notice(), Document::FileGone);
    init();
    write(path(), textOf("d"_s));
    QTRY_COMPARE(work.document.notice(), Document::ReadableFile);
    // One for the own writing.
    QCOMPARE(spy.count(), 6);
    QString text;
    QStringList errors;
    QVERIFY(work.document.reload(&text, &errors));
    QCOMPARE(work.document.notice(), Document::NothingNew);
    QCOMPARE(text.toUtf8(), textOf("d"_s));
    // Where there was no file.
    Work other(kept("x"_s));
    write(kept("x"_s), textOf("e"_s));
    QTRY_COMPARE(other.document.notice(), Document::ReadableFile);
    QVERIFY(QFile::remove(kept("x"_s)));
    QTRY_COMPARE(other.document.notice(), Document::NothingNew);
}

void tst_Document::markIsOfALivingProcess()
{
    write(path(), textOf("a"_s));
    const QString link = path() + "-link"_s;
    QVERIFY(QFile::link(path(), link));
    int ready[2];
    QCOMPARE(pipe(ready), 0);
    const pid_t other = fork();
    if (other == 0) {
        const OpenMark mark(path());
        if (::write(ready[1], "", 1) == 1)
            pause();
        _exit(1);
    }
    char byte = 0;
    QCOMPARE(::read(ready[0], &byte, 1), ssize_t(1));
    {
        const OpenMark mark(link);
        QVERIFY(mark.isFor(path()) && !mark.isFor(kept()));
        QVERIFY(mark.hasOthers());
        QVERIFY(!OpenMark(kept()).hasOthers());
    }
    kill(other, SIGKILL);
    waitpid(other, nullptr, 0);
    close(ready[0]);
    close(ready[1]);
    QVERIFY(QFile::remove(link));
    QVERIFY(!OpenMark(path()).hasOthers());
    const QString marks = dataFolder("locks"_s);
    QCOMPARE(QDir(marks).entryList({"*open-*"_s}), QStringList());
}

void tst_Document::toolsThatSaveAtOnceLoseNothing()
{
    constexpr int kSaves = 25;
    write(path(), textOf(QString()));
    // Each adds steps, to whatever the other one has written meanwhile.
    const auto addSteps = [this](const QString& hint) {
        for (int done = 0; done < kSaves;) {
            Work work(path());
            work.steps.append(QJsonObject{{"hint"_s, hint}});
            done += work.save().result == Document::Saved;
        }
    };
    const QScopedPointer<QThread> first(QThread::create(addSteps, "a"_s));
    const QScopedPointer<QThread> second(QThread::create(addSteps, "b"_s));
    first->start();
    second->start();
    QVERIFY(first->wait() && second->wait());
    QCOMPARE(Work(path()).steps.size(), 2 * kSaves);
}

void tst_Document::countsDifferences_data()
{
    QTest::addColumn<QByteArray>("other");
    QTest::addColumn<int>("difference");
    const auto json = [](const char* text) { return QByteArray(text).replace('\'', '"'); };
    QTest::newRow("none") << json("[{'hint':'a'},{'hint':'g','group':[{'hint':'b'},{'hint':'c'}]}]")
                          << 0;
    QTest::newRow("one changed") << json(
        "[{'hint':'a'},{'hint':'g','group':[{'hint':'x'},{'hint':'c'}]}]")
                                 << 1;
    QTest::newRow("one added, one removed")
        << json("[{'hint':'x'},{'hint':'a'},{'hint':'g','group':[{'hint':'b'}]}]") << 1;
    QTest::newRow("ungrouped") << json("[{'hint':'a'},{'hint':'b'},{'hint':'c'}]") << 1;
    QTest::newRow("in another order")
        << json("[{'hint':'g','group':[{'hint':'b'},{'hint':'c'}]},{'hint':'a'}]") << 1;
    QTest::newRow("all removed") << json("[]") << 4;
}

void tst_Document::countsDifferences()
{
    QFETCH(QByteArray, other);
    const QJsonObject group{{"hint"_s, "g"_s}, {"group"_s, stepsOf("b c"_s)}};
    const QJsonArray steps{QJsonObject{{"hint"_s, "a"_s}}, group};
    const QJsonArray others = QJsonDocument::fromJson(other).array();
    QTEST(differingSteps(steps, others), "difference");
    QTEST(differingSteps(others, steps), "difference");
}

QTEST_GUILESS_MAIN(tst_Document)
#include "tst_document.moc"
