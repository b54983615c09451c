// SPDX-License-Identifier: MIT
#pragma once

#include "tutorial/vocabulary/vocabulary.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace TutorialHost {

struct HostWords;

// The condition that ends a step, as scenario files hold it: the kind's name
// and its parameters, separated by commas.
//
//   windowState,WINDOW,open    the window is open
//   windowState,WINDOW,close   the window is not open
//   windowState,WINDOW,ok      the window is not open; OK (or Yes) closed it last
//   windowState,WINDOW,cancel  the window is not open; it was closed otherwise
//   wait,SECONDS               the step has been shown for so long
//   mouseEvent,LIST,click|doubleClick
//                              the list or map got this event
//   textLength,OP,N            the length of the text in the line edit of the
//                              followed window that has or had the focus last
//   popup,LIST|*               a context menu was opened on the list or map
//   list,ROW                   the row was chosen in a list of the followed
//                              window; -1 means any row
//   click                      Next was pressed
//   action,NAME                the host's action was triggered
//   pressed,PAGE,BUTTON        the button was pressed in the followed window:
//                              its tab's index, its index in that tab's order;
//                              without tabs the page is 0
//   comboBox,NAME,ROW          the combo box of the followed window shows the row
//   checked,NAME,0|1           the check box of the followed window is so
//   spinBox,OP,N               the value of the spin box of the followed window
//                              that has or had the focus last
//   yesNo,LABEL,LABEL          Yes or No was pressed; the player goes to the
//                              label, or to the next step when that is empty
//
// LIST is the object name of a list, or Map, OP one of = < <= > >= !=, and NAME
// a widget's object name. Parameters beyond these are
// ignored.
//
// windowState, textLength, comboBox, checked and spinBox look at how things
// are: what is so already when the step begins counts. The others wait for
// something to happen after the step has begun.
struct Condition {
    // An unknown kind's name gives ConditionKindCount.
    static Condition fromText(const QString& text);
    // The same, where the host has words of its own: conditions, and windows.
    static Condition fromText(const QString& text, const HostWords& words);

    // Why this condition can never be met; empty when it can.
    QString fault() const;
    // The parameter at the index; empty when there are not so many.
    QString parameter(int index) const { return parameters.value(index); }

    QString text;
    Tutorial::EnumConditionKind kind = Tutorial::ConditionKindCount;
    QStringList parameters;
    // The window that windowState is about.
    Tutorial::EnumWindowKind subject = Tutorial::WindowKindCount;
    // A condition of the host's own: whether it is met now.
    std::function<bool(const QStringList& parameters)> own;
};

// How the host's windows and controls are now. A window stands for all that it
// holds; what it does not hold, or a window that is not there, gives nothing.
class HostState {
public:
    virtual ~HostState() = default;

    // "open", or how the window was closed last: "ok", "cancel", or "close"
    // when that is not known or the window has not been open yet.
    virtual QString windowState(Tutorial::EnumWindowKind window) const = 0;
    virtual std::optional<int> textLength(Tutorial::EnumWindowKind window) const = 0;
    virtual std::optional<int> spinBoxValue(Tutorial::EnumWindowKind window) const = 0;
    virtual std::optional<int> comboBoxRow(
        Tutorial::EnumWindowKind window, const QString& name) const = 0;
    virtual std::optional<bool> isChecked(
        Tutorial::EnumWindowKind window, const QString& name) const = 0;
};

// Something that happened in the host, in the words of the condition that it
// may meet or that holds since, with the windows in which it happened (a panel
// and the window around it, for example).
struct HostEvent {
    Tutorial::EnumConditionKind kind;
    QStringList parameters;
    QList<Tutorial::EnumWindowKind> windows;
};

// Whether the condition is one about how things are, and is met now.
bool isMet(const Condition& condition, Tutorial::EnumWindowKind followed, const HostState& state);
// Whether the condition names a control that the window does not hold.
bool isAboutNothing(
    const Condition& condition, Tutorial::EnumWindowKind followed, const HostState& state);
// Whether the condition is one about an event, and this event meets it.
bool isMetBy(const Condition& condition, Tutorial::EnumWindowKind followed, const HostEvent& event);

} // namespace TutorialHost
