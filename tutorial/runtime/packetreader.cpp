// SPDX-License-Identifier: MIT
#include "tutorial/runtime/packetreader.h"

#include <algorithm>

namespace {

constexpr char kHostTag = '0';
constexpr int kShortestPacket = 3; // tag, any byte, zero byte
constexpr int kShortestRead = 2;

} // namespace

void PacketReader::append(const QByteArray& data, bool continues)
{
    if (mSkipping) {
        const int end = data.indexOf('\0');
        if (end < 0)
            return;
        mSkipping = false;
        append(data.mid(end + 1), continues);
        return;
    }
    if (!mBuffer.isEmpty()) {
        mBuffer.append(data);
        return;
    }
    if (data.size() < kShortestRead && !continues)
        return;
    mBuffer = data;
}

bool PacketReader::next(QString* text)
{
    while (mBuffer.size() - mPosition >= kShortestPacket && mBuffer.at(mPosition) == kHostTag) {
        const int end = mBuffer.indexOf('\0', std::max(mPosition, mScanned));
        if (end < 0)
            break;
        const int begin = mPosition + 2;
        int textEnd = end;
        if (end < begin) {
            // The zero byte stands where the second byte is skipped unseen: the
            // text is then what follows, and that is read once more as packets.
            textEnd = mBuffer.indexOf('\0', begin);
            if (textEnd < 0)
                textEnd = mBuffer.size();
        }
        mPosition = end + 1;
        if (textEnd > begin) {
            *text = QString::fromUtf8(mBuffer.constData() + begin, textEnd - begin);
            if (!text->isEmpty())
                return true;
        }
    }
    keepTail();
    return false;
}

void PacketReader::keepTail()
{
    mBuffer.remove(0, mPosition);
    mScanned = std::max(0, mScanned - mPosition);
    mPosition = 0;
    const bool unfinished = mBuffer.startsWith(kHostTag) && mBuffer.indexOf('\0', mScanned) < 0;
    if (unfinished && mBuffer.size() <= kLongestTail) {
        mScanned = mBuffer.size();
        return;
    }
    mSkipping = unfinished;
    mBuffer.clear();
    mScanned = 0;
}
