// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTimer>

#include <functional>

// Answers the message boxes that come up while it lives, one after the other.
// A box that nobody has an answer for is closed and counts as a fault, so that
// no test waits for ever.
class ModalBoxes : public QObject {
public:
    struct Answer {
        QMessageBox::StandardButton button;
        // Runs while the box is open, before it is answered.
        std::function<void(QMessageBox*)> meanwhile;
    };

    ModalBoxes() : ModalBoxes(QList<Answer>()) { }
    explicit ModalBoxes(QMessageBox::StandardButton button,
        const std::function<void(QMessageBox*)>& meanwhile = nullptr)
        : ModalBoxes(QList<Answer>{{button, meanwhile}})
    {
    }
    explicit ModalBoxes(const QList<Answer>& answers) : mAnswers(answers)
    {
        connect(&mTimer, &QTimer::timeout, this, &ModalBoxes::look);
        mTimer.start(1);
    }

    // What each box said: its title, and its text behind a ": ".
    const QStringList& seen() const { return mSeen; }
    bool isDone() const { return mAnswers.isEmpty() && mUnexpected == 0; }

private:
    void look()
    {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || box == mAnswered)
            return;
        mAnswered = box;
        mSeen << box->windowTitle() + QLatin1String(": ") + box->text();
        QAbstractButton* button = nullptr;
        if (!mAnswers.isEmpty()) {
            const Answer answer = mAnswers.takeFirst();
            if (answer.meanwhile)
                answer.meanwhile(box);
            button = box->button(answer.button);
        }
        if (button) {
            button->click();
        } else {
            ++mUnexpected;
            box->reject();
        }
        mAnswered = nullptr;
    }

    QList<Answer> mAnswers;
    QStringList mSeen;
    int mUnexpected = 0;
    QMessageBox* mAnswered = nullptr;
    QTimer mTimer;
};
