#include "demo/mainwindow.h"

#include "demo/artwork.h"
#include "demo/databasedialog.h"
#include "demo/windowregistry.h"

#include <QActionGroup>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>
#include <QUndoCommand>

#include <algorithm>
#include <functional>
#include <iterator>

using namespace Tutorial;

namespace {

constexpr QSize kWindowSize(1160, 716);
constexpr int kPanelWidth = 236;
constexpr int kTreeHeight = 132;
constexpr int kNoticeMs = 15000;
constexpr int kZooms[] = {50, 75, 100, 150, 200};

class DrawCommand : public QUndoCommand {
public:
    using Put = std::function<void(const QVector<Tile>&)>;

    DrawCommand(Put put, const QVector<Tile>& before, const QVector<Tile>& after)
        : mPut(std::move(put)), mBefore(before), mAfter(after)
    {
    }

    void undo() override { mPut(mBefore); }
    void redo() override { mPut(mAfter); }

private:
    const Put mPut;
    const QVector<Tile> mBefore;
    const QVector<Tile> mAfter;
};

QLabel* newHeading(const QString& text)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

MainWindow::MainWindow(WindowRegistry& registry)
    : mRegistry(registry), mMapView(new MapView), mCellLabel(new QLabel)
{
    setWindowIcon(Artwork::applicationIcon());
    setContextMenuPolicy(Qt::NoContextMenu);
    resize(kWindowSize);
    makeActions();
    makeMenus();
    makeToolBar();
    makeCentre();
    statusBar()->addPermanentWidget(mCellLabel);
    mRegistry.add(Window_MainWindow, this);

    setOptions(mOptions);
    loadPreset(QStringLiteral("meadow"));
    mTileList->setCurrentRow(0);
}

bool MainWindow::loadPreset(const QString& name)
{
    const std::optional<Project> project = Project::preset(name);
    if (project)
        setProject(*project);
    return project.has_value();
}

void MainWindow::showNotice(const QString& text)
{
    statusBar()->showMessage(text, kNoticeMs);
}

template <typename Slot>
QAction* MainWindow::newAction(const char* name, const QString& text, Slot slot)
{
    const QString objectName = QLatin1String(name);
    auto* newOne = new QAction(Artwork::actionIcon(objectName), text, this);
    newOne->setObjectName(objectName);
    connect(newOne, &QAction::triggered, this, slot);
    return newOne;
}

QAction* MainWindow::action(const char* name) const
{
    return findChild<QAction*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
}

void MainWindow::makeActions()
{
    newAction("New Project", tr("&New Project…"), &MainWindow::openNewProject)
        ->setShortcut(QKeySequence::New);
    newAction("Exit", tr("E&xit"), &QWidget::close)->setShortcut(QKeySequence::Quit);
    newAction("Undo", tr("&Undo"), [this] { mUndoStack.undo(); })->setShortcut(QKeySequence::Undo);
    newAction("Redo", tr("&Redo"), [this] { mUndoStack.redo(); })->setShortcut(QKeySequence::Redo);
    newAction("New Map", tr("&New Map…"), &MainWindow::openNewMap);
    newAction("Edit Map", tr("&Edit Map…"), &MainWindow::openEditMap);
    newAction("Delete", tr("&Delete Map…"), &MainWindow::openDeleteMap);
    newAction("Edit Event", tr("Edit &Event…"), [this] { openEvent(mMapView->cell()); });
    newAction("Clear", tr("Delete E&vent"), &MainWindow::deleteEvent);
    newAction("Set Starting Position Player", tr("Player &Starts Here"), [this] {
        mProject.start = mMapView->cell();
        mMapView->setStart(mProject.start);
    });
    newAction("Zoom In", tr("Zoom &In"), [this] {
        zoomTo(*std::upper_bound(std::begin(kZooms), std::end(kZooms) - 1, mZoom));
    })->setShortcut(QKeySequence::ZoomIn);
    newAction("Zoom Out", tr("Zoom &Out"), [this] {
        const auto* zoom = std::lower_bound(std::begin(kZooms), std::end(kZooms), mZoom);
        zoomTo(zoom == std::begin(kZooms) ? *zoom : *(zoom - 1));
    })->setShortcut(QKeySequence::ZoomOut);
    newAction("Actual Size", tr("&Actual Size"), [this] { zoomTo(100); });
    newAction("Database", tr("&Database…"), &MainWindow::openDatabase)->setShortcut(Qt::Key_F9);
    newAction("Options", tr("&Options…"), &MainWindow::openOptions);
    newAction("About", tr("&About…"), &MainWindow::openAbout);
    newAction("Tutorial", tr("&First Steps"), [this] {
        emit tutorialRequested(QStringLiteral("first-steps"));
    })->setShortcut(QKeySequence::HelpContents);
    // Not in any menu: it is triggered when a project is there.
    newAction("Project Loaded", {}, [] {});

    const auto exclusive = [this](const QList<QAction*>& actions) {
        auto* group = new QActionGroup(this);
        for (QAction* one : actions) {
            one->setCheckable(true);
            group->addAction(one);
        }
        actions.first()->setChecked(true);
    };
    exclusive({newAction("Map", tr("Draw the &Map"), [this] { mMapView->setEventMode(false); }),
        newAction("Event", tr("Place &Events"), [this] { mMapView->setEventMode(true); })});
    exclusive(
        {newAction("Pencil", tr("&Pencil"), [this] { mMapView->setTool(MapView::Tool::Pencil); }),
            newAction("Rectangle", tr("&Rectangle"),
                [this] { mMapView->setTool(MapView::Tool::Rectangle); }),
            newAction("Flood Fill", tr("&Flood Fill"),
                [this] { mMapView->setTool(MapView::Tool::FloodFill); })});

    for (const char* name : {"Undo", "Redo"})
        action(name)->setEnabled(false);
    connect(&mUndoStack, &QUndoStack::canUndoChanged, action("Undo"), &QAction::setEnabled);
    connect(&mUndoStack, &QUndoStack::canRedoChanged, action("Redo"), &QAction::setEnabled);
}

void MainWindow::makeMenus()
{
    const struct {
        QString title;
        QList<const char*> actionNames; // an empty name is a separator
    } menus[] = {
        {tr("&File"), {"New Project", "", "Exit"}},
        {tr("&Edit"), {"Undo", "Redo"}},
        {tr("&Map"), {"New Map", "Edit Map", "Delete"}},
        {tr("&Draw"), {"Map", "Event", "", "Pencil", "Rectangle", "Flood Fill"}},
        {tr("&View"), {"Zoom In", "Zoom Out", "Actual Size"}},
        {tr("&Tools"), {"Database", "Options"}},
        {tr("T&utorial"), {"Tutorial"}},
        {tr("&Help"), {"About"}},
    };
    for (const auto& entry : menus) {
        QMenu* menu = newMenu(entry.actionNames);
        menu->setTitle(entry.title);
        menuBar()->addMenu(menu);
        if (!entry.actionNames.contains("Tutorial"))
            continue;
        menu->addAction(tr("&All Conditions"), this,
            [this] { emit tutorialRequested(QStringLiteral("all-conditions")); });
        menu->addAction(tr("&Open a Scenario…"), this, [this] {
            const QString path = QFileDialog::getOpenFileName(
                this, tr("Open a Scenario"), {}, tr("Scenarios (*.js)"));
            if (!path.isEmpty())
                emit tutorialRequested(path);
        });
        menu->addSeparator();
        menu->addAction(tr("&Stop"), this, &MainWindow::tutorialStopRequested);
    }
}

QMenu* MainWindow::newMenu(const QList<const char*>& actionNames)
{
    auto* menu = new QMenu(this);
    for (const char* name : actionNames) {
        if (qstrlen(name) == 0)
            menu->addSeparator();
        else
            menu->addAction(action(name));
    }
    mRegistry.add(Window_Popup, menu);
    return menu;
}

void MainWindow::makeToolBar()
{
    mToolBar = addToolBar(tr("Tools"));
    mToolBar->setMovable(false);
    mToolBar->setIconSize({24, 24});
    for (const char* name : {"New Project", "", "Undo", "Redo", "", "Map", "Event", "", "Pencil",
             "Rectangle", "Flood Fill", "", "Zoom In", "Zoom Out", "Actual Size", "", "Database",
             "Options", "", "Tutorial"}) {
        if (qstrlen(name) == 0)
            mToolBar->addSeparator();
        else
            mToolBar->addAction(action(name));
    }
}

void MainWindow::makeCentre()
{
    auto* centre = new QWidget;
    auto* row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 8, 0);
    row->setSpacing(4);
    row->addWidget(newLeftPanel());
    row->addWidget(newMapArea());
    setCentralWidget(centre);
}

QWidget* MainWindow::newLeftPanel()
{
    auto* panel = new QWidget;
    panel->setObjectName(QStringLiteral("leftPanel"));
    panel->setFixedWidth(kPanelWidth);

    mTileList = new QListWidget;
    mTileList->setObjectName(QStringLiteral("listBox1"));
    mTileList->setIconSize({24, 24});
    for (int i = 0; i < kTileCount; ++i)
        mTileList->addItem(new QListWidgetItem(Artwork::tileIcon(Tile(i)), tileName(Tile(i))));
    connect(mTileList, &QListWidget::currentRowChanged, this,
        [this](int row) { mMapView->setTile(Tile(qMax(row, 0))); });

    mMapTree = new QTreeWidget;
    mMapTree->setObjectName(QStringLiteral("mapTree"));
    mMapTree->setHeaderHidden(true);
    mMapTree->setIconSize({20, 20});
    mMapTree->setFixedHeight(kTreeHeight);
    mMapTree->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mMapTree, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        if (item && item->parent())
            showMap(item->parent()->indexOfChild(item));
    });
    QMenu* mapMenu = newMenu({"New Map", "Edit Map", "Delete"});
    connect(
        mMapTree, &QWidget::customContextMenuRequested, this, [this, mapMenu](const QPoint& at) {
            mapMenu->popup(mMapTree->viewport()->mapToGlobal(at));
        });

    mEventList = new QListWidget;
    mEventList->setObjectName(QStringLiteral("listBox2"));
    mEventList->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(mEventList, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            mMapView->setCell(map().events.at(row).cell);
    });
    connect(
        mEventList, &QListWidget::itemDoubleClicked, this, [this] { openEvent(mMapView->cell()); });
    QMenu* eventMenu = newMenu({"Edit Event", "Clear"});
    connect(mEventList, &QWidget::customContextMenuRequested, this,
        [this, eventMenu](
            const QPoint& at) { eventMenu->popup(mEventList->viewport()->mapToGlobal(at)); });

    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(10, 10, 6, 8);
    layout->addWidget(newHeading(tr("Tiles")));
    layout->addWidget(mTileList, 3);
    layout->addWidget(newHeading(tr("Maps")));
    layout->addWidget(mMapTree);
    layout->addWidget(newHeading(tr("Events on this map")));
    layout->addWidget(mEventList, 1);

    mRegistry.add(Window_MapEditLeftPanelItem, panel);
    mRegistry.add(Window_MapEditTreeBox, mMapTree);
    return panel;
}

QWidget* MainWindow::newMapArea()
{
    connect(mMapView, &MapView::hovered, this, &MainWindow::tellCell);
    connect(mMapView, &MapView::drawn, this, &MainWindow::onDrawn);
    connect(mMapView, &MapView::eventActivated, this, &MainWindow::openEvent);
    QMenu* menu = newMenu({"Edit Event", "Clear", "", "Set Starting Position Player"});
    connect(mMapView, &MapView::menuRequested, this,
        [menu](const QPoint&, const QPoint& at) { menu->popup(at); });

    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("mapArea"));
    area->setWidget(mMapView);
    return area;
}

void MainWindow::setProject(const Project& project)
{
    mProject = project;
    mUndoStack.clear();
    setWindowTitle(tr("%1 – Map Workshop").arg(project.title));
    updateTree(0);
    action("Project Loaded")->trigger();
}

void MainWindow::updateTree(int current)
{
    // The undo stack knows maps by their index.
    mUndoStack.clear();
    {
        const QSignalBlocker blocker(mMapTree);
        mMapTree->clear();
        auto* root = new QTreeWidgetItem(mMapTree, {mProject.title});
        for (const GameMap& map : qAsConst(mProject.maps))
            (new QTreeWidgetItem(root, {map.name}))
                ->setIcon(0, Artwork::actionIcon(QStringLiteral("Map")));
        mMapTree->expandAll();
        mMapTree->setCurrentItem(root->child(current));
    }
    showMap(current);
}

void MainWindow::showMap(int index)
{
    mMapIndex = index;
    mMapView->setMap(&map());
    mMapView->setStart(index == 0 ? std::make_optional(mProject.start) : std::nullopt);
    mEventList->clear();
    for (const MapEvent& event : qAsConst(map().events))
        mEventList->addItem(event.name);
    action("Delete")->setEnabled(mProject.maps.size() > 1);
    action("Set Starting Position Player")->setEnabled(index == 0);
}

void MainWindow::setOptions(const OptionsDialog::Options& options)
{
    mOptions = options;
    mMapView->setGrid(options.grid ? options.gridStrength : 0);
    mToolBar->setToolButtonStyle(
        options.toolNames ? Qt::ToolButtonTextUnderIcon : Qt::ToolButtonIconOnly);
}

void MainWindow::zoomTo(int percent)
{
    mZoom = percent;
    mMapView->setZoom(percent);
}

void MainWindow::tellCell(const QPoint& cell)
{
    mCellLabel->setText(
        QStringLiteral("%1, %2   %3").arg(cell.x()).arg(cell.y()).arg(tileName(map().at(cell))));
}

void MainWindow::onDrawn(const QVector<Tile>& before)
{
    const auto put = [this, index = mMapIndex](const QVector<Tile>& tiles) {
        mProject.maps[index].tiles = tiles;
        mMapView->update();
    };
    mUndoStack.push(new DrawCommand(put, before, map().tiles));
}

template <typename Dialog, typename Accepted>
void MainWindow::open(EnumWindowKind kind, Dialog* dialog, Accepted accepted)
{
    mRegistry.add(kind, dialog);
    connect(dialog, &QDialog::accepted, this, [dialog, accepted] { accepted(*dialog); });
    dialog->open();
}

void MainWindow::openNewProject()
{
    open(Window_NewProject, new NewProjectDialog(this),
        [this](const NewProjectDialog& dialog) { setProject(dialog.project()); });
}

void MainWindow::openNewMap()
{
    const GameMap blank = GameMap::blank(tr("New map"), {28, 19}, Tile::Grass);
    open(Window_MapProperties, new MapDialog(tr("New Map"), blank, this),
        [this](const MapDialog& dialog) {
            mProject.maps << dialog.map();
            updateTree(mProject.maps.size() - 1);
        });
}

void MainWindow::openEditMap()
{
    open(Window_MapProperties, new MapDialog(tr("Edit Map"), map(), this),
        [this](const MapDialog& dialog) {
            map() = dialog.map();
            if (!map().contains(mProject.start))
                mProject.start = {};
            updateTree(mMapIndex);
        });
}

void MainWindow::openDeleteMap()
{
    auto* question = new QMessageBox(QMessageBox::NoIcon, tr("Delete Map"),
        tr("Shall the map “%1” be deleted?").arg(map().name), QMessageBox::NoButton, this);
    question->setIconPixmap(Artwork::actionIcon(QStringLiteral("Tutorial")).pixmap(32));
    question->addButton(tr("Delete"), QMessageBox::AcceptRole);
    question->addButton(tr("Keep"), QMessageBox::RejectRole);
    question->setAttribute(Qt::WA_DeleteOnClose);
    open(Window_MessageBox, question, [this](const QMessageBox&) {
        mProject.maps.remove(mMapIndex);
        updateTree(qMin(mMapIndex, mProject.maps.size() - 1));
    });
}

void MainWindow::openEvent(const QPoint& cell)
{
    const int index = map().eventAt(cell);
    MapEvent event;
    event.cell = cell;
    if (index >= 0)
        event = map().events.at(index);
    open(Window_EventEditorMain, new EventDialog(event, this),
        [this, index](const EventDialog& dialog) {
            if (index >= 0)
                map().events[index] = dialog.event();
            else
                map().events << dialog.event();
            showMap(mMapIndex);
        });
}

void MainWindow::deleteEvent()
{
    const int index = map().eventAt(mMapView->cell());
    if (index < 0)
        return;
    map().events.remove(index);
    showMap(mMapIndex);
}

void MainWindow::openDatabase()
{
    open(Window_DatabaseMain, new DatabaseDialog(mProject, this),
        [this](const DatabaseDialog& dialog) {
            mProject.heroes = dialog.heroes();
            mProject.items = dialog.items();
        });
}

void MainWindow::openOptions()
{
    open(Window_Options, new OptionsDialog(mOptions, this),
        [this](const OptionsDialog& dialog) { setOptions(dialog.options()); });
}

void MainWindow::openAbout()
{
    auto* about = new QMessageBox(QMessageBox::NoIcon, tr("About"),
        tr("A small map editor that shows how a host drives the tutorial."), QMessageBox::Ok, this);
    about->setIconPixmap(Artwork::applicationIcon().pixmap(48));
    about->setAttribute(Qt::WA_DeleteOnClose);
    open(Window_About, about, [](const QMessageBox&) {});
}
