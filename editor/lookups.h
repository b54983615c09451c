// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPersistentModelIndex>
#include <QStringList>
#include <QTimer>

namespace TutorialEditor {

// The texts of one key that the host was asked to look up, and whose each answer
// is. A question does not say of which step its text is, and so neither does its
// answer; answers come in the order of the questions, but a host may leave some
// questions unanswered. Where that leaves a choice between steps, the answers are
// held back until there is one for each question, or none has come for a moment.
class Lookups : public QObject {
    Q_OBJECT

public:
    explicit Lookups(QObject* parent);

    // The host was asked for a text of this step. An invalid index: of none.
    void add(const QModelIndex& step);
    // An answer has come. current: whose it is when nothing was asked.
    void take(const QString& text, const QModelIndex& current);

signals:
    // Invalid when the step is gone.
    void found(const QModelIndex& step, const QString& text);
    // Nobody can tell whose the answers were: the texts of these steps have to be
    // asked for again.
    void lost(const QList<QPersistentModelIndex>& steps);

private:
    struct Question {
        QPersistentModelIndex step;
        QElapsedTimer since;
    };

    void giveOut();
    void giveUp();

    QList<Question> mQuestions; // in their order
    int mLate = 0; // given up, and may still be answered
    QStringList mHeld; // answers
    QTimer mSilence;
};

} // namespace TutorialEditor
