// SPDX-License-Identifier: MIT
#pragma once

#include "editor/scenario/hostnames.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <array>
#include <optional>

namespace TutorialHost {

struct HostWords;
class WindowRegistry;

// Tells the authoring tool the names that scenarios can use in this program: all
// of them when it begins, and then each list that has become another one.
class NamesFeed : public QObject {
    Q_OBJECT

public:
    // Both outlive the feed.
    NamesFeed(const HostWords& words, const WindowRegistry& registry, QObject* parent = nullptr);

    void start();
    void stop();
    // The host's words may be others. Nothing while it is stopped.
    void update();

signals:
    // The message's fields.
    void told(const QStringList& fields);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void tell();

    const HostWords& mWords;
    const WindowRegistry& mRegistry;
    bool mRunning = false;
    std::array<std::optional<QStringList>, TutorialEditor::HostNames::ListCount> mTold;
    QTimer mTimer;
};

} // namespace TutorialHost
