// SPDX-License-Identifier: MIT
#pragma once

#include <QClipboard>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QStandardItemModel>
#include <QTextDocument>
