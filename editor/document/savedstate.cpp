// SPDX-License-Identifier: MIT
#include "editor/document/savedstate.h"

#include "editor/scenario/scenariowriter.h"

#include <QCryptographicHash>

using namespace TutorialEditor;

namespace {

QByteArray digest(const QString& text)
{
    const auto bytes = QByteArray::fromRawData(
        reinterpret_cast<const char*>(text.constData()), text.size() * int(sizeof(QChar)));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

SavedState::SavedState(const QString& json) : mDigest(digest(json)) { }

bool SavedState::is(const QString& json) const
{
    return mDigest.isEmpty() ? json == scenarioJson(mSteps) : digest(json) == mDigest;
}
