// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QJsonObject>
#include <QStandardItem>
#include <QString>

namespace TutorialEditor {

// A step of the scenario, a group of steps, or the end marker that is the last
// row of every level.
class TutorialItem : public QStandardItem {
public:
    explicit TutorialItem(const QString& text);
    TutorialItem(int rows, int columns);

    // The item as a TutorialItem; null for null and for an item of another class.
    static TutorialItem* from(QStandardItem* item);

    // The step's or group's object, without the steps of a group; empty for an
    // end marker. It shares its data with what the reader made, so that it takes
    // less than its text would.
    const QJsonObject& step() const { return mStep; }
    void setStep(const QJsonObject& step) { mStep = step; }
    // The same as compact text.
    QString json() const;
    bool isGroup() const { return mGroup; }
    void setGroup(bool group) { mGroup = group; }
    // The item's level, 0 at the top; -1 for an end marker and a new item.
    int depth() const { return mDepth; }
    void setDepth(int depth) { mDepth = depth; }
    bool isEndMarker() const { return mDepth < 0; }
    // The hint in the author's language, as the host gave it.
    const QString& translation() const { return mTranslation; }
    void setTranslation(const QString& translation) { mTranslation = translation; }

    // Every line end of a text becomes "/", so that an item is one line high.
    void setData(const QVariant& value, int role = Qt::UserRole + 1) override;
    QVariant data(int role = Qt::UserRole + 1) const override;
    int type() const override { return UserType; }

private:
    // The text that follows from the step and the hint's translation.
    QString stepText() const;

    // The base class would keep a list of values for an item: as much again as
    // the step takes.
    QJsonObject mStep;
    QString mText; // null: that of the step
    QIcon mIcon;
    bool mGroup = false;
    int mDepth = -1;
    QString mTranslation;
};

} // namespace TutorialEditor
