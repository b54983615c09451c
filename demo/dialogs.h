// SPDX-License-Identifier: MIT
#pragma once

#include "demo/formdialog.h"
#include "demo/project.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QSpinBox>

// The editor's dialogs. Each takes a copy of what it edits; the result is to be
// taken when it was accepted.

class NewProjectDialog : public FormDialog {
    Q_OBJECT

public:
    explicit NewProjectDialog(QWidget* parent);

    Project project() const;

private:
    QLineEdit* mTitle;
    QSpinBox* mWidth;
    QSpinBox* mHeight;
    QComboBox* mGround;
    QCheckBox* mExample;
};

class MapDialog : public FormDialog {
    Q_OBJECT

public:
    MapDialog(const QString& title, const GameMap& map, QWidget* parent);

    // The map with its new properties; what lies outside of a smaller size is
    // cut off, new ground is grass.
    GameMap map() const;

private:
    GameMap mMap;
    QLineEdit* mName;
    QSpinBox* mWidth;
    QSpinBox* mHeight;
};

class EventDialog : public FormDialog {
    Q_OBJECT

public:
    EventDialog(const MapEvent& event, QWidget* parent);

    MapEvent edited() const;

private:
    QWidget* newSettingsPage();
    QWidget* newCommandsPage();

    MapEvent mEvent;
    QLineEdit* mName;
    QComboBox* mTrigger;
    QCheckBox* mWalkAnime;
    QCheckBox* mThrough;
    QSpinBox* mSpeed;
    QListWidget* mCommands;
};

class OptionsDialog : public FormDialog {
    Q_OBJECT

public:
    struct Options {
        bool grid = true;
        int gridStrength = 15; // percent
        int firstCell = 0; // what the first row and column are called
    };

    OptionsDialog(const Options& options, QWidget* parent);

    Options options() const;

private:
    QCheckBox* mGrid;
    QSpinBox* mGridStrength;
    QComboBox* mCells;
};
