// SPDX-License-Identifier: MIT
#include "hostkit/core/packet.h"

using namespace TutorialHost;
namespace {

constexpr QChar kFieldEnd = QLatin1Char(1);
constexpr QChar kMessageStart = QLatin1Char(2);
constexpr char kPacketEnd = 0;
// A tutorial that never ends its packet must not fill the memory.
constexpr int kLongestTail = 1 << 20;

QString cleaned(QString field)
{
    for (const QChar separator : {QChar(), kFieldEnd, kMessageStart})
        field.remove(separator);
    return field;
}

} // namespace

QByteArray TutorialHost::encodePacket(const QVector<QStringList>& messages)
{
    QString text = QStringLiteral("0");
    for (const QStringList& fields : messages) {
        QStringList cleanedFields;
        for (const QString& field : fields)
            cleanedFields << cleaned(field);
        text += kMessageStart + cleanedFields.join(kFieldEnd);
    }
    return text.toUtf8() + kPacketEnd;
}

QVector<QStringList> PacketDecoder::feed(const QByteArray& bytes)
{
    mTail += bytes;
    QVector<QStringList> messages;
    int begin = 0;
    for (int end = mTail.indexOf(kPacketEnd); end >= 0; end = mTail.indexOf(kPacketEnd, begin)) {
        const QByteArray packet = mTail.mid(begin, end - begin);
        begin = end + 1;
        if (!packet.startsWith("1\x02"))
            continue;
        const QString text = QString::fromUtf8(packet.mid(2));
        for (const QString& message : text.split(kMessageStart))
            messages << message.split(kFieldEnd);
    }
    mTail.remove(0, begin);
    if (mTail.size() > kLongestTail)
        mTail.clear();
    return messages;
}
