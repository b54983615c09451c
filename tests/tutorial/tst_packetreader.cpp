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
    void tailIsBounded();
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

void tst_PacketReader::tailIsBounded()
{
    PacketReader reader;
    reader.append("0\2" + QByteArray(PacketReader::kLongestTail - 2, 'x'));
    QCOMPARE(drained(&reader).size(), 0);
    reader.append(bytes("\0"
                        "0\2a\0"));
    const QStringList kept = drained(&reader);
    QCOMPARE(kept.size(), 2);
    QCOMPARE(kept.first().size(), PacketReader::kLongestTail - 2);

    // One byte more and the packet is lost, with the rest that still comes.
    reader.append("0\2" + QByteArray(PacketReader::kLongestTail - 1, 'x'));
    QCOMPARE(drained(&reader).size(), 0);
    reader.append(bytes("0\2lost"));
    reader.append(bytes("lost\0"
                        "0\2b\0"));
    QCOMPARE(drained(&reader), QStringList{QStringLiteral("b")});
}

QTEST_APPLESS_MAIN(tst_PacketReader)
#include "tst_packetreader.moc"
