// SPDX-License-Identifier: MIT
#pragma once

#include "overlay/overlayowner.h"
#include "tutorial/runtime/packetreader.h"
#include "tutorial/vocabulary/vocabulary.h"

#include <QList>
#include <QPoint>
#include <QRect>
#include <QStringView>
#include <QVector>

class QApplication;
class QLocalSocket;
class TutorialIndicator;
class TutorialLog;

// The running tutorial: the link to the host, the state that the host's
// messages switch, the picture of the host's windows, and the overlay.
//
// It is made on the heap and ends itself: on the host's "bye", after 30 seconds
// without a sign of life, on close(), or at once when the connection id is
// empty. Its destructor quits the application.
class TutorialManager : public OverlayOwner {
    Q_OBJECT

public:
    // The first manager of the process; null when there is none.
    static TutorialManager* mInstance;

    // Reads the connection id from the application's first argument and
    // connects to the host's server "vemo<id>".
    explicit TutorialManager(QApplication* application);
    ~TutorialManager() override;

    // A hook behind the construction.
    void init();
    // Ends the link, closes the overlay windows and deletes this later.
    void close();

    // The link. A message that is sent before the connection stands is dropped, and
    // so is one that comes when the host has left too much unread.
    void send(const QString& message) override;
    // Handles the bytes of one read, and counts as a sign of life whatever they
    // are. A packet that the read cuts in two is handled with the next one.
    // endsBurst: whether no more than these bytes have arrived at once.
    void handleRead(const QByteArray& data, bool endsBurst = true);
    // Puts a backslash before each double quote and each backslash.
    static QString getEscapedString(const QString& text);
    // Takes such a text back to what it was.
    static QString getUnescapedString(const QString& text);

    // The running state.
    void start();
    void stop();
    void setupTutorial();
    bool isRunning() const override { return mRunning; }
    // Milliseconds since the indicator was last initialised, at the precision of
    // a float; 0 without an indicator.
    int passedTime() const;

    // Requests of the authoring tool.
    //
    // Asks the host to run its scenario from a step. indexList: the step's row
    // at each level of grouping, outermost first.
    void startFromActionIndexList(const QList<int>& indexList);
    // Asks the host to look up a text. first: the key that the answer carries,
    // second: the text, sent as it is.
    void requestUntr(const QString& first, const QString& second);
    // Asks the host to let the author pick a point.
    void requestCoordinates();
    // Tells the host about the authoring tool: the message's fields after "editor".
    void sendEditor(const QStringList& fields);
    // A hook: whether the step in the form follows the tree box.
    void requestCheckMapEditTreeBox(bool followsTreeBox);

    // The host's windows. Points are screen pixels, the stack's top is its last
    // entry.
    QRect hostRect() const override { return mHostRect; }
    // The top of the stack; the main window when the stack is empty.
    Tutorial::EnumWindowKind getCurrentWindowKind() const;
    // The entry so many places below the top; WindowKindCount when there is none.
    Tutorial::EnumWindowKind getLastWindowKind(int depth) const;
    // Removes a popup from the top, and then the top when it is of this kind.
    void popWindowStack(Tutorial::EnumWindowKind kind);
    // Removes a popup from the top.
    void reorderWindow() override;
    // The stored position; (0, 0) for a kind that is none.
    QPoint getXy(Tutorial::EnumWindowKind kind) const override;
    QPoint getXy(QObject* object) const;
    // Stores a position; a kind that is none changes nothing.
    void setXy(Tutorial::EnumWindowKind kind, int x, int y);
    // The kind of an object by its class name, "<kind>_QMLTYPE_..." or
    // "Dialog_<kind>_QMLTYPE_..."; WindowKindCount for any other.
    Tutorial::EnumWindowKind getWindowKind(QObject* object) const;
    static Tutorial::EnumWindowKind getWindowKind(const QString& name);
    QObject* getWindowObject(Tutorial::EnumWindowKind kind) const;
    int getWindowState(Tutorial::EnumWindowKind kind) const;
    QPoint getPopupPoint() const { return mPopupPoint; }

    // Whether the overlay may be seen: the host has not hidden it, or this
    // process is the active application.
    bool isToBeShown() const;
    void updateVisibility() override;

    // Reports the target to the host and points the indicator at it.
    // x, y: offset in the window in pixels, both kNoCoordinate for no target;
    // hint: plain or rich text; flags: a set of Tutorial::IndicatorFlag. Nothing
    // is shown any more when the host is lost.
    void updateIndicator(int x, int y, Tutorial::EnumWindowKind windowKind, const QString& hint,
        int flags, Tutorial::EnumIconKind iconKind);

public slots:
    void onApplicationStateChanged(Qt::ApplicationState state);
    void onReceived(const QString& message);
    void onReadyRead();
    void onConnected();

signals:
    // One message of the host, its fields separated by the byte 0x01.
    void received(const QString& message);

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    using Fields = QVector<QStringView>;
    static constexpr int kUnknownWindowState = 4;

    // A server that cannot be reached is told in the log, and changes nothing.
    void onSocketError();
    // Whether the connection stood once and does not any more.
    bool isHostLost() const;
    // Handlers of the host's messages. Fields come as they arrived, the name
    // first; a handler that misses a field changes nothing.
    void onStart(const Fields& fields);
    void onIndicator(const Fields& fields);
    void onState(const Fields& fields);
    void onWindowStack(const Fields& fields);
    void onWindowPosition(const Fields& fields);

    void pointIndicator(int x, int y, Tutorial::EnumWindowKind windowKind, const QString& hint,
        int flags, Tutorial::EnumIconKind iconKind);
    void showOverlay();
    void hideOverlay();
    void dropPopup();

    TutorialIndicator* mIndicator = nullptr;
    TutorialLog* mLog = nullptr;
    QObject* mWindowObjects[Tutorial::WindowKindCount] = {};
    QPoint mWindowPositions[Tutorial::WindowKindCount];
    void* mScenarioHandle = nullptr;
    int mScenarioStepIndex = -1;
    QPoint mPopupPoint;
    QList<Tutorial::EnumWindowKind> mWindowStack;
    QApplication* mApplication;
    Tutorial::EnumWindowKind mStateWindowKind = Tutorial::WindowKindCount;
    int mStateValue = kUnknownWindowState;
    QLocalSocket* mSocket = nullptr;
    PacketReader mPackets;
    bool mHiddenByHost = false;
    bool mRunning = false;
    bool mApplicationActive = false;
    int mTimerId = 0;
    int mSilenceTicks = 0;
    int mAliveTicks = 0;
    bool mConnected = false;
    bool mHostIsBehind = false; // has left too much unread
    QRect mHostRect;
};
