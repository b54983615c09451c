// SPDX-License-Identifier: MIT
#pragma once

#include "editor/history/rowacts.h"

#include <QElapsedTimer>
#include <QJsonValue>

namespace TutorialEditor {

// Gives an item another step. It keeps the values that differ, and nothing else.
class StepHistory::EditAct : public Act {
public:
    // run: of typing, in which acts of the same field become one; -1 for none.
    EditAct(StepHistory* history, TutorialItem* item, const QJsonObject& step, StepField field,
        int run, const QString& name);

    int id() const override { return kId; }
    bool mergeWith(const QUndoCommand* other) override;
    void undo() override;

protected:
    void redoAgain() override;

private:
    static constexpr int kId = 1;
    static constexpr int kPauseMs = 2000;

    struct Change {
        QString key;
        QJsonValue before; // undefined when there is none
        QJsonValue after;
    };

    void set(QJsonValue Change::*value);

    TutorialItem* const mItem;
    const StepField mField;
    const int mRun;
    QVector<Change> mChanges;
    QElapsedTimer mSince; // the last typing
};

// Shows fields in the form.
class StepHistory::FieldsAct : public Act {
public:
    FieldsAct(StepHistory* history, TutorialItem* item, ShownFields fields, const QString& name)
        : Act(history, name), mItem(item), mFields(fields)
    {
    }

    void undo() override { emit mHistory.fieldsShown(mItem, mFields, false); }

protected:
    void redoAgain() override { emit mHistory.fieldsShown(mItem, mFields, true); }

private:
    TutorialItem* const mItem;
    const ShownFields mFields;
};

} // namespace TutorialEditor
