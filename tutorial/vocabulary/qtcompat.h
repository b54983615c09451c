// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QString>

// What Qt 5 and Qt 6 do not share by one name. Nothing else asks for Qt's
// version.

// The folder of Qt's own translations.
inline QString qtTranslationsPath()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

// What a filter of native events writes its result to.
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
using NativeEventResult = qintptr;
#else
using NativeEventResult = long;
#endif

// Whether the program scales its windows by the screens' own density.
inline bool scalesByDensity()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return true;
#else
    return QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling);
#endif
}

// The widgets that show the action. A template, so that a program without
// widgets can include this.
template <typename Action>
auto widgetsWith(const Action& action)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return action.associatedObjects();
#else
    return action.associatedWidgets();
#endif
}
