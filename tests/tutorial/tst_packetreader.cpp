// SPDX-License-Identifier: MIT
#include "tests/support/testhost.h"
#include "tutorial/runtime/packetreader.h"

#include <QtTest>

namespace {

QStringList drained(PacketReader* reader)
{
    QStringList texts;
    QString text;
    while (reader->next(&text))
        texts << text;
    return texts;
}

} // namespace

class tst_PacketReader : public QObject {
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void longPacketIsLostAlone_data();
    void longPacketIsLostAlone();
    void burstsInReads_data();
    void burstsInReads();
};

void tst_PacketReader::reads_data()
{
    QTest::addColumn<QList<QByteArray>>("reads");
    QTest::addColumn<QStringList>("texts");

    const auto row = [](const char* tag, const QList<QByteArray>& reads, const QStringList& texts) {
        QTest::newRow(tag) << reads << texts;
    };
    const QString a = QStringLiteral("a");
    const QString b = QStringLiteral("b");
    row("two packets in one read",
        {bytes("0\2a\0"
               "0\2b\0")},
        {a, b});
    row("second byte is not looked at", {bytes("0xa\0")}, {a});
    row("text is UTF-8", {bytes("0\2\xc3\xa9\0")}, {QString(QChar(0xe9))});
    row("empty text",
        {bytes("0\2\0"
               "0\2a\0")},
        {a});
    row("wrong tag ends the read",
        {bytes("0\2a\0"
               "1\2x\0"
               "0\2b\0"),
            bytes("0\2b\0")},
        {a, b});
    row("single byte is dropped", {bytes("0"), bytes("0\2a\0")}, {a});
    row("single byte completes a packet", {bytes("0\2a"), bytes("\0")}, {a});
    row("cut behind the tag",
        {bytes("0\2a\0"
               "0"),
            bytes("\2b\0")},
        {a, b});
    row("cut in a letter", {bytes("0\2\xc3"), bytes("\xa9\0")}, {QString(QChar(0xe9))});
    row("text begins behind an early zero byte",
        {bytes("0\0"
               "0\2a\0")},
        {QStringLiteral("0\2a"), a});
    row("early zero byte at the end", {bytes("0\0xyz"), bytes("0\2a\0")},
        {QStringLiteral("xyz"), a});
}

void tst_PacketReader::reads()
{
    QFETCH(QList<QByteArray>, reads);
    QFETCH(QStringList, texts);
    PacketReader reader;
    QStringList found;
    for (const QByteArray& read : reads) {
        reader.append(read);
        found += drained(&reader);
    }
    QCOMPARE(found, texts);
}

void tst_PacketReader::longPacketIsLostAlone_data()
{
    QTest::addColumn<int>("readSize");
    QTest::newRow("one read") << (1 << 30);
    QTest::newRow("reads of 4 KiB") << 4096;
}

// Unless its zero byte came in the very next read, the skipping was forgotten:
// the message behind it was lost, and its end was taken for a packet.
void tst_PacketReader::longPacketIsLostAlone()
{
    QFETCH(int, readSize);
    PacketReader reader;
    const QByteArray longest = "0\2" + QByteArray(PacketReader::kLongestPacket - 2, 'x');
    const QByteArray stream = longest + '\0' + longest + bytes("0\0") + bytes("0\2a\0");
    QStringList found;
    for (int at = 0; at < stream.size(); at += readSize) {
        reader.append(stream.mid(at, readSize), at + readSize >= stream.size());
        found += drained(&reader);
    }
    QCOMPARE(found.size(), 2);
    QCOMPARE(found.first().size(), PacketReader::kLongestPacket - 2);
    QCOMPARE(found.last(), QStringLiteral("a"));
}

void tst_PacketReader::burstsInReads_data()
{
    QTest::addColumn<QList<QByteArray>>("bursts");
    QTest::addColumn<QStringList>("texts");

    const auto row = [](const char* tag, const QList<QByteArray>& bursts,
                         const QStringList& texts) { QTest::newRow(tag) << bursts << texts; };
    const QString a = QStringLiteral("a");
    row("discarded to the end of the burst", {bytes("xxxx0\2b\0"), bytes("0\2a\0")}, {a});
    row("discarded behind a packet", {bytes("0\2a\0yyyyyyy0\2b\0")}, {a});
    row("too long, alone", {bytes("0\2xxxxxxxxxxx"), bytes("xxx0\2b\0"), bytes("0\2a\0")}, {a});
    row("too long, with more behind it",
        {bytes("0\2xxxxxxxxxxx"),
            bytes("0\2b\0"
                  "0\2a\0")},
        {a});
    row("early zero byte",
        {bytes("0\0"
               "0\2b\0"
               "0\2a\0")},
        {QStringLiteral("0\2b"), QStringLiteral("b"), a});
    row("early zero byte at the end",
        {bytes("0\2a\0"
               "0\0"),
            bytes("0\2a\0")},
        {a, a});
    row("early zero byte, text too long", {bytes("0\0xxxxxxxxxxxx\0"), bytes("0\2a\0")}, {a});
}

// However a burst is cut into reads, the texts are the same.
void tst_PacketReader::burstsInReads()
{
    QFETCH(QList<QByteArray>, bursts);
    QFETCH(QStringList, texts);
    for (int size = 1; size < 16; ++size) {
        PacketReader reader(10);
        QStringList found;
        for (const QByteArray& burst : bursts) {
            for (int at = 0; at < burst.size(); at += size) {
                reader.append(burst.mid(at, size), at + size >= burst.size());
                found += drained(&reader);
            }
        }
        QCOMPARE(found, texts);
    }
}

QTEST_APPLESS_MAIN(tst_PacketReader)
#include "tst_packetreader.moc"
