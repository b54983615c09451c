// SPDX-License-Identifier: MIT
#pragma once

#include "demo/dialogs.h"
#include "demo/mapview.h"
#include "demo/project.h"

#include <QAction>
#include <QFileDialog>
#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QTreeWidget>
#include <QUndoStack>

// The small map editor that the tutorials explain. Its actions carry their
// names of the host-action list as object names.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    MainWindow();

    // Loads the data of this name; false when there is none.
    bool loadPreset(const QString& name);
    // A line for the learner and the author in the status bar.
    void showNotice(const QString& text);

signals:
    // A scenario was chosen from the menu: its name, or a file's path.
    void tutorialRequested(const QString& scenario);
    void tutorialStopRequested();
    // A scenario file is to be opened in the authoring tool; a new one is to be
    // written there first.
    void editRequested(const QString& path);
    void newTutorialRequested(const QString& path);
    // The condition of the next step is to be recorded.
    void recordRequested();

private:
    QAction* newAction(const char* name, const QString& text);
    template <typename Slot>
    QAction* newAction(const char* name, const QString& text, Slot slot);
    QAction* action(const char* name) const;
    void makeActions();
    void makeChoice(const QList<QAction*>& actions);
    void makeMenus();
    void makeToolBar();
    void makeCentre();
    QWidget* newLeftPanel();
    QWidget* newMapArea();
    // Adds the actions to a menu or tool bar; an empty name is a separator.
    void fillBar(QWidget* bar, const QList<const char*>& names);
    QMenu* newMenu(const QList<const char*>& actionNames);

    void setProject(const Project& project);
    void showMap(int index);
    // Shows the maps as they are now, and this one of them.
    void updateTree(int current);
    GameMap& map() { return mProject.maps[mMapIndex]; }
    void setOptions(const OptionsDialog::Options& options);
    void zoomIn();
    void zoomOut();
    void zoomTo(int percent);
    void tellCell(const QPoint& cell);
    void onDrawn(const QVector<Tile>& before);

    // Opens the dialog as the window of this name; accepted is called with it.
    template <typename Dialog, typename Accepted>
    void open(const char* name, Dialog* dialog, Accepted accepted);
    // Asks for a scenario file, existing or new, and emits the signal with it.
    using ScenarioSignal = void (MainWindow::*)(const QString& path);
    void askForScenario(QFileDialog::AcceptMode mode, ScenarioSignal requested);
    void openNewProject();
    void openNewMap();
    void openEditMap();
    void openDeleteMap();
    void openEvent(const QPoint& cell);
    void deleteEvent();
    void openDatabase();
    void openOptions();
    void openAbout();

    Project mProject;
    int mMapIndex = 0;
    int mZoom = 100;
    OptionsDialog::Options mOptions;
    QUndoStack mUndoStack;
    QListWidget* mTileList = nullptr;
    QListWidget* mEventList = nullptr;
    QTreeWidget* mMapTree = nullptr;
    MapView* mMapView;
    QLabel* mCellLabel;
};
