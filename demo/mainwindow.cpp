// SPDX-License-Identifier: MIT
#include "demo/mainwindow.h"

#include "demo/artwork.h"

#include <QActionGroup>
#include <QDockWidget>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>

namespace {

constexpr QSize kWindowSize(1160, 716);
// In pixels, and in characters and lines of the user's font: the larger one.
constexpr int kPanelWidth = 236;
constexpr int kPanelCharacters = 34;
constexpr int kTreeHeight = 132;
constexpr int kTreeLines = 5;

QLabel* newHeading(const QString& text)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

} // namespace

MainWindow::MainWindow() : mMapView(new MapView), mCellLabel(new QLabel)
{
    setWindowIcon(Artwork::applicationIcon());
    setContextMenuPolicy(Qt::NoContextMenu);
    resize(kWindowSize);
    makeActions();
    makeMenus();
    makeToolBar();
    makeCentre();
    statusBar()->addPermanentWidget(mCellLabel);

    setOptions(mOptions);
    loadPreset(QStringLiteral("meadow"));
}

QAction* MainWindow::newAction(const char* name, const QString& text)
{
    const QString objectName = QLatin1String(name);
    auto* newOne = new QAction(Artwork::actionIcon(objectName), text, this);
    newOne->setObjectName(objectName);
    return newOne;
}

template <typename Slot>
QAction* MainWindow::newAction(const char* name, const QString& text, Slot slot)
{
    QAction* newOne = newAction(name, text);
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
    newAction("New Tutorial", tr("New &Tutorial…"),
        [this] { askForScenario(QFileDialog::AcceptSave, &MainWindow::newTutorialRequested); });
    newAction("Edit Tutorial", tr("&Edit Tutorial…"),
        [this] { askForScenario(QFileDialog::AcceptOpen, &MainWindow::editRequested); });
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
    newAction("Zoom In", tr("Zoom &In"), &MainWindow::zoomIn)->setShortcut(QKeySequence::ZoomIn);
    newAction("Zoom Out", tr("Zoom &Out"), &MainWindow::zoomOut)
        ->setShortcut(QKeySequence::ZoomOut);
    newAction("Actual Size", tr("&Actual Size"), [this] { zoomTo(100); });
    newAction("Database", tr("&Database…"), &MainWindow::openDatabase)->setShortcut(Qt::Key_F9);
    newAction("Options", tr("&Options…"), &MainWindow::openOptions);
    newAction("About", tr("&About…"), &MainWindow::openAbout);
    newAction("Tutorial", tr("&First Steps"), [this] {
        emit tutorialRequested(QStringLiteral("first-steps"));
    })->setShortcut(QKeySequence::HelpContents);
    newAction("All Conditions", tr("&All Conditions"),
        [this] { emit tutorialRequested(QStringLiteral("all-conditions")); });
    newAction("Open Scenario", tr("&Open a Scenario…"), [this] {
        const QString path =
            QFileDialog::getOpenFileName(this, tr("Open a Scenario"), {}, tr("Scenarios (*.js)"));
        if (!path.isEmpty())
            emit tutorialRequested(path);
    });
    newAction("Stop Tutorial", tr("&Stop"), &MainWindow::tutorialStopRequested);
    newAction("Record Condition", tr("&Record Condition"), &MainWindow::recordRequested);
    // Not in any menu: it is triggered when a project is there.
    newAction("Project Loaded", {});

    makeChoice({newAction("Map", tr("Draw the &Map")), newAction("Event", tr("Place &Events"))});
    connect(action("Event"), &QAction::toggled, mMapView, &MapView::setEventMode);
    // In the order of MapView::Tool.
    const QList<QAction*> tools{newAction("Pencil", tr("&Pencil")),
        newAction("Rectangle", tr("&Rectangle")), newAction("Flood Fill", tr("&Flood Fill"))};
    makeChoice(tools);
    for (int i = 0; i < tools.size(); ++i) {
        connect(tools.at(i), &QAction::toggled, mMapView, [this, i](bool on) {
            if (on)
                mMapView->setTool(MapView::Tool(i));
        });
    }

    for (const char* name : {"Undo", "Redo"})
        action(name)->setEnabled(false);
    connect(&mUndoStack, &QUndoStack::canUndoChanged, action("Undo"), &QAction::setEnabled);
    connect(&mUndoStack, &QUndoStack::canRedoChanged, action("Redo"), &QAction::setEnabled);
}

// Makes the actions exclude each other; the first one is chosen.
void MainWindow::makeChoice(const QList<QAction*>& actions)
{
    auto* group = new QActionGroup(this);
    for (QAction* one : actions) {
        one->setCheckable(true);
        group->addAction(one);
    }
    actions.first()->setChecked(true);
}

void MainWindow::makeMenus()
{
    menuBar()->setObjectName(QStringLiteral("menus"));
    const struct {
        const char* name;
        QString title;
        QList<const char*> actionNames;
    } menus[] = {
        {"fileMenu", tr("&File"), {"New Project", "", "New Tutorial", "Edit Tutorial", "", "Exit"}},
        {"editMenu", tr("&Edit"), {"Undo", "Redo"}},
        {"mapMenu", tr("&Map"), {"New Map", "Edit Map", "Delete"}},
        {"drawMenu", tr("&Draw"), {"Map", "Event", "", "Pencil", "Rectangle", "Flood Fill"}},
        {"viewMenu", tr("&View"), {"Zoom In", "Zoom Out", "Actual Size"}},
        {"toolsMenu", tr("&Tools"), {"Database", "Options"}},
        {"tutorialMenu", tr("T&utorial"),
            {"Tutorial", "All Conditions", "Open Scenario", "", "Stop Tutorial", "",
                "Record Condition"}},
        {"helpMenu", tr("&Help"), {"About"}},
    };
    for (const auto& entry : menus) {
        QMenu* menu = newMenu(entry.actionNames);
        menu->setTitle(entry.title);
        menu->setObjectName(QLatin1String(entry.name));
        menuBar()->addMenu(menu);
    }
}

void MainWindow::fillBar(QWidget* bar, const QList<const char*>& names)
{
    for (const char* name : names) {
        auto* next = action(name);
        if (!next) {
            next = new QAction(bar);
            next->setSeparator(true);
        }
        bar->addAction(next);
    }
}

QMenu* MainWindow::newMenu(const QList<const char*>& actionNames)
{
    auto* menu = new QMenu(this);
    fillBar(menu, actionNames);
    return menu;
}

void MainWindow::makeToolBar()
{
    QToolBar* bar = addToolBar(tr("Tools"));
    bar->setMovable(false);
    bar->setIconSize({24, 24});
    fillBar(bar,
        {"New Project", "", "Undo", "Redo", "", "Map", "Event", "", "Pencil", "Rectangle",
            "Flood Fill", "", "Zoom In", "Zoom Out", "Actual Size", "", "Database", "Options", "",
            "Tutorial"});
}

void MainWindow::makeCentre()
{
    auto* centre = new QWidget;
    auto* row = new QHBoxLayout(centre);
    row->setContentsMargins(0, 0, 8, 0);
    row->setSpacing(4);
    auto* dock = new QDockWidget(tr("Panel"));
    dock->setObjectName(QStringLiteral("panelDock"));
    // It is closed and opened in the menu alone.
    dock->setTitleBarWidget(new QWidget);
    dock->setWidget(newLeftPanel());
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    findChild<QMenu*>(QStringLiteral("viewMenu"))->addAction(dock->toggleViewAction());
    row->addWidget(newMapArea());
    setCentralWidget(centre);
}

QWidget* MainWindow::newLeftPanel()
{
    auto* panel = new QWidget;
    panel->setObjectName(QStringLiteral("leftPanel"));
    const QFontMetrics metrics = fontMetrics();
    panel->setFixedWidth(qMax(kPanelWidth, kPanelCharacters * metrics.averageCharWidth()));

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
    mMapTree->setFixedHeight(qMax(kTreeHeight, kTreeLines * metrics.lineSpacing()));
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
