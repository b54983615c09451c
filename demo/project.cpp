// SPDX-License-Identifier: MIT
#include "demo/project.h"

#include <QCoreApplication>
#include <QRect>

#include <algorithm>
#include <iterator>

namespace {

struct Text {
    Q_DECLARE_TR_FUNCTIONS(Project)
};

// One letter a cell, in the order of the tiles.
const QLatin1String kLetters(".,T^~:-=#x");

const char* const kMeadow[] = {
    "~~~~~~~~~~~~~~~~~~~~~~~~~~~~",
    "~~~~~~:::::~~~~~~~~::::~~~~~",
    "~~~:::.TTT.:::~~~::.TT.::~~~",
    "~~::.TTTTTT..::::..TTTT..:~~",
    "~:..TTTT........,.TTTTTT..:~",
    "~:.TTT...,.........TTTT...:~",
    "~:..T......,....,....T...::~",
    "~~:....#.-----#......T..::~~",
    "~~:.,.-----..--.....TT..:~~~",
    "~::...-.#..xxx-..,......:~~~",
    "~:..,.-....x.x-------===~~~~",
    "~:.,..-..,.xxx....:::~~~:::~",
    "~~:...-------..,..:~~~::..:~",
    "~~:.......,.-...::~~~:..T.:~",
    "~~~:..^^....-..,:~~~~:.,..:~",
    "~~~::^^^^...-..::~~~~::..::~",
    "~~~~::^^..:::::~~~~~~~::::~~",
    "~~~~~:::::~~~~~~~~~~~~~~~~~~",
    "~~~~~~~~~~~~~~~~~~~~~~~~~~~~",
};

GameMap drawn(const QString& name)
{
    GameMap map =
        GameMap::blank(name, QSize(int(qstrlen(kMeadow[0])), int(std::size(kMeadow))), Tile::Grass);
    for (int y = 0; y < map.size.height(); ++y) {
        for (int x = 0; x < map.size.width(); ++x) {
            const char* letter = std::find(kLetters.begin(), kLetters.end(), kMeadow[y][x]);
            map.at({x, y}) = Tile(letter - kLetters.begin());
        }
    }
    return map;
}

Project meadow()
{
    Project project;
    project.title = Text::tr("Meadow Tale");
    GameMap island = drawn(Text::tr("Meadow Island"));
    MapEvent guide;
    guide.name = Text::tr("Guide");
    guide.cell = {9, 8};
    guide.commands = QStringList{Text::tr("Show text: Welcome to the island!"),
        Text::tr("Show text: The bridge leads east."), Text::tr("Give item: Old Map")};
    MapEvent chest;
    chest.name = Text::tr("Treasure");
    chest.cell = {23, 14};
    chest.trigger = 0;
    chest.commands = QStringList{Text::tr("Give item: Silver Key")};
    island.events = {guide, chest};
    project.maps << island << GameMap::blank(Text::tr("Guide's House"), {10, 8}, Tile::Path)
                 << GameMap::blank(Text::tr("Sandbank"), {16, 10}, Tile::Sand);
    project.start = {12, 13};
    project.heroes = {{Text::tr("Alma"), 0, 3, false}, {Text::tr("Bruno"), 1, 2, false},
        {Text::tr("Cleo"), 2, 4, true}};
    project.items = {{Text::tr("Apple"), 0, 1, true}, {Text::tr("Old Map"), 1, 1, false},
        {Text::tr("Silver Key"), 1, 1, false}};
    return project;
}

Project empty()
{
    Project project;
    project.title = Text::tr("Untitled");
    project.maps << GameMap::blank(Text::tr("First Map"), {28, 19}, Tile::Grass);
    project.heroes = {{Text::tr("Hero"), 0, 1, false}};
    project.items = {{Text::tr("Apple"), 0, 1, true}};
    return project;
}

} // namespace

QString tileName(Tile tile)
{
    static const char* const kNames[kTileCount] = {
        QT_TRANSLATE_NOOP("Project", "Grass"),
        QT_TRANSLATE_NOOP("Project", "Flowers"),
        QT_TRANSLATE_NOOP("Project", "Forest"),
        QT_TRANSLATE_NOOP("Project", "Hills"),
        QT_TRANSLATE_NOOP("Project", "Water"),
        QT_TRANSLATE_NOOP("Project", "Sand"),
        QT_TRANSLATE_NOOP("Project", "Path"),
        QT_TRANSLATE_NOOP("Project", "Bridge"),
        QT_TRANSLATE_NOOP("Project", "House"),
        QT_TRANSLATE_NOOP("Project", "Fence"),
    };
    return Text::tr(kNames[int(tile)]);
}

GameMap GameMap::blank(const QString& name, const QSize& size, Tile ground)
{
    GameMap map;
    map.name = name;
    map.size = size;
    map.tiles.fill(ground, size.width() * size.height());
    return map;
}

bool GameMap::contains(const QPoint& cell) const
{
    return QRect(QPoint(), size).contains(cell);
}

int GameMap::eventAt(const QPoint& cell) const
{
    const auto found = std::find_if(events.begin(), events.end(),
        [&cell](const MapEvent& event) { return event.cell == cell; });
    return found == events.end() ? -1 : int(found - events.begin());
}

std::optional<Project> Project::preset(const QString& name)
{
    if (name == QLatin1String("meadow"))
        return meadow();
    if (name == QLatin1String("empty"))
        return empty();
    return {};
}
