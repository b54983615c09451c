// SPDX-License-Identifier: MIT
#include "editor/lookups.h"

#include <algorithm>

using namespace TutorialEditor;

namespace {

constexpr int kSilenceMs = 400;
constexpr qint64 kForgetMs = 30000;
constexpr int kMostQuestions = 200;

} // namespace

Lookups::Lookups(QObject* parent) : QObject(parent)
{
    mSilence.setSingleShot(true);
    mSilence.setInterval(kSilenceMs);
    connect(&mSilence, &QTimer::timeout, this, &Lookups::giveUp);
}

void Lookups::add(const QModelIndex& step)
{
    while (!mQuestions.isEmpty()
        && (mQuestions.size() >= kMostQuestions || mQuestions.first().since.hasExpired(kForgetMs)))
        mQuestions.removeFirst();
    Question question{step, QElapsedTimer()};
    question.since.start();
    mQuestions << question;
}

void Lookups::take(const QString& text, const QModelIndex& current)
{
    if (mLate == 0) {
        if (mQuestions.isEmpty()) {
            emit found(current, text);
            return;
        }
        const QPersistentModelIndex first = mQuestions.first().step;
        if (std::all_of(mQuestions.cbegin(), mQuestions.cend(),
                [&first](const Question& question) { return question.step == first; })) {
            mQuestions.removeFirst();
            emit found(first, text);
            return;
        }
    }
    mHeld << text;
    if (mLate == 0 && mHeld.size() >= mQuestions.size())
        giveOut();
    else
        mSilence.start();
}

void Lookups::giveOut()
{
    mSilence.stop();
    QList<Question> questions;
    QStringList texts;
    questions.swap(mQuestions);
    texts.swap(mHeld);
    const int count = std::min(questions.size(), texts.size());
    for (int i = 0; i < count; ++i)
        emit found(questions.at(i).step, texts.at(i));
}

void Lookups::giveUp()
{
    // As many as were asked for: what was given up before is never answered.
    if (!mQuestions.isEmpty() && mHeld.size() == mQuestions.size()) {
        mLate = 0;
        giveOut();
        return;
    }
    QList<QPersistentModelIndex> steps;
    for (const Question& question : qAsConst(mQuestions)) {
        if (question.step.isValid() && !steps.contains(question.step))
            steps << question.step;
    }
    const int unanswered = mLate + mQuestions.size() - mHeld.size();
    mLate = std::max(0, unanswered);
    mQuestions.clear();
    mHeld.clear();
    emit lost(steps);
}
