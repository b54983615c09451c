// SPDX-License-Identifier: MIT
#include "demo/artwork.h"
#include "demo/databasedialog.h"
#include "demo/mainwindow.h"

#include <QMessageBox>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QUndoCommand>

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

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

} // namespace

bool MainWindow::loadPreset(const QString& name)
{
    const std::optional<Project> project = Project::preset(name);
    if (!project)
        return false;
    setProject(*project);
    // The view as it is at the beginning: scenarios point at cells.
    zoomTo(100);
    for (const char* choice : {"Map", "Pencil"})
        action(choice)->setChecked(true);
    mTileList->setCurrentRow(0);
    // For each spin box and list of a dialog that is long gone Qt keeps what it
    // found out about its parts, until a style sheet is set.
    qApp->setStyleSheet(qApp->styleSheet());
    return true;
}

void MainWindow::showNotice(const QString& text)
{
    statusBar()->showMessage(text, kNoticeMs);
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
}

void MainWindow::zoomIn()
{
    zoomTo(*std::upper_bound(std::begin(kZooms), std::end(kZooms) - 1, mZoom));
}

void MainWindow::zoomOut()
{
    const auto* zoom = std::lower_bound(std::begin(kZooms), std::end(kZooms), mZoom);
    zoomTo(zoom == std::begin(kZooms) ? *zoom : *(zoom - 1));
}

void MainWindow::zoomTo(int percent)
{
    mZoom = percent;
    mMapView->setZoom(percent);
}

void MainWindow::tellCell(const QPoint& cell)
{
    mCellLabel->setText(QStringLiteral("%1, %2   %3")
                            .arg(cell.x() + mOptions.firstCell)
                            .arg(cell.y() + mOptions.firstCell)
                            .arg(tileName(map().at(cell))));
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
void MainWindow::open(const char* name, Dialog* dialog, Accepted accepted)
{
    dialog->setObjectName(QLatin1String(name));
    connect(dialog, &QDialog::accepted, this, [dialog, accepted] { accepted(*dialog); });
    dialog->open();
}

void MainWindow::openNewProject()
{
    open("NewProject", new NewProjectDialog(this),
        [this](const NewProjectDialog& dialog) { setProject(dialog.project()); });
}

void MainWindow::openNewMap()
{
    const GameMap blank = GameMap::blank(tr("New map"), {28, 19}, Tile::Grass);
    open("MapProperties", new MapDialog(tr("New Map"), blank, this),
        [this](const MapDialog& dialog) {
            mProject.maps << dialog.map();
            updateTree(mProject.maps.size() - 1);
        });
}

void MainWindow::openEditMap()
{
    open("MapProperties", new MapDialog(tr("Edit Map"), map(), this),
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
    question->addButton(tr("Keep"), QMessageBox::RejectRole)->setObjectName(QStringLiteral("keep"));
    question->setAttribute(Qt::WA_DeleteOnClose);
    open("MessageBox", question, [this](const QMessageBox&) {
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
    open("EventEditorMain", new EventDialog(event, this), [this, index](const EventDialog& dialog) {
        if (index >= 0)
            map().events[index] = dialog.edited();
        else
            map().events << dialog.edited();
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
    open("DatabaseMain", new DatabaseDialog(mProject, this), [this](const DatabaseDialog& dialog) {
        mProject.heroes = dialog.heroes();
        mProject.items = dialog.items();
    });
}

void MainWindow::openOptions()
{
    open("Options", new OptionsDialog(mOptions, this),
        [this](const OptionsDialog& dialog) { setOptions(dialog.options()); });
}

void MainWindow::askForScenario(QFileDialog::AcceptMode mode, ScenarioSignal requested)
{
    const bool isNew = mode == QFileDialog::AcceptSave;
    auto* dialog = new QFileDialog(this, isNew ? tr("New Tutorial") : tr("Edit Tutorial"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // The desktop's own dialog would be a window that nobody knows of.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setNameFilter(tr("Scenarios (*.js)"));
    dialog->setDefaultSuffix(QStringLiteral("js"));
    dialog->setAcceptMode(mode);
    // Before it writes over a file, the dialog asks.
    dialog->setFileMode(isNew ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    open("FileDialog", dialog, [this, requested](const QFileDialog& asked) {
        emit(this->*requested)(asked.selectedFiles().constFirst());
    });
}

void MainWindow::openAbout()
{
    auto* about = new QMessageBox(QMessageBox::NoIcon, tr("About"),
        tr("A small map editor that shows how a host drives the tutorial."), QMessageBox::Ok, this);
    about->setIconPixmap(Artwork::applicationIcon().pixmap(48));
    about->setAttribute(Qt::WA_DeleteOnClose);
    open("About", about, [](const QMessageBox&) {});
}
