#include "demo/hostobserver.h"
#include "demo/mainwindow.h"
#include "demo/windowregistry.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QTabWidget>
#include <QtTest>

using namespace Tutorial;

Q_DECLARE_METATYPE(QMessageBox::StandardButton)

// The editor's real windows, seen through the registry and the observer.
class tst_HostWindows : public QObject {
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void stackAndPositions();
    void windowsThatCloseOutOfOrder();
    void howWindowsWereClosed_data();
    void howWindowsWereClosed();
    void fields();
    void listsAndMap();
    void contextMenus();
    void buttonsAreCountedByTab();
    void actions();
    void asksBeforeItOverwrites_data();
    void asksBeforeItOverwrites();

private:
    template <typename Control>
    Control* find(const char* name, QWidget* in = nullptr) const
    {
        return (in ? in : mWindow.get())->findChild<Control*>(QLatin1String(name));
    }
    // Triggers the action and gives the dialog that it opens.
    QWidget* openDialog(const char* action, EnumWindowKind kind);
    QStringList takeEvents();

    std::unique_ptr<WindowRegistry> mRegistry;
    std::unique_ptr<HostObserver> mObserver;
    std::unique_ptr<MainWindow> mWindow;
    // "push KIND", "pop" and "move KIND" as the registry tells them.
    QStringList mTold;
    // Events as conditions would name them.
    QStringList mEvents;
};

void tst_HostWindows::init()
{
    mRegistry = std::make_unique<WindowRegistry>();
    mObserver = std::make_unique<HostObserver>(*mRegistry);
    mWindow = std::make_unique<MainWindow>(*mRegistry);
    connect(mRegistry.get(), &WindowRegistry::pushed, this,
        [this](EnumWindowKind kind) { mTold << QStringLiteral("push %1").arg(kind); });
    connect(
        mRegistry.get(), &WindowRegistry::popped, this, [this] { mTold << QStringLiteral("pop"); });
    connect(mRegistry.get(), &WindowRegistry::moved, this,
        [this](EnumWindowKind kind) { mTold << QStringLiteral("move %1").arg(kind); });
    connect(mObserver.get(), &HostObserver::happened, this, [this](const HostEvent& event) {
        mEvents << (QStringList(getConditionKindName(event.kind)) + event.parameters)
                       .join(QLatin1Char(','));
    });
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
    mTold.clear();
    mEvents.clear();
}

void tst_HostWindows::cleanup()
{
    mWindow.reset();
    mObserver.reset();
    mRegistry.reset();
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

QWidget* tst_HostWindows::openDialog(const char* action, EnumWindowKind kind)
{
    find<QAction>(action)->trigger();
    QWidget* dialog = mRegistry->window(kind);
    // A dialog's window counts as active while its parent's is: look closer.
    if (!dialog || !QTest::qWaitFor([dialog] { return QApplication::activeWindow() == dialog; }))
        qFatal("no dialog was opened");
    return dialog;
}

QStringList tst_HostWindows::takeEvents()
{
    return std::exchange(mEvents, {});
}

void tst_HostWindows::stackAndPositions()
{
    QCOMPARE(mRegistry->stack(), {Window_MainWindow});
    const auto* panel = find<QWidget>("leftPanel");
    const QPoint before = panel->mapToGlobal({});
    mWindow->move(mWindow->pos() + QPoint(17, 5));
    QTRY_COMPARE(panel->mapToGlobal({}), before + QPoint(17, 5));
    QTRY_COMPARE(mRegistry->positions().value(Window_MapEditLeftPanelItem), panel->mapToGlobal({}));
    for (const char* kind : {"move 0", "move 65", "move 66"})
        QVERIFY2(mTold.contains(QLatin1String(kind)), kind);

    mTold.clear();
    QWidget* options = openDialog("Options", Window_Options);
    QVERIFY(mTold.contains(QStringLiteral("push 64")) && mTold.contains(QStringLiteral("move 64")));
    QCOMPARE(mRegistry->topWindow(), options);
    options->close();
    QCOMPARE(mTold.last(), QStringLiteral("pop"));
    QCOMPARE(mRegistry->topWindow(), mWindow.get());
    QVERIFY(!mRegistry->positions().contains(Window_Options));
}

// The link can only pop the last entry, so the ones above are pushed again.
void tst_HostWindows::windowsThatCloseOutOfOrder()
{
    QWidget lower;
    QWidget upper;
    mRegistry->add(Window_PluginHelp, &lower);
    mRegistry->add(Window_SoundTest, &upper);
    lower.show();
    upper.show();
    mTold.clear();
    lower.hide();
    QCOMPARE(mTold,
        (QStringList{QStringLiteral("pop"), QStringLiteral("pop"), QStringLiteral("push 57")}));
    QCOMPARE(mRegistry->stack(), (QList<EnumWindowKind>{Window_MainWindow, Window_SoundTest}));
}

void tst_HostWindows::howWindowsWereClosed_data()
{
    QTest::addColumn<QString>("action");
    QTest::addColumn<QString>("window");
    QTest::addColumn<QString>("button"); // its text; none for the window's own
    QTest::addColumn<QString>("state");
    const QString options = QStringLiteral("Options");
    const QString remove = QStringLiteral("Delete");
    QTest::newRow("OK") << options << "Options"
                        << "OK"
                        << "ok";
    QTest::newRow("Cancel") << options << "Options"
                            << "Cancel"
                            << "cancel";
    QTest::newRow("close button") << options << "Options" << QString() << "cancel";
    QTest::newRow("Yes of a question") << remove << "MessageBox"
                                       << "Delete"
                                       << "ok";
    QTest::newRow("No of a question") << remove << "MessageBox"
                                      << "Keep"
                                      << "cancel";
}

void tst_HostWindows::howWindowsWereClosed()
{
    QFETCH(QString, action);
    QFETCH(QString, button);
    QFETCH(QString, window);
    const EnumWindowKind kind = getWindowKind(window);
    QCOMPARE(mObserver->windowState(kind), QStringLiteral("close"));
    QWidget* dialog = openDialog(action.toLatin1().constData(), kind);
    QCOMPARE(mObserver->windowState(kind), QStringLiteral("open"));
    if (button.isNull())
        dialog->close();
    for (QPushButton* candidate : dialog->findChildren<QPushButton*>()) {
        if (candidate->text() == button)
            candidate->click();
    }
    QTRY_VERIFY(!mRegistry->window(kind));
    QTEST(mObserver->windowState(kind), "state");
}

void tst_HostWindows::fields()
{
    QSignalSpy changed(mObserver.get(), &HostObserver::changed);
    QWidget* dialog = openDialog("Edit Event", Window_EventEditorMain);
    const EnumWindowKind kind = Window_EventEditorMain;

    auto* name = find<QLineEdit>("name", dialog);
    QTest::mouseClick(name, Qt::LeftButton);
    changed.clear();
    QTest::keyClicks(name, QStringLiteral("abc"));
    QCOMPARE(changed.size(), 3);
    QCOMPARE(mObserver->textLength(kind), 3);
    QCOMPARE(mObserver->spinBoxValue(kind), std::nullopt);

    auto* speed = find<QSpinBox>("speed", dialog);
    QTest::mouseClick(speed, Qt::LeftButton);
    QTest::keyClick(speed, Qt::Key_Up);
    QCOMPARE(mObserver->spinBoxValue(kind), 4);
    // The line edit had the focus; that counts on.
    QCOMPARE(mObserver->textLength(kind), 3);
    QCOMPARE(mObserver->textLength(Window_MainWindow), std::nullopt);

    changed.clear();
    find<QComboBox>("trigger", dialog)->setCurrentIndex(4);
    find<QCheckBox>("walkAnime", dialog)->click();
    QVERIFY(changed.size() >= 2);
    QCOMPARE(mObserver->comboBoxRow(kind, QStringLiteral("trigger")), 4);
    QCOMPARE(mObserver->isChecked(kind, QStringLiteral("walkAnime")), true);
    QCOMPARE(mObserver->isChecked(kind, QStringLiteral("trigger")), std::nullopt);
    QCOMPARE(mObserver->comboBoxRow(Window_About, QStringLiteral("trigger")), std::nullopt);
    dialog->close();
}

void tst_HostWindows::listsAndMap()
{
    auto* tiles = find<QListWidget>("listBox1");
    const QPoint third = tiles->visualItemRect(tiles->item(2)).center();
    QTest::mouseClick(tiles->viewport(), Qt::LeftButton, {}, third);
    QStringList events = takeEvents();
    QVERIFY(events.contains(QStringLiteral("list,2")));
    QVERIFY(events.contains(QStringLiteral("mouseEvent,listBox1,click")));
    // A click on the row that is chosen already is a choice as well.
    QTest::mouseClick(tiles->viewport(), Qt::LeftButton, {}, third);
    QVERIFY(takeEvents().contains(QStringLiteral("list,2")));

    auto* map = find<QWidget>("Map");
    QTest::mouseClick(map, Qt::LeftButton, {}, {50, 50});
    QCOMPARE(takeEvents(), {QStringLiteral("mouseEvent,Map,click")});
    QTest::mouseDClick(map, Qt::LeftButton, {}, {50, 50});
    QVERIFY(takeEvents().contains(QStringLiteral("mouseEvent,Map,doubleClick")));
    QTest::mouseClick(map, Qt::RightButton, {}, {50, 50});
    QVERIFY(takeEvents().isEmpty());
}

void tst_HostWindows::contextMenus()
{
    auto* map = find<QWidget>("Map");
    QContextMenuEvent onMap(QContextMenuEvent::Mouse, {50, 50}, map->mapToGlobal({50, 50}));
    QApplication::sendEvent(map, &onMap);
    QCOMPARE(takeEvents(), {QStringLiteral("popup,Map")});
    QCOMPARE(mRegistry->stack().last(), Window_Popup);
    QApplication::activePopupWidget()->close();

    // A menu of the menu bar is a Popup too, but no context menu.
    find<QMenuBar>("")->actions().first()->menu()->popup({});
    QCOMPARE(mRegistry->stack().last(), Window_Popup);
    QVERIFY(takeEvents().isEmpty());
    QApplication::activePopupWidget()->close();
}

void tst_HostWindows::buttonsAreCountedByTab()
{
    QWidget* dialog = openDialog("Database", Window_DatabaseMain);
    auto* tabs = find<QTabWidget>("pages", dialog);
    const auto clickButton = [tabs](const QString& text) {
        for (QPushButton* button : tabs->currentWidget()->findChildren<QPushButton*>()) {
            if (button->text() == text)
                button->click();
        }
    };
    takeEvents();
    clickButton(QStringLiteral("Add"));
    QVERIFY(takeEvents().contains(QStringLiteral("pressed,0,0")));
    tabs->setCurrentIndex(1);
    clickButton(QStringLiteral("Remove"));
    QVERIFY(takeEvents().contains(QStringLiteral("pressed,1,1")));
    dialog->close();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));

    dialog = openDialog("Delete", Window_MessageBox);
    dialog->findChildren<QPushButton*>().last()->click();
    QVERIFY(takeEvents().contains(QStringLiteral("pressed,0,1")));
}

void tst_HostWindows::actions()
{
    find<QAction>("Zoom In")->trigger();
    QCOMPARE(takeEvents(), {QStringLiteral("action,Zoom In")});
    QVERIFY(!mWindow->loadPreset(QStringLiteral("nothing")));
    QVERIFY(mWindow->loadPreset(QStringLiteral("empty")));
    QVERIFY(takeEvents().contains(QStringLiteral("action,Project Loaded")));
}

void tst_HostWindows::asksBeforeItOverwrites_data()
{
    QTest::addColumn<bool>("exists");
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::addColumn<int>("requests");
    QTest::newRow("new") << false << QMessageBox::NoButton << 1;
    QTest::newRow("keep") << true << QMessageBox::No << 0;
    QTest::newRow("overwrite") << true << QMessageBox::Yes << 1;
}

// Also when the author leaves the suffix to the dialog.
void tst_HostWindows::asksBeforeItOverwrites()
{
    QFETCH(bool, exists);
    QFETCH(QMessageBox::StandardButton, answer);
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("lesson.js")));
    QVERIFY(!exists || file.open(QIODevice::WriteOnly));
    QSignalSpy requests(mWindow.get(), &MainWindow::newTutorialRequested);

    auto* dialog = qobject_cast<QFileDialog*>(openDialog("New Tutorial", Window_FileDialog));
    QVERIFY(dialog);
    dialog->setDirectory(folder.path());
    find<QLineEdit>("fileNameEdit", dialog)->setText(QStringLiteral("lesson"));
    int questions = 0;
    QTimer::singleShot(0, this, [&] {
        if (auto* question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
            ++questions;
            question->button(answer)->click();
        }
    });
    find<QDialogButtonBox>("buttonBox", dialog)->button(QDialogButtonBox::Save)->click();
    QTRY_COMPARE(questions, int(exists));
    QTEST(requests.size(), "requests");
    if (!requests.isEmpty())
        QCOMPARE(requests.first().first().toString(), file.fileName());
    dialog->close();
}

QTEST_MAIN(tst_HostWindows)
#include "tst_hostwindows.moc"
