// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

// Joins the bytes that arrive from the host into the texts of its packets.
//
// A packet is the tag "0", one byte that is not looked at, the text in UTF-8
// and a zero byte. A read may hold several packets and may end inside of one:
// that tail waits for the next read.
class PacketReader {
public:
    // Longest tail that is kept, in bytes. The packet of a longer one is lost.
    static constexpr int kLongestTail = 16 * 1024 * 1024;

    // Takes the bytes of one read. A single byte is dropped when no tail waits
    // for it, unless it `continues` the bytes that were taken before.
    void append(const QByteArray& data, bool continues = false);

    // Moves on to the next complete packet that has a text, and stores the text
    // in *text. Returns false when the bytes are used up: what does not begin
    // with the tag is then discarded, an unfinished packet kept.
    bool next(QString* text);

private:
    void keepTail();

    QByteArray mBuffer;
    int mPosition = 0; // first byte that was not used yet
    int mScanned = 0; // no zero byte between mPosition and here
    bool mSkipping = false; // inside a packet that grew too long
};
