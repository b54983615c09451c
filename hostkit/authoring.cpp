// SPDX-License-Identifier: MIT
#include "hostkit/authoring.h"

#include "editor/scenario/jsonescape.h"
#include "editor/scenario/scenariowriter.h"
#include "hostkit/core/hinttext.h"
#include "hostkit/session.h"
#include "hostkit/windows/windowregistry.h"
#include "tutorial/vocabulary/tutorialaction.h"

#include <QApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

#include <utility>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

// A step that points there and has neither text nor buttons: the tutorial adds
// those of its editor.
Step bareStep(std::optional<QPoint> point = {}, EnumWindowKind window = Window_MainWindow)
{
    Step step;
    step.point = point;
    step.window = window;
    step.condition = Condition::fromText(QStringLiteral("wait,0"));
    return step;
}

} // namespace

Authoring::Authoring(Session& session, const WindowRegistry& registry, QObject* parent)
    : QObject(parent), mSession(session), mRegistry(registry),
      mPicker(
          [this](const QWidget& widget, const QPoint& point) { return describe(widget, point); }),
      mNames(session.words(), registry)
{
    connect(&session.link(), &Link::received, this, &Authoring::onReceived);
    connect(&session, &Session::finished, this, [this] {
        if (mOnTrial)
            endTrial();
    });
    connect(&session, &Session::failed, this, [this] {
        mPath.clear();
        mNames.stop();
        mOnTrial = false;
        mPicker.stop();
        mRecorder.stop();
    });

    connect(
        &session.observer(), &ControlObserver::happened, &mRecorder, &ConditionRecorder::onEvent);
    connect(&mRecorder, &ConditionRecorder::recorded, this, [this](const Condition& condition) {
        mSession.send(QStringList{QStringLiteral("editor"), QStringLiteral("condition"),
                          getConditionKindName(condition.kind)}
            + condition.parameters);
        emit notice(tr("The condition is “%1”.").arg(condition.text));
    });

    connect(&mNames, &NamesFeed::told, this,
        [this](const QStringList& fields) { mSession.send(fields); });
    connect(&mPicker, &PointPicker::picked, this, &Authoring::onPicked);
    connect(&mPicker, &PointPicker::cancelled, this,
        [this] { emit notice(tr("No point was picked.")); });
}

bool Authoring::writeStarter(const QString& path)
{
    const QJsonObject step{{QStringLiteral("x"), 0}, {QStringLiteral("y"), 0},
        {QStringLiteral("followWindow"), TutorialAction::getWindowKindName(Window_MainWindow)},
        {QStringLiteral("comment"), QString()},
        {QStringLiteral("hint"), QStringLiteral("qsTr(\"Welcome!\")")},
        {QStringLiteral("condition"), getConditionKindName(Condition_click)},
        {QStringLiteral("icon"), getIconKindName(Icon_click)}};
    return TutorialEditor::writeScenarioFile(path, TutorialEditor::scenarioJson({step}));
}

void Authoring::edit(const QString& path)
{
    mPath = QFileInfo(path).absoluteFilePath();
    mStep = bareStep();
    mOnTrial = false;
    mSession.stop();
    mSession.whenConnected([this] {
        mSession.show(mStep);
        mSession.send({QStringLiteral("editor"), QStringLiteral("open"), mPath});
        mNames.start();
    });
}

void Authoring::recordCondition()
{
    if (mPath.isEmpty()) {
        emit notice(tr("No tutorial is being edited."));
        return;
    }
    mRecorder.start();
    emit notice(tr("Do now what the step is to wait for."));
}

void Authoring::stop()
{
    mPicker.stop();
    mRecorder.stop();
    if (mOnTrial)
        endTrial();
    else
        mSession.stop();
}

void Authoring::onReceived(const QStringList& fields)
{
    const QStringList arguments = fields.mid(1);
    if (fields.first() == QLatin1String("editor"))
        onEditor(arguments);
    else if (fields.first() == QLatin1String("indicator") && arguments.size() >= 4
        && arguments.first() == QLatin1String("updateXYFollowWindow"))
        follow(arguments.mid(1));
    else if (fields.first() == QLatin1String("untr") && arguments.size() >= 2)
        lookUp(arguments.at(0), arguments.at(1));
    else if (fields.first() == QLatin1String("start"))
        tryOut(arguments);
    else if (fields.first() == QLatin1String("coordinates")
        && arguments.value(0) == QLatin1String("request"))
        pickPoint();
}

void Authoring::onEditor(const QStringList& fields)
{
    const QString verb = fields.value(0);
    if (verb == QLatin1String("target") && fields.size() == 2)
        mTarget = fields.at(1);
    else if (verb == QLatin1String("closed"))
        mNames.stop();
}

void Authoring::follow(const QStringList& fields)
{
    const QPoint offset(fields.at(0).toInt(), fields.at(1).toInt());
    const int kind = fields.at(2).toInt();
    const bool isWindow = kind >= 0 && kind < WindowKindCount;
    mStep = bareStep(std::nullopt, isWindow ? EnumWindowKind(kind) : WindowKindCount);
    mStep.target = std::exchange(mTarget, QString());
    if (offset != QPoint(kNoCoordinate, kNoCoordinate))
        mStep.point = offset;
    // What is played owns the arrow for as long as it lasts.
    if (!mSession.player().isPlaying())
        mSession.pointAt(mStep);
}

void Authoring::lookUp(const QString& key, const QString& text)
{
    // As a JSON string, whose quotes and backslashes arrive as they are.
    QString answer = QStringLiteral("\"");
    TutorialEditor::appendJsonEscaped(&answer, hintText(text, QFileInfo(mPath).completeBaseName()));
    mSession.send({QStringLiteral("untr"), key, answer + QLatin1Char('"')});
}

void Authoring::tryOut(const QStringList& path)
{
    QList<int> rows;
    for (const QString& row : path) {
        if (!row.isEmpty())
            rows << row.toInt();
    }
    mPicker.stop();
    mRecorder.stop();
    mOnTrial = mSession.play(mPath, rows);
    if (!mOnTrial) {
        mSession.show(mStep);
        return;
    }
    // The step is shown again in full afterwards.
    mStep = mSession.player().step();
    mSession.activate();
}

void Authoring::endTrial()
{
    mOnTrial = false;
    mSession.stop();
    mSession.show(mStep);
}

void Authoring::pickPoint()
{
    mSession.activate();
    mPicker.start();
    emit notice(tr("Click the point that the step shows; Escape leaves it as it is."));
}

void Authoring::onPicked(const QPoint& point)
{
    const QPoint offset = point - mSession.originOf(mStep.window);
    mSession.send({QStringLiteral("editor"), QStringLiteral("coordinates"),
        QString::number(offset.x()), QString::number(offset.y())});
    // Without a name the one that the step had is wrong now.
    QWidget* widget = QApplication::widgetAt(point);
    const QString target = widget ? mSession.resolver().describe(widget, point) : QString();
    mSession.send({QStringLiteral("editor"), QStringLiteral("target"), target});
    emit notice(target.isEmpty()
            ? tr("The point is %1, %2.").arg(offset.x()).arg(offset.y())
            : tr("The point is %1, %2 in “%3”.").arg(offset.x()).arg(offset.y()).arg(target));
}

QString Authoring::describe(const QWidget& widget, const QPoint& point) const
{
    const auto nameOf = [](EnumWindowKind kind) {
        return kind == WindowKindCount ? tr("screen") : TutorialAction::getWindowKindName(kind);
    };
    const QList<EnumWindowKind> windows = mRegistry.windowsAround(&widget);
    QStringList parts;
    if (!windows.isEmpty())
        parts << nameOf(windows.first());
    parts << PointPicker::nameOf(widget);
    // The offset counts from the window of the step, wherever the cursor is.
    if (windows.value(0, WindowKindCount) != mStep.window)
        parts << nameOf(mStep.window);
    const QPoint offset = point - mSession.originOf(mStep.window);
    parts << QStringLiteral("%1, %2").arg(offset.x()).arg(offset.y());
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}
