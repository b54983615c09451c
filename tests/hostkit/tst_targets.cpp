// SPDX-License-Identifier: MIT
#include "editor/scenario/checker.h"
#include "hostkit/targets/targetresolver.h"

#include <QtTest>
#include <QtWidgets>

using namespace TutorialHost;

Q_DECLARE_METATYPE(TutorialHost::Target::State)

namespace {

// The parts of a path in one line: names and items apart, quoted items marked.
QString shown(const TargetPath& path)
{
    QStringList parts;
    if (!path.action.isEmpty())
        parts << QStringLiteral("!") + path.action;
    for (const TargetPath::Segment& segment : path.segments) {
        parts << segment.name;
        for (const TargetPath::Item& item : segment.items)
            parts << (item.number() < 0 ? QStringLiteral("'") : QStringLiteral("#")) + item.text;
    }
    if (path.place)
        parts << QStringLiteral("%1 %2").arg(path.place->x()).arg(path.place->y());
    return parts.join(QLatin1Char('|'));
}

template <typename Widget>
Widget* named(const char* name, Widget* widget)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

// A host with one of everything that a target may be, or be hidden behind.
class Window : public QMainWindow {
public:
    Window()
    {
        setObjectName(QStringLiteral("editor"));
        menus = menuBar()->addMenu(QStringLiteral("&File"));
        find = addTo(menus, "Find", QStringLiteral("&Find..."));
        QMenu* recent = menus->addMenu(QStringLiteral("Recent"));
        addTo(recent, "Clear Recent", QStringLiteral("Clear"));
        bar = addToolBar(QStringLiteral("Tools"));
        bar->addAction(find);
        // In a context menu only.
        addTo(new QMenu(this), "Rename", QStringLiteral("Rename"));

        dock = named("layersDock", new QDockWidget(QStringLiteral("Layers")));
        dock->setWidget(named("layers", new QListWidget));
        addDockWidget(Qt::LeftDockWidgetArea, dock);
        menus->addAction(dock->toggleViewAction());

        tabs = named("tabs", new QTabWidget);
        for (const char* title : {"General", "&Colours"}) {
            auto* page = new QWidget;
            auto* layout = new QVBoxLayout(page);
            layout->addWidget(named("apply", new QPushButton(QStringLiteral("Apply"))));
            if (tabs->count() == 0) {
                layout->addWidget(named("name", new QLineEdit));
                kind = named("kind", new QComboBox);
                layout->addWidget(kind);
                kind->addItems({QStringLiteral("Round"), QStringLiteral("2")});
            } else {
                layout->addWidget(named("swatch", new QLabel(QStringLiteral("red"))));
            }
            tabs->addTab(page, QLatin1String(title));
        }

        tree = named("maps", new QTreeWidget);
        tree->setColumnCount(2);
        auto* world = new QTreeWidgetItem(tree, {QStringLiteral("World"), QStringLiteral("1")});
        for (int i = 0; i < 60; ++i)
            new QTreeWidgetItem(world, {QStringLiteral("Island %1").arg(i)});
        new QTreeWidgetItem(tree, {QStringLiteral("a/b[c]@d\"e\\")});
        tree->setFixedHeight(120);

        auto* contents = new QWidget;
        contents->setFixedSize(1500, 1500);
        auto* far = named("far", new QPushButton(QStringLiteral("Far"), contents));
        far->setGeometry(1300, 1300, 90, 30);
        area = named("area", new QScrollArea);
        area->setWidget(contents);

        auto* centre = new QWidget;
        auto* layout = new QVBoxLayout(centre);
        for (QWidget* widget : QList<QWidget*>{tabs, tree, area})
            layout->addWidget(widget);
        setCentralWidget(centre);
        resize(700, 800);
    }

    QAction* addTo(QMenu* menu, const char* name, const QString& text)
    {
        return named(name, menu->addAction(text));
    }

    QMenu* menus;
    QAction* find;
    QToolBar* bar;
    QDockWidget* dock;
    QTabWidget* tabs;
    QComboBox* kind;
    QTreeWidget* tree;
    QScrollArea* area;
};

} // namespace

class tst_Targets : public QObject {
    Q_OBJECT

private slots:
    void takesPathsApart_data();
    void takesPathsApart();
    void finds_data();
    void finds();
    void leadsToWhatIsHidden();
    void leadsToDocks();
    void leadsThroughMenus();
    void pointsWhereAReaderBegins();
    void takesTheNearestAndTheFrontOne();
    void describes_data();
    void describes();

private:
    void openWindow();
    Target::State state(const char* target);
    void press(const char* target);

    std::unique_ptr<Window> mWindow;
    TargetResolver mResolver;
};

void tst_Targets::openWindow()
{
    mWindow = std::make_unique<Window>();
    mWindow->show();
    QVERIFY(QTest::qWaitForWindowActive(mWindow.get()));
}

Target::State tst_Targets::state(const char* target)
{
    return mResolver.resolve(QLatin1String(target)).state;
}

// A click at the place where the target is, or leads.
void tst_Targets::press(const char* target)
{
    const Target found = mResolver.resolve(QLatin1String(target));
    QVERIFY(found.widget);
    QTest::mouseClick(found.widget, Qt::LeftButton, {}, found.widget->mapFromGlobal(found.point));
}

void tst_Targets::takesPathsApart_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("parts");
    const auto row = [](const char* text, const char* parts) {
        QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(parts);
    };
    row("find/closeButton", "find|closeButton");
    row("action:Flood Fill", "!Flood Fill");
    row("action:Find@0,1", "!Find|0 1");
    row("settings/tabs[Colours]", "settings|tabs|'Colours");
    row("maps[0][12]/edit", "maps|#0|#12|edit");
    row("canvas@0.25,0.5", "canvas|0.25 0.5");
    row("maps[\"12\"]@.5, 1e-1", "maps|'12|0.5 0.1");
    row(R"(a\/b/c\[d\]\@e\\)", "a/b|c[d]@e\\");
    row(R"("a/b[\"c\"]@"["]\\"])", "a/b[\"c\"]@|']\\");
    row(R"("action:x"/y)", "action:x|y");
    row("say \"hi\"", "say \"hi\"");
    row("maps[-1][]1]", "");
    row("maps[99999999999]", "maps|'99999999999");
    row("Größe[Îles]", "Größe|'Îles");
    for (const char* malformed : {"", "/", "a/", "/a", "a//b", "[x]", "a[", "a[x", "a[]", "a]",
             "a[x]b", "\"a", "\"a\"b", "a\\", "a@", "a@1", "a@0,2", "a@-1,0", "a@nan,0", "a@0,0,0",
             "a@0,0/b", "action:", "action:a/b", "action:a[b]"})
        row(malformed, "");
}

void tst_Targets::takesPathsApart()
{
    QFETCH(QString, text);
    QFETCH(QString, parts);
    const TargetPath path = TargetPath::fromText(text);
    QCOMPARE(shown(path), parts);
    QCOMPARE(path.fault.isEmpty(), !parts.isEmpty());
    // What the checker refuses is what nothing is looked for. It takes no target
    // for none at all.
    const auto problems = TutorialEditor::Checker::checkSteps(
        {QJsonObject{{QStringLiteral("condition"), QStringLiteral("click,")},
            {QStringLiteral("hint"), QStringLiteral("qsTr(\"Go on.\")")},
            {QStringLiteral("target"), text}}});
    const bool isRefused = std::any_of(problems.begin(), problems.end(),
        [](const auto& problem) { return problem.rule == TutorialEditor::Rule::MalformedTarget; });
    QCOMPARE(isRefused, parts.isEmpty() && !text.isEmpty());
    if (path.fault.isEmpty())
        QCOMPARE(shown(TargetPath::fromText(path.toText())), parts);
}

void tst_Targets::finds_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<Target::State>("state");
    // Class of the widget in which the place is.
    QTest::addColumn<QString>("where");
    const auto row = [](const char* target, Target::State state, const char* where) {
        QTest::newRow(target) << QString::fromUtf8(target) << state << QString::fromLatin1(where);
    };
    row("editor", Target::Shown, "QMainWindow");
    row("editor/name", Target::Shown, "QLineEdit");
    row("name", Target::Shown, "QLineEdit");
    row("editor/tabs/name@0,1", Target::Shown, "QLineEdit");
    row("editor/tabs[Colours]", Target::Shown, "QTabBar");
    row("editor/tabs[1]", Target::Shown, "QTabBar");
    row("editor/tabs[General]/apply", Target::Shown, "QPushButton");
    row("editor/tabs[1]/apply", Target::Led, "QTabBar");
    row("editor/swatch", Target::Led, "QTabBar");
    row("editor/maps[World]", Target::Shown, "QWidget");
    row("editor/maps[1]", Target::Shown, "QWidget");
    row("editor/maps[World][3]", Target::Led, "QWidget");
    row("editor/maps[\"a/b[c]@d\\\"e\\\\\"]", Target::Shown, "QWidget");
    row("editor/kind[Round]", Target::Led, "QComboBox");
    row("editor/kind[\"2\"]", Target::Led, "QComboBox");
    row("editor/far", Target::Led, "QScrollBar");
    row("action:Find", Target::Shown, "QToolButton");
    row("action:Clear Recent", Target::Led, "QMenuBar");
    row("action:Rename", Target::Hidden, "");
    row("editor/kind[Square]", Target::Missing, "");
    row("editor/maps[7]", Target::Missing, "");
    row("editor/maps[World][60]", Target::Missing, "");
    row("editor/name[0]", Target::Missing, "");
    row("editor/nothing", Target::Missing, "");
    row("nothing/name", Target::Missing, "");
    row("action:Nothing", Target::Missing, "");
    row("a//b", Target::Missing, "");
    row("item 3", Target::Shown, "");
}

void tst_Targets::finds()
{
    QFETCH(QString, target);
    QFETCH(Target::State, state);
    QFETCH(QString, where);
    openWindow();
    mResolver.setLocator([this](const QString& asked) -> std::optional<QRect> {
        if (asked != QLatin1String("item 3"))
            return {};
        return QRect(mWindow->mapToGlobal(QPoint(9, 9)), QSize(30, 30));
    });
    // The second time by what was found.
    for (int i = 0; i < 2; ++i) {
        const Target found = mResolver.resolve(target);
        QCOMPARE(found.state, state);
        QCOMPARE(found.reason.isEmpty(), found.isOnScreen());
        QCOMPARE(found.rect.contains(found.point), found.isOnScreen());
        if (where.isEmpty())
            continue;
        QVERIFY(found.widget->inherits(where.toLatin1()));
        QVERIFY(found.widget->rect().contains(found.widget->mapFromGlobal(found.point)));
    }
}

// What is pressed where the target leads shows it.
void tst_Targets::leadsToWhatIsHidden()
{
    openWindow();
    press("swatch");
    QCOMPARE(state("swatch"), Target::Shown);
    // Nobody has pressed a tab for this one.
    QCOMPARE(state("tabs[0]/apply"), Target::Led);

    mResolver.reveal(QStringLiteral("maps[Island 50]"));
    QCOMPARE(state("maps[Island 50]"), Target::Shown);
    // The scroll bar comes with the next layout.
    QTRY_COMPARE(state("maps[World]"), Target::Led);
    mWindow->tree->collapseAll();
    QCOMPARE(state("maps[Island 50]"), Target::Led);
    QCOMPARE(mResolver.resolve(QStringLiteral("maps[Island 50]")).point,
        mResolver.resolve(QStringLiteral("maps[World]")).point);

    for (const char* target : {"far", "far@0,0"}) {
        mWindow->area->horizontalScrollBar()->setValue(0);
        mWindow->area->verticalScrollBar()->setValue(0);
        QCOMPARE(state(target), Target::Led);
        mResolver.reveal(QLatin1String(target));
        QCOMPARE(state(target), Target::Shown);
    }
    mWindow->area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mWindow->area->verticalScrollBar()->setValue(0);
    QCOMPARE(state("far"), Target::Hidden);

    mWindow->kind->parentWidget()->show();
    mWindow->tabs->setCurrentIndex(0);
    mWindow->kind->showPopup();
    QTRY_COMPARE(state("kind[1]"), Target::Shown);
    press("kind[1]");
    QTRY_COMPARE(mWindow->kind->currentIndex(), 1);
}

// A dock that lies behind another, is closed, or floats.
void tst_Targets::leadsToDocks()
{
    openWindow();
    auto* other = new QDockWidget(QStringLiteral("Other"));
    mWindow->addDockWidget(Qt::LeftDockWidgetArea, other);
    mWindow->tabifyDockWidget(mWindow->dock, other);
    // The tabs come with the next layout.
    QTRY_VERIFY((other->raise(), mWindow->dock->visibleRegion().isEmpty()));
    QTRY_COMPARE(state("layers"), Target::Led);
    QVERIFY(mResolver.resolve(QStringLiteral("layers")).widget->inherits("QTabBar"));
    press("layers");
    QTRY_COMPARE(state("layers"), Target::Shown);
    mWindow->dock->setFloating(true);
    QTRY_COMPARE(state("editor/layers"), Target::Shown);
    mWindow->dock->close();
    QCOMPARE(state("editor/layers"), Target::Led);
    press("layers");
    QTRY_VERIFY(mWindow->menus->isVisible());
    QCOMPARE(state("layersDock"), Target::Led);
    press("layersDock");
    QTRY_COMPARE(state("layers"), Target::Shown);
}

void tst_Targets::leadsThroughMenus()
{
    openWindow();
    const auto resolve = [this](const char* name) {
        return mResolver.resolve(QStringLiteral("action:") + QLatin1String(name));
    };
    // A bar without room leads to the button of what it hides.
    auto* only = named("Only", mWindow->bar->addAction(QStringLiteral("Only")));
    for (int i = 0; i < 40; ++i)
        mWindow->bar->insertAction(only, new QAction(QStringLiteral("Tool %1").arg(i), only));
    QTRY_COMPARE(resolve("Only").state, Target::Led);
    QCOMPARE(resolve("Only").widget->objectName(), QStringLiteral("qt_toolbar_ext_button"));

    mWindow->bar->hide();
    Target found = resolve("Find");
    QCOMPARE(found.state, Target::Led);
    QVERIFY(found.widget == mWindow->menuBar());
    mWindow->menus->popup(mWindow->mapToGlobal(QPoint(20, 60)));
    QTRY_COMPARE(resolve("Find").state, Target::Shown);
    QVERIFY(resolve("Find").widget == mWindow->menus);
    // The entry of the menu in the menu, then the menu in it.
    found = resolve("Clear Recent");
    QCOMPARE(found.state, Target::Led);
    QVERIFY(found.widget == mWindow->menus);
    QTest::mouseClick(found.widget, Qt::LeftButton, {}, found.widget->mapFromGlobal(found.point));
    QTRY_COMPARE(resolve("Clear Recent").state, Target::Shown);
    while (QWidget* menu = QApplication::activePopupWidget())
        menu->close();
    mWindow->find->setVisible(false);
    QCOMPARE(resolve("Find").state, Target::Hidden);

    // The same for a bar of menus: the button, what it opens, and the menu in that.
    QMenuBar* bar = mWindow->menuBar();
    QStringList names;
    for (int i = 0; i < 40; ++i) {
        names << QStringLiteral("Tool %1").arg(i);
        QMenu* menu = bar->addMenu(QStringLiteral("Menu %1").arg(i));
        named(qPrintable(names.last()), menu->addAction(names.last()));
    }
    QTRY_VERIFY(qobject_cast<QToolButton*>(resolve("Tool 39").widget));
    auto* more = qobject_cast<QToolButton*>(resolve("Tool 39").widget);
    more->menu()->popup(mWindow->mapToGlobal(QPoint(20, 60)));
    QTRY_VERIFY(resolve("Tool 39").widget == more->menu());
    const int hidden = int(more->menu()->actions().size());
    QVERIFY(hidden > 0 && hidden < names.size());
    for (const QString& name : names.mid(names.size() - hidden))
        QVERIFY2(resolve(qPrintable(name)).widget == more->menu(), qPrintable(name));
    more->menu()->close();
}

void tst_Targets::pointsWhereAReaderBegins()
{
    openWindow();
    auto* line = mWindow->findChild<QLineEdit*>(QStringLiteral("name"));
    const auto fraction = [&](const char* target) {
        const Target found = mResolver.resolve(QLatin1String(target));
        return double(found.widget->mapFromGlobal(found.point).x()) / line->width();
    };
    QVERIFY(line->width() > 300);
    QVERIFY(fraction("name") < 0.2);
    line->setLayoutDirection(Qt::RightToLeft);
    QVERIFY(fraction("name") > 0.8);
    line->setFixedWidth(100);
    QTRY_VERIFY(qAbs(fraction("name") - 0.5) < 0.02);
    QVERIFY(qAbs(fraction("name@0.25,0") - 0.25) < 0.02);
}

void tst_Targets::takesTheNearestAndTheFrontOne()
{
    openWindow();
    const auto found = [this](const char* target) {
        return mResolver.resolve(QLatin1String(target)).widget;
    };
    auto* near = named("apply", new QPushButton(mWindow->centralWidget()));
    QVERIFY(found("editor/apply") != near);
    near->show();
    mResolver.forget();
    QCOMPARE(found("editor/apply"), near);
    near->hide();
    QVERIFY(found("editor/apply")->isVisible());

    // Two windows of one name, and one of the host's own.
    QDialog first(mWindow.get());
    QDialog second(mWindow.get());
    for (QDialog* dialog : {&first, &second}) {
        dialog->setObjectName(QStringLiteral("ask"));
        named("ok", new QPushButton(dialog));
        dialog->show();
        dialog->activateWindow();
        QTRY_VERIFY(dialog->isActiveWindow());
    }
    QCOMPARE(found("ask/ok")->window(), &second);
    first.activateWindow();
    QTRY_VERIFY(first.isActiveWindow());
    QCOMPARE(found("ask/ok")->window(), &first);
    first.hide();
    QCOMPARE(found("ask/ok")->window(), &second);
    second.hide();
    QCOMPARE(mResolver.resolve(QStringLiteral("ask/ok")).state, Target::Hidden);

    TargetResolver resolver({[&](const QString& name) -> std::optional<QVector<QWidget*>> {
                                 if (name != QLatin1String("Question"))
                                     return {};
                                 return QVector<QWidget*>{};
                             },
        {}});
    QCOMPARE(resolver.resolve(QStringLiteral("Question/ok")).state, Target::Hidden);
    // No name at all used to be taken for a path that was read already.
    QCOMPARE(TargetResolver().resolve(QString()).state, Target::Missing);
}

void tst_Targets::describes_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("described");
    const auto row = [](const char* target, const char* described) {
        QTest::newRow(target) << QString::fromUtf8(target) << QString::fromUtf8(described);
    };
    row("editor/name", "editor/name");
    row("editor/tabs[Colours]", "editor/tabs[Colours]");
    row("editor/tabs[0]/apply", "editor/tabs[General]/apply");
    row("editor/maps[World]", "editor/maps[World]");
    row("editor/maps[1]", R"(editor/maps["a/b[c]@d\"e\\"])");
    row("editor/area@0.25,0.5", "editor/area@0.25,0.5");
    row("action:Find", "action:Find");
}

void tst_Targets::describes()
{
    QFETCH(QString, target);
    QFETCH(QString, described);
    openWindow();
    const Target found = mResolver.resolve(target);
    QWidget* widget = QApplication::widgetAt(found.point);
    QVERIFY(widget);
    QCOMPARE(mResolver.describe(widget, found.point), described);
}

QTEST_MAIN(tst_Targets)
#include "tst_targets.moc"
