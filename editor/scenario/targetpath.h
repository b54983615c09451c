// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>
#include <QVector>

#include <optional>

namespace TutorialEditor {

// A step's "target", taken apart: which widget or action it names, and which
// place there. Nothing is looked for yet.
//
//   find/closeButton            widgets by object name, each inside the one before
//   settings/tabs[Colours]      a tab, row or entry by its text
//   maps[0][2]                  or by its number from 0; in a tree, level by level
//   action:Find                 an action by object name
//   canvas@0.25,0.5             a place inside, in fractions of width and height
//
// In names and texts "\" takes the meaning from the character behind it, and a
// name or text that is wholly in quotes may hold anything; there "\" is needed
// before a quote and itself. A number in quotes is a text.
struct TargetPath {
    struct Item {
        QString text;
        // A text even when it looks like a number.
        bool quoted = false;

        // The number, or -1 for a text.
        int number() const;
    };
    struct Segment {
        QString name;
        QVector<Item> items;
    };

    // What cannot be made sense of has a fault and nothing else.
    static TargetPath fromText(const QString& text);
    // The same written out; fromText() gives it back.
    QString toText() const;

    // The action's object name; empty when the target is a widget, which has
    // segments then.
    QString action;
    QVector<Segment> segments;
    std::optional<QPointF> place;
    // What is wrong, in a sentence; empty when all is well.
    QString fault;
};

} // namespace TutorialEditor
