// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/condition.h"
#include "editor/scenario/stepfields.h"

#include <QIcon>
#include <QVector>
#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTextEdit;

namespace TutorialEditor {

// The widgets of one step: what they hold goes in and out as StepFields, and each
// change by the author is announced. The form keeps its shape while fields come
// and go. It knows no step and nobody who works with one.
class StepForm : public QWidget {
    Q_OBJECT

public:
    // icons: the pictures of the icon kinds, in their order.
    explicit StepForm(const QVector<QIcon>& icons);

    // What the widgets hold, and which of them are shown.
    StepFields fields() const;
    // Fills the widgets and empties the translations. Nothing is announced.
    void setFields(const StepFields& fields);
    // Shows these fields as well.
    void showFields(ShownFields fields);
    // The same without an announcement, of the fields that something else than
    // the author's typing gives. x, y: pixels.
    void setPosition(int x, int y);
    void setTarget(const QString& target);
    // The targets that are offered while one is typed.
    void setTargets(const QStringList& targets);
    // condition: the kind's name and its parameters; missing ones get their
    // defaults when the kind is a new one.
    void setCondition(const QStringList& condition);
    // Chooses a window kind, which is announced.
    void setFollowWindow(Tutorial::EnumWindowKind kind);

    // The hint as the learner sees it, and the comment in the author's language.
    QString hintTranslation() const;
    void setHintTranslation(const QString& text);
    void setCommentTranslation(const QString& text);

    void setRefWindowEnabled(bool enabled);
    // Fills a menu with the fields that are not shown, which it then shows.
    // isGroup: only those that a group has.
    void fillFieldMenu(QMenu* menu, bool isGroup);
    // How the author knows a field.
    QString fieldName(StepField field) const;
    // Puts the keyboard into the field, if it is shown.
    void focusField(StepField field);
    // What can be edited or pressed, in the order of the Tab key.
    const QVector<QWidget*>& editors() const { return mEditors; }

signals:
    void xChanged(const QString& text);
    void yChanged(const QString& text);
    void followWindowChanged(const QString& text);
    void targetChanged(const QString& text);
    void commentChanged();
    void hintChanged();
    void conditionChanged(const QString& text);
    // parameter: 0 to 2.
    void conditionParameterChanged(const QString& text, int parameter);
    void iconChanged(const QString& text);
    void commandChanged(const QString& text);
    void commandParameterChanged(const QString& text);
    void labelChanged(const QString& text);
    void showArrowChanged(int state);
    void refWindowClicked();
    // The author has added a field: these are shown now, the first one is `widget`.
    void fieldAdded(TutorialEditor::ShownFields fields, const QString& name, QWidget* widget);
    // The keyboard has come to another field.
    void fieldEntered();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // A field, and what is shown and hidden with it.
    struct Field {
        StepField field;
        QString name; // in the menu of fields to add; empty for one that comes with the one before
        QVector<QWidget*> widgets; // the first one gets the focus
    };
    struct Builder;

    void connectWidgets();
    // The context menu of a line.
    void showMenu(QLineEdit* line, const QPoint& place);
    QComboBox* parameterBox(ParameterView view) const;
    const ConditionParameters& shownParameters() const;
    void setEditConditionDefault();
    // Shows the parameters that the condition has.
    void adjustComboBox();
    void onParameterBoxChanged(const QComboBox* box);
    // Shows a field, and those without a name after it.
    void addField(int i);

    QLineEdit* mX = nullptr;
    QLineEdit* mY = nullptr;
    QComboBox* mFollowWindow = nullptr;
    QPushButton* mRefWindow = nullptr;
    QLineEdit* mTarget = nullptr;
    QTextEdit* mComment = nullptr;
    QLabel* mCommentTranslation = nullptr;
    QTextEdit* mHint = nullptr;
    QTextEdit* mHintTranslation = nullptr;
    QComboBox* mCondition = nullptr;
    std::array<QComboBox*, 6> mParameterBoxes{}; // in the order of ParameterView
    std::array<QLineEdit*, 3> mParameters{};
    QComboBox* mIcon = nullptr;
    QComboBox* mCommand = nullptr;
    QLineEdit* mCommandParameter = nullptr;
    QLineEdit* mLabel = nullptr;
    QCheckBox* mShowArrow = nullptr;
    QVector<Field> mFields;
    QVector<QWidget*> mEditors;
};

} // namespace TutorialEditor
