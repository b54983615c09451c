// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

namespace TutorialHost {

// The bytes of the link, seen from the host. A packet is a sender's tag ("0"
// for the host, "1" for the tutorial), the byte 0x02, the messages in UTF-8
// separated by the byte 0x02, and a byte 0x00. A message is its fields joined
// by the byte 0x01.

// One packet of the host that carries the messages in this order, each given
// as its fields. The link has no escapes: the three bytes that separate are
// left out of the fields.
QByteArray encodePacket(const QVector<QStringList>& messages);

// Takes the tutorial's packets out of the bytes as they arrive, however the
// reads cut them.
class PacketDecoder {
public:
    // The messages, as their fields, that these bytes complete. A packet with
    // another tag than the tutorial's is passed over.
    QVector<QStringList> feed(const QByteArray& bytes);

private:
    QByteArray mTail;
};

} // namespace TutorialHost
