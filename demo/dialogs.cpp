// SPDX-License-Identifier: MIT
#include "demo/dialogs.h"

#include "demo/artwork.h"

#include <QPushButton>
#include <QTabWidget>

namespace {

QSpinBox* newSpinBox(int low, int high, int value)
{
    auto* box = new QSpinBox;
    box->setRange(low, high);
    box->setValue(value);
    return box;
}

QCheckBox* newCheckBox(const QString& text, bool checked)
{
    auto* box = new QCheckBox(text);
    box->setChecked(checked);
    return box;
}

constexpr int kSmallestMap = 4;
constexpr int kLargestMap = 64;

} // namespace

NewProjectDialog::NewProjectDialog(QWidget* parent) : FormDialog(tr("New Project"), parent)
{
    QFormLayout* form = newForm();
    mContents->addLayout(form);
    mTitle = addRow(form, tr("Title:"), "title", new QLineEdit);
    mTitle->setPlaceholderText(tr("Name of your game"));
    mWidth = addRow(form, tr("Width:"), "mapWidth", newSpinBox(kSmallestMap, kLargestMap, 28));
    mHeight = addRow(form, tr("Height:"), "mapHeight", newSpinBox(kSmallestMap, kLargestMap, 19));
    mGround = addRow(form, tr("Ground:"), "ground", new QComboBox);
    for (Tile tile : {Tile::Grass, Tile::Water, Tile::Sand})
        mGround->addItem(Artwork::tileIcon(tile), tileName(tile), int(tile));
    mExample = addRow(form, {}, "example", newCheckBox(tr("Start with the example world"), false));
}

Project NewProjectDialog::project() const
{
    Project project = *Project::preset(
        mExample->isChecked() ? QStringLiteral("meadow") : QStringLiteral("empty"));
    if (!mTitle->text().isEmpty())
        project.title = mTitle->text();
    if (!mExample->isChecked())
        project.maps.first() = GameMap::blank(project.maps.first().name,
            {mWidth->value(), mHeight->value()}, Tile(mGround->currentData().toInt()));
    return project;
}

MapDialog::MapDialog(const QString& title, const GameMap& map, QWidget* parent)
    : FormDialog(title, parent), mMap(map)
{
    QFormLayout* form = newForm();
    mContents->addLayout(form);
    mName = addRow(form, tr("Name:"), "name", new QLineEdit(map.name));
    mWidth = addRow(
        form, tr("Width:"), "mapWidth", newSpinBox(kSmallestMap, kLargestMap, map.size.width()));
    mHeight = addRow(
        form, tr("Height:"), "mapHeight", newSpinBox(kSmallestMap, kLargestMap, map.size.height()));
}

GameMap MapDialog::map() const
{
    GameMap map = GameMap::blank(mName->text(), {mWidth->value(), mHeight->value()}, Tile::Grass);
    for (int y = 0; y < map.size.height(); ++y) {
        for (int x = 0; x < map.size.width(); ++x) {
            if (mMap.contains({x, y}))
                map.at({x, y}) = mMap.at({x, y});
        }
    }
    for (const MapEvent& event : mMap.events) {
        if (map.contains(event.cell))
            map.events << event;
    }
    return map;
}

EventDialog::EventDialog(const MapEvent& event, QWidget* parent)
    : FormDialog(tr("Event"), parent), mEvent(event)
{
    QFormLayout* form = newForm();
    mContents->addLayout(form);
    mName = addRow(form, tr("Name:"), "name", new QLineEdit(event.name));

    auto* pages = new QTabWidget;
    pages->setObjectName(QStringLiteral("pages"));
    pages->addTab(newSettingsPage(), tr("Settings"));
    pages->addTab(newCommandsPage(), tr("Commands"));
    mContents->addWidget(pages);
}

QWidget* EventDialog::newSettingsPage()
{
    auto* page = new QWidget;
    QFormLayout* form = newForm();
    page->setLayout(form);
    mTrigger = addRow(form, tr("Trigger:"), "trigger", new QComboBox);
    mTrigger->addItems({tr("Action key"), tr("Player touches"), tr("Event touches"),
        tr("By itself"), tr("In parallel")});
    mTrigger->setCurrentIndex(mEvent.trigger);
    mSpeed = addRow(form, tr("Speed:"), "speed", newSpinBox(1, 6, mEvent.speed));
    mWalkAnime =
        addRow(form, {}, "walkAnime", newCheckBox(tr("Walking animation"), mEvent.walkAnime));
    mThrough = addRow(form, {}, "through", newCheckBox(tr("Walks through walls"), mEvent.through));
    return page;
}

QWidget* EventDialog::newCommandsPage()
{
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    mCommands = new QListWidget;
    mCommands->setObjectName(QStringLiteral("commands"));
    mCommands->addItems(mEvent.commands);
    layout->addWidget(mCommands);

    auto* add = new QPushButton(tr("Add Text"), page);
    auto* remove = new QPushButton(tr("Remove"), page);
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {add, remove}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    layout->addLayout(buttons);
    connect(add, &QPushButton::clicked, this, [this] {
        mCommands->addItem(tr("Show text: Hello!"));
        mCommands->setCurrentRow(mCommands->count() - 1);
    });
    connect(remove, &QPushButton::clicked, this,
        [this] { delete mCommands->takeItem(mCommands->currentRow()); });
    return page;
}

MapEvent EventDialog::edited() const
{
    MapEvent event = mEvent;
    event.name = mName->text();
    event.trigger = mTrigger->currentIndex();
    event.speed = mSpeed->value();
    event.walkAnime = mWalkAnime->isChecked();
    event.through = mThrough->isChecked();
    event.commands.clear();
    for (int row = 0; row < mCommands->count(); ++row)
        event.commands << mCommands->item(row)->text();
    return event;
}

OptionsDialog::OptionsDialog(const Options& options, QWidget* parent)
    : FormDialog(tr("Options"), parent)
{
    QFormLayout* form = newForm();
    mContents->addLayout(form);
    mGrid = addRow(form, tr("Map:"), "grid", newCheckBox(tr("Show the grid"), options.grid));
    mGridStrength = addRow(
        form, tr("Grid strength:"), "gridStrength", newSpinBox(5, 100, options.gridStrength));
    mGridStrength->setSuffix(QStringLiteral(" %"));
    mCells = addRow(form, tr("Cells:"), "cells", new QComboBox);
    mCells->addItems({tr("Counted from 0"), tr("Counted from 1")});
    mCells->setCurrentIndex(options.firstCell);
}

OptionsDialog::Options OptionsDialog::options() const
{
    return {mGrid->isChecked(), mGridStrength->value(), mCells->currentIndex()};
}
