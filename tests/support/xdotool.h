// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

// What a person does, on the X server of the test.

// Runs the program of this name; returns what it prints.
QString xdotool(const QStringList& arguments);

// Presses keys by the X server's names, separated by blanks.
void press(const QString& keys);

// Presses the keys of a text.
void type(const QString& text);

// Clicks into a window, in pixels from its top left corner; negative ones count
// from the bottom right.
void click(const QString& window, int x, int y);

// The first window that is shown and whose title matches; empty for none.
QString windowTitled(const QString& pattern);

// Waits until there is one, or, not `shown`, none any more.
bool waitForWindow(const QString& pattern, bool shown = true);
