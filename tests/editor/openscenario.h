// SPDX-License-Identifier: MIT
#pragma once

#include "editor/dialog.h"
#include "editor/manager.h"
#include "editor/model/model.h"
#include "editor/model/treeview.h"
#include "editor/model/tutorialitem.h"
#include "editor/scenario/scenariowriter.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTemporaryDir>
#include <QTextEdit>
#include <QtTest>

inline QString operator""_s(const char* text, std::size_t size)
{
    return QString::fromUtf8(text, int(size));
}

// The steps in the words from `*word` on, to the end of their group.
inline QJsonArray stepsOf(const QStringList& words, int* word)
{
    QJsonArray steps;
    while (*word < words.size()) {
        QString hint = words.at((*word)++);
        if (hint == QLatin1String("]"))
            break;
        QJsonObject step;
        if (hint.startsWith(QLatin1Char('['))) {
            hint.remove(0, 1);
            step.insert(QStringLiteral("group"), stepsOf(words, word));
        }
        step.insert(QStringLiteral("hint"), hint);
        steps.append(step);
    }
    return steps;
}

// The text of a scenario file with steps of these hints: "a [g b c ] d" are two
// steps with a group named g between them.
inline QString scenarioText(const QString& steps)
{
    int word = 0;
    return TutorialEditor::scenarioFileText(TutorialEditor::scenarioJson(
        stepsOf(steps.split(QLatin1Char(' '), Qt::SkipEmptyParts), &word)));
}

// A scenario file of its own, opened in the authoring tool, whose model is
// watched for a change that is announced wrongly.
class OpenScenario {
public:
    explicit OpenScenario(const QString& text)
    {
        write(text);
        TutorialEditor::Manager::setContents(path());
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (auto* dialog = qobject_cast<TutorialEditor::Dialog*>(window))
                mDialog = dialog;
        }
        mTester.reset(new QAbstractItemModelTester(
            model(), QAbstractItemModelTester::FailureReportingMode::Fatal));
        tree()->expandAll();
        if (!QTest::qWaitForWindowActive(mDialog))
            qWarning("the dialog does not become active");
    }

    ~OpenScenario()
    {
        mTester.reset();
        if (!mDialog)
            return;
        mDialog->setLastJson(mDialog->getCurrentJson());
        mDialog->close();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QString path() const { return mFolder.filePath(QStringLiteral("scenario.js")); }
    QPointer<TutorialEditor::Dialog> dialog() const { return mDialog; }
    TutorialEditor::Model* model() const { return mDialog->model(); }
    TutorialEditor::TreeView* tree() const { return widget<TutorialEditor::TreeView>("steps"); }

    QTextEdit* hint() const { return widget<QTextEdit>("hint"); }
    template <typename Widget>
    Widget* widget(const char* name) const
    {
        return mDialog->findChild<Widget*>(QLatin1String(name));
    }

    TutorialEditor::TutorialItem* item(const QList<int>& rows) const
    {
        return TutorialEditor::TutorialItem::from(model()->getItemByActionIndexList(rows));
    }

    // As a click on the row, and one with Shift held on another row.
    void select(const QList<int>& rows) { click(item(rows)->index(), Qt::NoModifier); }
    void select(const QList<int>& first, const QList<int>& last)
    {
        select(first);
        click(item(last)->index(), Qt::ShiftModifier);
    }
    void click(const QModelIndex& index, Qt::KeyboardModifiers modifiers)
    {
        tree()->scrollTo(index);
        QTest::mouseClick(
            tree()->viewport(), Qt::LeftButton, modifiers, tree()->visualRect(index).center());
    }

    // The rows' texts, joined by "|", with a dot a level before each.
    QString rows() const
    {
        return rowsOf(model()->invisibleRootItem(), QString()).join(QLatin1Char('|'));
    }
    QString selectedRows() const
    {
        QStringList texts;
        for (const QModelIndex& index : tree()->getSelectedIndexes())
            texts << index.data().toString();
        return texts.join(QLatin1Char('|'));
    }

    void write(const QString& text) const
    {
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
    }

    QString fileText() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

private:
    static QStringList rowsOf(const QStandardItem* level, const QString& dots)
    {
        QStringList texts;
        for (int row = 0; row < level->rowCount(); ++row) {
            texts << dots + level->child(row)->text();
            texts << rowsOf(level->child(row), dots + QLatin1Char('.'));
        }
        return texts;
    }

    QTemporaryDir mFolder;
    QPointer<TutorialEditor::Dialog> mDialog;
    QScopedPointer<QAbstractItemModelTester> mTester;
};
