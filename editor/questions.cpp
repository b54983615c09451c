// SPDX-License-Identifier: MIT
#include "editor/questions.h"

#include "editor/dialog.h"
#include "editor/errorbox.h"
#include "editor/manager.h"

#include <QAbstractButton>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>

using namespace TutorialEditor;

namespace {

QString shown(const QDateTime& time)
{
    return time.isValid() ? QLocale().toString(time, QLocale::LongFormat)
                          : Manager::tr("there is none");
}

QString fileName(const QString& path)
{
    return QFileInfo(path).fileName();
}

void setUp(QMessageBox* box, QMessageBox::StandardButtons buttons)
{
    box->setTextFormat(Qt::PlainText);
    box->setStandardButtons(buttons);
}

QMessageBox::StandardButton answerOf(QMessageBox* box)
{
    // The box's own format is not that of its small print.
    for (QLabel* label : box->findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
    return static_cast<QMessageBox::StandardButton>(box->exec());
}

QString difference(const std::optional<int>& steps)
{
    if (!steps)
        return Dialog::tr("It cannot be read as a scenario.");
    if (*steps == 0)
        return Dialog::tr("Its steps are the same as here.");
    return Dialog::tr("Steps that differ from those here: %1").arg(*steps);
}

// Null when there is nothing to tell, empty when there is no more to say.
QString reason(const ScenarioDocument& document)
{
    const QString path = QDir::toNativeSeparators(document.path());
    switch (document.lastResult()) {
    case ScenarioDocument::Saved:
    case ScenarioDocument::ChangedOnDisk:
        return QString();
    case ScenarioDocument::FolderGone:
        return Dialog::tr("The folder %1 is not there.").arg(QFileInfo(path).absolutePath());
    case ScenarioDocument::NotAFile:
        return Dialog::tr("%1 is no file now.").arg(path);
    case ScenarioDocument::InUse:
        return Dialog::tr("Another tool is saving %1. Try again.").arg(path);
    case ScenarioDocument::NotKept:
        return Dialog::tr("The former file could not be kept, so that it was not replaced: %1")
            .arg(path);
    case ScenarioDocument::NoPath:
    case ScenarioDocument::NotWritten:
        break;
    }
    return QStringLiteral("");
}

} // namespace

QMessageBox::StandardButton TutorialEditor::showBox(QMessageBox::Icon icon, const QString& title,
    const QString& text, QMessageBox::StandardButtons buttons)
{
    QMessageBox box(icon, title, text);
    setUp(&box, buttons);
    return answerOf(&box);
}

QMessageBox::StandardButton TutorialEditor::askToSave(const ScenarioDocument& document, bool withNo)
{
    QMessageBox box(QMessageBox::Question, Dialog::tr("Save"), Dialog::tr("Save OK?"));
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::Cancel;
    if (withNo)
        buttons |= QMessageBox::No;
    setUp(&box, buttons);
    const QString keptAs = document.willBeKeptAs();
    if (!keptAs.isEmpty())
        box.setInformativeText(
            Dialog::tr("%1 was not read whole. Before it is replaced it will be kept as %2.")
                .arg(fileName(document.path()), QDir::toNativeSeparators(keptAs)));
    return answerOf(&box);
}

QMessageBox::StandardButton TutorialEditor::askToReplace(
    const ScenarioDocument& document, const DiskFile& disk, const QJsonArray& steps)
{
    const std::optional<int> differing = document.differenceFromDisk(steps);
    QMessageBox box(QMessageBox::Warning, Dialog::tr("Save"),
        Dialog::tr("%1 was changed by another program.\n\nChanged: %2\n%3")
            .arg(QDir::toNativeSeparators(document.path()), shown(disk.time()),
                difference(differing)));
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::Cancel;
    if (differing)
        buttons |= QMessageBox::Retry;
    setUp(&box, buttons);
    box.setInformativeText(
        Dialog::tr("Overwrite keeps that file as %1. "
                   "Reload takes it in place of the steps here; Undo brings these back.")
            .arg(QDir::toNativeSeparators(document.keptName())));
    box.button(QMessageBox::Yes)->setText(Dialog::tr("&Overwrite"));
    if (differing)
        box.button(QMessageBox::Retry)->setText(Dialog::tr("&Reload"));
    box.setDefaultButton(QMessageBox::Cancel);
    return answerOf(&box);
}

QString TutorialEditor::noticeText(const ScenarioDocument& document, bool hasChanges)
{
    const QString name = fileName(document.path());
    switch (document.notice()) {
    case ScenarioDocument::NothingNew:
        break;
    case ScenarioDocument::ReadableFile:
        return hasChanges
            ? Dialog::tr("%1 has changed on disk. Save asks which changes to keep.").arg(name)
            : Dialog::tr("%1 has changed on disk.").arg(name);
    case ScenarioDocument::UnreadableFile:
        return Dialog::tr("%1 has changed on disk, and cannot be read.").arg(name);
    case ScenarioDocument::NoFile:
        return Dialog::tr("%1 is no file now.").arg(name);
    case ScenarioDocument::FileGone:
        return Dialog::tr("%1 is gone. Save writes it again.").arg(name);
    }
    return QString();
}

void TutorialEditor::tellNotSaved(const ScenarioDocument& document)
{
    const QString why = reason(document);
    if (why.isNull())
        return;
    QMessageBox box(
        QMessageBox::Warning, Dialog::tr("Save"), Dialog::tr("The scenario could not be saved."));
    setUp(&box, QMessageBox::Ok);
    box.setInformativeText(why);
    answerOf(&box);
}

void TutorialEditor::tellUnreadable(const ScenarioDocument::SaveReport& report)
{
    QString text = Manager::tr("The scenario was saved, but it cannot be read again as it is.");
    if (!report.keptAs.isEmpty())
        text += QLatin1Char(' ')
            + Manager::tr("The former file was kept as %1.")
                  .arg(QDir::toNativeSeparators(report.keptAs));
    showBox(QMessageBox::Warning, Manager::tr("Save"),
        text + QLatin1String("\n\n") + errorText(report.problems), QMessageBox::Ok);
}

QMessageBox::StandardButton TutorialEditor::askToOpen(const QString& path)
{
    QMessageBox box(QMessageBox::Warning, Manager::tr("In use"),
        Manager::tr("%1 is open in another tool.\n\n"
                    "When both save, the second one is asked what to do.")
            .arg(QDir::toNativeSeparators(path)));
    setUp(&box, QMessageBox::Yes | QMessageBox::Cancel);
    box.button(QMessageBox::Yes)->setText(Manager::tr("&Open anyway"));
    box.setDefaultButton(QMessageBox::Cancel);
    return answerOf(&box);
}

QMessageBox::StandardButton TutorialEditor::askToRecover(
    const ScenarioDocument& document, const QDateTime& copied)
{
    const QString& path = document.path();
    QMessageBox box(QMessageBox::Question, Manager::tr("Recover"),
        Manager::tr("The tool ended before changes of %1 were saved.\n\n"
                    "Changes: %2\nSaved file: %3\n\nRecover the changes?")
            .arg(path, shown(copied), shown(QFileInfo(path).lastModified())));
    setUp(&box, QMessageBox::Yes | QMessageBox::Discard | QMessageBox::Cancel);
    box.button(QMessageBox::Yes)->setText(Manager::tr("&Recover"));
    box.button(QMessageBox::Discard)->setText(Manager::tr("&Discard"));
    box.button(QMessageBox::Cancel)->setText(Manager::tr("&Later"));
    return answerOf(&box);
}
