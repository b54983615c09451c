// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <sanitizer/lsan_interface.h>

#include <cstddef>
#include <cstdint>

// Called by the fuzzing engine with each input.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

// Ends the process with a message unless the property holds, so that the input
// is kept as a finding.
inline void expect(bool holds, const char* property)
{
    if (!holds)
        qFatal("broken: %s", property);
}

// Bytes as text, to their end, not to the first zero byte; what is not UTF-8
// becomes replacement characters.
inline QString textOf(const QByteArray& bytes)
{
    return QString::fromUtf8(bytes.constData(), bytes.size());
}
inline QString textOf(const std::uint8_t* data, std::size_t size)
{
    return textOf(QByteArray::fromRawData(reinterpret_cast<const char*>(data), int(size)));
}

// Of two values of a key that stands twice in a JSON text, Qt's parser loses the
// first one's memory.
using QtParsesJson = __lsan::ScopedDisabler;
