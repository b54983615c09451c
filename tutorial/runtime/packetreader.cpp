// SPDX-License-Identifier: MIT
#include "tutorial/runtime/packetreader.h"

#include <algorithm>

namespace {

constexpr char kHostTag = '0';
constexpr int kTextOffset = 2; // behind the tag and a byte
constexpr int kShortestPacket = 3; // tag, any byte, zero byte
constexpr int kShortestBurst = 2;

} // namespace

void PacketReader::append(const QByteArray& data, bool endsBurst)
{
    const bool isWholeBurst = endsBurst && !mBurstGoesOn;
    if (!mBurstGoesOn)
        mDiscarding = false;
    mBurstGoesOn = !endsBurst;
    if (mDiscarding)
        return;
    if (mSkipping) {
        const int end = int(data.indexOf('\0'));
        if (end < 0)
            return;
        mSkipping = false;
        mBuffer = data.mid(end + 1);
    } else if (!mBuffer.isEmpty()) {
        mBuffer.append(data);
    } else if (data.size() >= kShortestBurst || !isWholeBurst) {
        mBuffer = data;
    }
}

bool PacketReader::next(QString* text)
{
    while (mBuffer.size() - mPosition >= kShortestPacket && mBuffer.at(mPosition) == kHostTag) {
        const Packet packet = takePacket(text);
        if (packet == Packet::Unfinished)
            break;
        if (packet == Packet::Complete && !text->isEmpty())
            return true;
    }
    if (!mBuffer.isEmpty())
        keepTail();
    return false;
}

PacketReader::Packet PacketReader::takePacket(QString* text)
{
    const int size = int(mBuffer.size());
    const int begin = mPosition + kTextOffset;
    int textEnd = int(mBuffer.indexOf('\0', std::max(begin, mScanned)));
    int packetEnd = textEnd;
    if (mBuffer.at(begin - 1) == '\0') {
        // The zero byte stands where the second byte is skipped unseen: the text
        // is then what follows, to the end of the burst if need be, and that is
        // read once more as packets.
        packetEnd = begin - 1;
        if (textEnd < 0 && (!mBurstGoesOn || size - mPosition > mLongestPacket))
            textEnd = size;
    }
    if (textEnd < 0)
        return Packet::Unfinished;
    const bool isLost = textEnd - mPosition > mLongestPacket;
    if (!isLost)
        *text = QString::fromUtf8(mBuffer.constData() + begin, textEnd - begin);
    mPosition = packetEnd + 1;
    return isLost ? Packet::Lost : Packet::Complete;
}

void PacketReader::keepTail()
{
    mBuffer.remove(0, mPosition);
    mPosition = 0;
    const bool isPacket = mBuffer.startsWith(kHostTag);
    mDiscarding = !mBuffer.isEmpty() && !isPacket;
    // Two bytes that end a burst begin no packet when the second is the zero byte.
    const bool isKept =
        isPacket && (mBurstGoesOn || mBuffer.size() != kTextOffset || mBuffer.at(1) != '\0');
    mSkipping = isKept && mBuffer.size() > mLongestPacket;
    if (!isKept || mSkipping)
        mBuffer.clear();
    mScanned = int(mBuffer.size());
}
