// SPDX-License-Identifier: MIT
#include "hostkit/authoring.h"
#include "hostkit/session.h"
#include "hostkit/windows/windowregistry.h"
#include "tests/hostkit/guestlink.h"

#include <QtWidgets>

#include <memory>

using namespace Tutorial;
using namespace TutorialHost;

namespace {

template <typename Widget>
Widget* named(const char* name, Widget* widget)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

// What a program has that targets are in, and hidden by.
class Window : public QMainWindow {
public:
    Window()
    {
        setObjectName(QStringLiteral("editor"));
        view = menuBar()->addMenu(QStringLiteral("View"));
        dock = named("layersDock", new QDockWidget(QStringLiteral("Layers")));
        dock->setWidget(named("layers", new QListWidget));
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        view->addAction(dock->toggleViewAction());

        tabs = named("tabs", new QTabWidget);
        button = named("apply", new QPushButton(QStringLiteral("Apply")));
        auto* page = new QWidget;
        auto* layout = new QVBoxLayout(page);
        label = new QLabel(QStringLiteral("Name"));
        layout->addWidget(label);
        layout->addWidget(button, 0, Qt::AlignLeft);
        list = named("maps", new QListWidget);
        for (int i = 0; i < 60; ++i)
            list->addItem(QStringLiteral("Island %1").arg(i));
        layout->addWidget(list);
        tabs->addTab(page, QStringLiteral("General"));
        tabs->addTab(
            named("swatch", new QPushButton(QStringLiteral("Red"))), QStringLiteral("Colours"));
        setCentralWidget(tabs);
        resize(640, 420);
    }

    QMenu* view;
    QDockWidget* dock;
    QTabWidget* tabs;
    QPushButton* button;
    QLabel* label;
    QListWidget* list;
};

} // namespace

// A session, and the arrow as the tutorial is told of it.
class tst_Following : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void followsWhatMoves();
    void leadsToWhatIsHidden_data();
    void leadsToWhatIsHidden();
    void scrollsOnce();
    void waitsForAModalDialog();
    void pointsAtNothingElse();
    void fallsBackWithoutTheTarget_data();
    void fallsBackWithoutTheTarget();
    void previewsTheTarget();
    void namesWhatIsPicked();
    void tellsTheNames();

private:
    void play(const QByteArray& steps);
    bool isShown() const { return mSession->player().isShown(); }
    // Where the arrow's tip was sent to last.
    QPoint tip() const;
    // Opens the file in an authoring tool of the test's.
    void edit(Authoring& authoring);
    QStringList names(const char* list) const;
    bool isTipIn(const QWidget* widget, const QRect& part = {}) const;
    bool hasArrow() const;
    bool comesTo(const QWidget* widget) const
    {
        return QTest::qWaitFor([&] { return isTipIn(widget); });
    }

    QTemporaryDir mFolder;
    std::unique_ptr<GuestLink> mGuest;
    std::unique_ptr<WindowRegistry> mRegistry;
    std::unique_ptr<Window> mWindow;
    std::unique_ptr<Session> mSession;
};

void tst_Following::init()
{
    mGuest = std::make_unique<GuestLink>();
    mRegistry = std::make_unique<WindowRegistry>();
    mWindow = std::make_unique<Window>();
    mRegistry->add(Window_MainWindow, mWindow.get());
    mSession = std::make_unique<Session>(mGuest->program(), *mRegistry);
    mSession->words().addWindow(QStringLiteral("MainWindow"));
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(mWindow.get()));
}

void tst_Following::cleanup()
{
    // Gone first, so that nobody waits for its program to end.
    mGuest.reset();
    QTRY_VERIFY(!mSession->link().isConnected());
    mSession.reset();
    mWindow.reset();
    mRegistry.reset();
}

void tst_Following::play(const QByteArray& steps)
{
    QFile file(mFolder.filePath(QStringLiteral("steps.js")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("var scenario = [" + steps + "];\n");
    file.close();
    QVERIFY(mSession->play(file.fileName()));
    QVERIFY(mGuest->connectToHost());
}

QPoint tst_Following::tip() const
{
    const QStringList sent = mGuest->last(QStringLiteral("indicator"), QStringLiteral("updateXy"));
    return QPoint(sent.value(2).toInt(), sent.value(3).toInt()) + QPoint(38, 165);
}

bool tst_Following::isTipIn(const QWidget* widget, const QRect& part) const
{
    return widget->isVisible()
        && (part.isNull() ? widget->rect() : part).contains(widget->mapFromGlobal(tip()));
}

bool tst_Following::hasArrow() const
{
    const QStringList sent = mGuest->last(QStringLiteral("indicator"), QStringLiteral("update"));
    return sent.size() > 6 && !(sent.at(6).toInt() & HideArrowFlag)
        && sent.at(2).toInt() != kNoCoordinate;
}

void tst_Following::followsWhatMoves()
{
    play(R"({"condition": "action,x", "target": "tabs/apply", "x": 1, "y": 1})");
    const QPushButton* button = mWindow->button;
    QTRY_VERIFY(isTipIn(button));
    QVERIFY(hasArrow());

    QPoint before = tip();
    const auto follows = [&](const char* what) {
        const bool moved =
            QTest::qWaitFor([&] { return tip() != before && isTipIn(button); }, 3000);
        if (!moved)
            qWarning("%s: the tip is at %d, %d", what, tip().x(), tip().y());
        before = tip();
        return moved;
    };
    mWindow->move(mWindow->pos() + QPoint(30, 20));
    QVERIFY(follows("the window moves"));
    mWindow->dock->close();
    QVERIFY(follows("a dock closes"));
    mWindow->label->setMinimumHeight(80);
    QVERIFY(follows("something else grows"));
    QFont font = mWindow->font();
    font.setPointSize(font.pointSize() * 2);
    mWindow->setFont(font);
    QVERIFY(follows("another font"));
    mWindow->button->setText(QStringLiteral("Anwenden und noch einiges mehr"));
    QVERIFY(follows("another text"));
    mWindow->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(follows("another direction"));

    // Nothing is sent while nothing moves.
    QTest::qWait(200);
    mGuest->received.clear();
    QTest::qWait(300);
    QVERIFY(mGuest->last(QStringLiteral("indicator"), QStringLiteral("updateXy")).isEmpty());
}

void tst_Following::leadsToWhatIsHidden_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::newRow("closed dock") << QByteArray("layers");
    QTest::newRow("another tab") << QByteArray("swatch");
}

void tst_Following::leadsToWhatIsHidden()
{
    QFETCH(QByteArray, target);
    mWindow->dock->close();
    play("{\"condition\": \"action,x\", \"target\": \"" + target + "\", \"x\": 1, \"y\": 1}");
    const auto* widget = mWindow->findChild<QWidget*>(QLatin1String(target));
    const auto isThere = [&] { return isTipIn(widget); };
    QTRY_VERIFY(isShown());
    // As many clicks as a tab, or a menu and its entry, take.
    for (int clicks = 0; clicks < 2 && !isThere(); ++clicks) {
        const QPoint point = tip();
        QWidget* hit = QApplication::activePopupWidget() ? QApplication::activePopupWidget()
                                                         : QApplication::widgetAt(point);
        QVERIFY(hit);
        QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFromGlobal(point));
        QTRY_VERIFY(tip() != point);
    }
    QTRY_VERIFY(isThere());
}

// What the learner scrolls away later is led to.
void tst_Following::scrollsOnce()
{
    play(R"({"condition": "action,x", "target": "maps[Island 50]"})");
    const QListWidget* list = mWindow->list;
    const auto isAtRow = [&] {
        return isTipIn(list->viewport(), list->visualItemRect(list->item(50)));
    };
    QTRY_VERIFY(isAtRow());
    QVERIFY(hasArrow());
    list->verticalScrollBar()->setValue(list->verticalScrollBar()->value() + 2);
    QTRY_VERIFY(isAtRow());
    list->verticalScrollBar()->setValue(0);
    QTRY_VERIFY(isTipIn(list->verticalScrollBar()));
    delete list->item(0);
    list->verticalScrollBar()->setValue(48);
    QTRY_VERIFY(isTipIn(list->viewport(), list->visualItemRect(list->item(49))));
}

void tst_Following::waitsForAModalDialog()
{
    mSession->words().addWindow(QStringLiteral("Question"));
    play(R"({"condition": "windowState,Question,open", "target": "apply"},
            {"condition": "windowState,Question,ok", "target": "Question/okButton"},
            {"condition": "click", "target": "tabs[General]"})");
    QTRY_VERIFY(isTipIn(mWindow->button));
    const EnumWindowKind kind = mSession->words().window(QStringLiteral("Question"));
    const auto ask = [&](const std::function<void(QDialog&, QPushButton*)>& answer) {
        QDialog dialog(mWindow.get());
        auto* ok = named("okButton", new QPushButton(QStringLiteral("OK"), &dialog));
        mRegistry->add(kind, &dialog);
        QTimer::singleShot(0, this, [&] { answer(dialog, ok); });
        dialog.exec();
    };
    // The learner closes it too early, and is led into it again.
    ask([&](QDialog& dialog, QPushButton* ok) {
        QVERIFY(comesTo(ok));
        dialog.move(dialog.pos() + QPoint(40, 40));
        QVERIFY(comesTo(ok));
        dialog.reject();
    });
    QTRY_VERIFY(isTipIn(mWindow->button));
    ask([&](QDialog& dialog, QPushButton* ok) {
        QVERIFY(comesTo(ok));
        dialog.accept();
    });
    QTRY_VERIFY(isTipIn(mWindow->tabs->tabBar(), mWindow->tabs->tabBar()->tabRect(0)));
}

void tst_Following::pointsAtNothingElse()
{
    QStringList missing;
    connect(mSession.get(), &Session::targetMissing, this,
        [&](const Step& step) { missing << step.target; });
    play(
        R"({"condition": "click", "target": "apply", "followWindow": "MainWindow", "x": 1, "y": 1})");
    QTRY_VERIFY(isTipIn(mWindow->button));
    QVERIFY(hasArrow());
    const QPoint before = tip();
    delete mWindow->button;
    // Its x and y are another place.
    mWindow->move(mWindow->pos() + QPoint(30, 0));
    QTRY_VERIFY(!hasArrow());
    QCOMPARE(missing.size(), 1);
    QCOMPARE(tip(), before);
    QVERIFY(!hasArrow());

    auto* again = named("apply", new QPushButton(mWindow->centralWidget()));
    again->move(200, 200);
    again->show();
    QTRY_VERIFY(isTipIn(again));
    QVERIFY(hasArrow());
    again->hide();
    QTRY_VERIFY(!hasArrow());
}

void tst_Following::fallsBackWithoutTheTarget_data()
{
    QTest::addColumn<QByteArray>("place");
    QTest::newRow("point") << QByteArray(", \"x\": 70, \"y\": 80");
    QTest::newRow("no point") << QByteArray();
}

void tst_Following::fallsBackWithoutTheTarget()
{
    QFETCH(QByteArray, place);
    QStringList missing;
    connect(mSession.get(), &Session::targetMissing, this,
        [&](const Step& step) { missing << step.target; });
    play(R"({"condition": "click", "target": "later", "followWindow": "MainWindow")" + place + '}');
    const auto isAtPoint = [&] {
        return place.isEmpty() ? !hasArrow()
                               : tip() == mSession->originOf(Window_MainWindow) + QPoint(70, 80);
    };
    QTRY_COMPARE(missing.size(), 1);
    QTRY_VERIFY(isAtPoint());
    mWindow->move(mWindow->pos() + QPoint(30, 0));
    QTRY_VERIFY(isAtPoint());
    auto* later = named("later", new QPushButton(mWindow->centralWidget()));
    later->move(300, 200);
    later->show();
    QTRY_VERIFY(isTipIn(later));
    QVERIFY(hasArrow());
    QCOMPARE(missing, QStringList{QStringLiteral("later")});
}

void tst_Following::edit(Authoring& authoring)
{
    authoring.edit(mFolder.filePath(QStringLiteral("edited.js")));
    QVERIFY(mGuest->connectToHost());
    QTRY_VERIFY(!mGuest->last(QStringLiteral("editor"), QStringLiteral("open")).isEmpty());
}

QStringList tst_Following::names(const char* list) const
{
    for (int i = mGuest->received.size() - 1; i >= 0; --i) {
        const QStringList fields = mGuest->received.at(i);
        if (fields.value(1) == QLatin1String("names") && fields.value(2) == QLatin1String(list))
            return fields.mid(3);
    }
    return {};
}

void tst_Following::previewsTheTarget()
{
    Authoring authoring(*mSession, *mRegistry);
    edit(authoring);
    const auto select = [&](const char* target) {
        if (target)
            mGuest->send(
                {QStringLiteral("editor"), QStringLiteral("target"), QLatin1String(target)});
        mGuest->send({QStringLiteral("indicator"), QStringLiteral("updateXYFollowWindow"),
            QStringLiteral("70"), QStringLiteral("80"), QString::number(Window_MainWindow)});
    };
    const auto isAtPoint = [&] {
        return tip() == mSession->originOf(Window_MainWindow) + QPoint(70, 80);
    };
    select("apply");
    QTRY_VERIFY(isTipIn(mWindow->button));
    mWindow->move(mWindow->pos() + QPoint(20, 20));
    mWindow->dock->close();
    QTRY_VERIFY(isTipIn(mWindow->button));
    select("swatch");
    QTRY_VERIFY(isTipIn(mWindow->tabs->tabBar(), mWindow->tabs->tabBar()->tabRect(1)));
    select("nothing");
    QTRY_VERIFY(isAtPoint());
    select("apply");
    QTRY_VERIFY(isTipIn(mWindow->button));
    // A tool that sends none has none.
    select(nullptr);
    QTRY_VERIFY(isAtPoint());
}

void tst_Following::namesWhatIsPicked()
{
    Authoring authoring(*mSession, *mRegistry);
    edit(authoring);
    const auto pick = [&](QWidget* widget, const QPoint& place) {
        mGuest->received.clear();
        mGuest->send({QStringLiteral("coordinates"), QStringLiteral("request")});
        QTRY_COMPARE(QGuiApplication::overrideCursor() != nullptr, true);
        QTest::mouseClick(widget, Qt::LeftButton, {}, place);
        QTRY_VERIFY(!mGuest->last(QStringLiteral("editor"), QStringLiteral("target")).isEmpty());
        QVERIFY(!mGuest->last(QStringLiteral("editor"), QStringLiteral("coordinates")).isEmpty());
    };
    const auto picked = [&] {
        return mGuest->last(QStringLiteral("editor"), QStringLiteral("target")).value(2);
    };
    pick(mWindow->button, mWindow->button->rect().center());
    QCOMPARE(picked(), QStringLiteral("MainWindow/apply"));
    pick(mWindow->tabs->tabBar(), mWindow->tabs->tabBar()->tabRect(1).center());
    QCOMPARE(picked(), QStringLiteral("MainWindow/tabs[Colours]"));
    QDialog nameless;
    nameless.resize(300, 300);
    nameless.move(600, 300);
    nameless.show();
    QVERIFY(QTest::qWaitForWindowExposed(&nameless));
    pick(&nameless, QPoint(20, 20));
    QCOMPARE(picked(), QString());
}

void tst_Following::tellsTheNames()
{
    mSession->words().addWindow(QStringLiteral("Notes"));
    mSession->words().conditions.insert(
        QStringLiteral("lines"), [](const QStringList&) { return false; });
    mWindow->view->actions().first()->setObjectName(QStringLiteral("Show Layers"));
    Authoring authoring(*mSession, *mRegistry);
    edit(authoring);
    QTRY_VERIFY(!names("targets").isEmpty());
    QCOMPARE(names("windows"),
        (QStringList{
            QStringLiteral("MainWindow"), QStringLiteral("Notes"), QStringLiteral("Popup")}));
    QCOMPARE(names("actions"), QStringList{QStringLiteral("Show Layers")});
    QCOMPARE(names("lists"), (QStringList{QStringLiteral("layers"), QStringLiteral("maps")}));
    QCOMPARE(names("conditions"), QStringList{QStringLiteral("lines")});
    for (const char* target : {"MainWindow/apply", "MainWindow", "action:Show Layers"})
        QVERIFY(names("targets").contains(QLatin1String(target)));

    // Again when it changes, and only what did.
    mGuest->received.clear();
    QDialog dialog;
    dialog.setObjectName(QStringLiteral("ask"));
    named("deep", new QCheckBox(&dialog));
    named("kind", new QComboBox(&dialog));
    dialog.show();
    QTRY_COMPARE(names("check boxes"), QStringList{QStringLiteral("deep")});
    QTRY_COMPARE(names("combo boxes"), QStringList{QStringLiteral("kind")});
    QTRY_VERIFY(names("targets").contains(QStringLiteral("ask/deep")));
    QVERIFY(names("actions").isEmpty());
    mGuest->received.clear();
    mSession->words().commands.insert(QStringLiteral("openFile"));
    authoring.updateNames();
    QTRY_COMPARE(names("commands"), QStringList{QStringLiteral("openFile")});
    // Not to a tool that was closed.
    mGuest->send({QStringLiteral("editor"), QStringLiteral("closed")});
    mGuest->received.clear();
    QTest::qWait(50);
    named("late", new QCheckBox(&dialog))->show();
    QTest::qWait(500);
    QVERIFY(names("check boxes").isEmpty());
}

QTEST_MAIN(tst_Following)
#include "tst_following.moc"
