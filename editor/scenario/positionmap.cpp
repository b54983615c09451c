// SPDX-License-Identifier: MIT
#include "editor/scenario/positionmap.h"

#include "editor/scenario/textwalker.h"

#include <algorithm>

using namespace TutorialEditor;

int PositionMap::former(int position) const
{
    const auto next = std::upper_bound(mParts.begin(), mParts.end(), position,
        [](int wanted, const Part& part) { return wanted < part.position; });
    if (next == mParts.begin())
        return position;
    const Part& part = *(next - 1);
    return part.former + position - part.position;
}

int TutorialEditor::originalPosition(const PositionMaps& maps, int position)
{
    for (auto map = maps.crbegin(); map != maps.crend(); ++map)
        position = map->former(position);
    return position;
}

void TutorialEditor::copyPart(
    QString* out, const QString& text, int begin, int end, PositionMap* map)
{
    if (map)
        map->add(out->size(), begin);
    appendTo(out, QStringView(text).mid(begin, end - begin));
}
