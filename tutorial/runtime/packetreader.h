// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// Joins the bytes that arrive from the host into the texts of its packets.
//
// A packet is the tag "0", one byte that is not looked at, the text in UTF-8
// and a zero byte. What arrives at once, a burst, may hold several packets and
// may end inside of one: that tail waits for the next burst. A burst may be
// taken in any number of reads; the texts are the same.
class PacketReader {
public:
    // Longest packet, in bytes before its zero byte. A longer one is lost, and
    // nothing but that one.
    static constexpr int kLongestPacket = 16 * 1024 * 1024;

    explicit PacketReader(int longestPacket = kLongestPacket) : mLongestPacket(longestPacket) { }

    // Takes the bytes of one read. endsBurst: nothing more has arrived with them.
    // A burst of a single byte is dropped when no tail waits for it.
    void append(const QByteArray& data, bool endsBurst = true);

    // Moves on to the next complete packet that has a text, and stores the text
    // in *text. Returns false when the bytes are used up: what does not begin
    // with the tag is then discarded to the end of the burst, an unfinished
    // packet kept.
    bool next(QString* text);

private:
    // What became of a packet.
    enum class Packet { Complete, Lost, Unfinished };

    // Moves past the packet that begins at mPosition, unless it is unfinished.
    Packet takePacket(QString* text);
    void keepTail();

    int mLongestPacket;
    QByteArray mBuffer;
    int mPosition = 0; // first byte that was not used yet
    int mScanned = 0; // no packet ends between mPosition and here
    bool mSkipping = false; // inside a packet that grew too long
    bool mDiscarding = false; // to the end of the burst
    bool mBurstGoesOn = false;
};
