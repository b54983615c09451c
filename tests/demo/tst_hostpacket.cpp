#include "demo/hostpacket.h"

#include <QtTest>

using namespace HostPacket;

class tst_HostPacket : public QObject {
    Q_OBJECT

private slots:
    void encode();
    void separatorsLeaveTheFields();
    void decode_data();
    void decode();
    void anEndlessPacketIsForgotten();
};

void tst_HostPacket::encode()
{
    QCOMPARE(HostPacket::encode({{QStringLiteral("start"), QStringLiteral("0"), QString()},
                 {QStringLiteral("log"), QStringLiteral("ä")}}),
        QByteArray("0\2start\1"
                   "0\1\2log\1\xc3\xa4\0",
            18));
}

void tst_HostPacket::separatorsLeaveTheFields()
{
    const QString hint = QStringLiteral("a") + QChar(0) + QStringLiteral("b") + QChar(1)
        + QStringLiteral("c") + QChar(2) + QStringLiteral("d");
    QCOMPARE(HostPacket::encode({{hint}}), QByteArray("0\2abcd\0", 7));
}

void tst_HostPacket::decode_data()
{
    QTest::addColumn<QVector<QByteArray>>("reads");
    QTest::addColumn<QVector<QStringList>>("messages");

    const QByteArray next("1\2next\0", 7);
    const QByteArray untr("1\2untr\1hint\1\xc3\xa4\0", 15);
    const QStringList nextFields{QStringLiteral("next")};
    const QStringList untrFields{
        QStringLiteral("untr"), QStringLiteral("hint"), QStringLiteral("ä")};

    QTest::newRow("one") << QVector<QByteArray>{next} << QVector<QStringList>{nextFields};
    QTest::newRow("two in one read")
        << QVector<QByteArray>{next + untr} << QVector<QStringList>{nextFields, untrFields};
    QVector<QByteArray> bytes;
    for (const char byte : untr + next)
        bytes << QByteArray(1, byte);
    QTest::newRow("byte by byte") << bytes << QVector<QStringList>{untrFields, nextFields};
    QTest::newRow("foreign tag") << QVector<QByteArray>{QByteArray("0\2stop\0", 7) + next}
                                 << QVector<QStringList>{nextFields};
    QTest::newRow("empty packets")
        << QVector<QByteArray>{QByteArray(3, '\0') + next} << QVector<QStringList>{nextFields};
}

void tst_HostPacket::decode()
{
    QFETCH(QVector<QByteArray>, reads);
    Decoder decoder;
    QVector<QStringList> messages;
    for (const QByteArray& read : reads)
        messages << decoder.feed(read);
    QTEST(messages, "messages");
}

void tst_HostPacket::anEndlessPacketIsForgotten()
{
    Decoder decoder;
    for (int i = 0; i < 3; ++i)
        QVERIFY(decoder.feed(QByteArray(1 << 20, 'x')).isEmpty());
    decoder.feed(QByteArray(1, '\0'));
    QCOMPARE(decoder.feed(QByteArray("1\2no\0", 5)).size(), 1);
}

QTEST_APPLESS_MAIN(tst_HostPacket)
#include "tst_hostpacket.moc"
