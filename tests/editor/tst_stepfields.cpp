#include "editor/condition.h"
#include "editor/jsonescape.h"
#include "editor/stepfields.h"
#include "editor/stepjson.h"
#include "tutorial/vocabulary.h"

#include <QtTest>

using namespace TutorialEditor;

class tst_StepFields : public QObject {
    Q_OBJECT

private slots:
    void conditions_data();
    void conditions();
    void loading();
    void rebuilding_data();
    void rebuilding();
    void typing();
    void displayAndIndicator();
    void lookedUpTexts();
};

namespace {

QString conditionOf(const QString& json)
{
    return stepObject(json)[QStringLiteral("condition")].toString();
}

StepFields loaded(const QString& json, bool isGroup = false)
{
    return loadStep(stepObject(json), isGroup);
}

QString rebuilt(const QString& json, const StepFields& before, const StepFields& now)
{
    return stepJson(rebuildStep(stepObject(json), false, before, now, QString()).step);
}

} // namespace

// What is written for the parameters when fields hold f1 to f3 and boxes b1 to
// b3, and what the fields get by default.
void tst_StepFields::conditions_data()
{
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("defaults");
    const auto row = [](const char* kind, const char* written, const char* defaults) {
        QTest::newRow(kind) << QString::fromLatin1(written) << QString::fromLatin1(defaults);
    };
    row("windowState", "b1,b2", "MainWindow,open,-");
    row("wait", "f1", "1,-,-");
    row("mouseEvent", "b1,b2", "click,-,-");
    row("textLength", "b1,f2", ">=,1,-");
    row("popup", "f1", "*,-,-");
    row("list", "f1", "-1,-,-");
    row("click", "f1", ",-,-");
    row("action", "b1,f2", "Map,-,-");
    row("pressed", "f1,f2", "0,0,-");
    row("comboBox", "f1,f2", "trigger,0,-");
    row("checked", "f1,f2", "walkAnime,1,-");
    row("spinBox", "b1,f2", ">=,0,-");
    row("yesNo", "f1,f2", ",,-");
    row("later", "", "-,-,-");
}

void tst_StepFields::conditions()
{
    QFETCH(QString, written);
    QFETCH(QString, defaults);
    const QString kind = QLatin1String(QTest::currentDataTag());
    const QString full = kind + QLatin1Char(',') + written;

    QStringList byDefault;
    for (const ConditionParameter& parameter :
        conditionParameters(Tutorial::getConditionKind(kind)))
        byDefault << QLatin1String(parameter.byDefault ? parameter.byDefault : "-");
    QCOMPARE(byDefault.join(QLatin1Char(',')), defaults);

    const QString json = QStringLiteral("{\"condition\":\"%1\"}");
    const StepFields fields = loaded(json.arg(full));
    QCOMPARE(fields.shown.testFlag(ConditionField), true);
    if (written.isEmpty()) { // an unknown kind shows nothing, and stays
        QCOMPARE(fields.shown, ShownFields(ConditionField));
        QCOMPARE(fields.condition, QString());
        QCOMPARE(conditionOf(rebuilt(json.arg(full), fields, fields)), full);
        return;
    }
    for (int i = 0; i < 3; ++i) {
        const QString part = written.section(QLatin1Char(','), i, i);
        QCOMPARE(fields.parameters[i], part);
        QCOMPARE(fields.boxes[i], part.startsWith(QLatin1Char('b')) ? part : QString());
        const bool isHidden = kind == QLatin1String("action") || !part.startsWith(QLatin1Char('f'));
        QCOMPARE(fields.shown.testFlag(parameterField(i)), !isHidden);
    }

    // Choosing the kind writes what the form holds, parts beyond it stay.
    StepFields chosen = fields;
    chosen.parameters = {QStringLiteral("f1"), QStringLiteral("f2"), QStringLiteral("f3")};
    chosen.boxes = {QStringLiteral("b1"), QStringLiteral("b2"), QStringLiteral("b3")};
    QCOMPARE(
        conditionOf(rebuilt(json.arg(QStringLiteral("later,1,2,3")), StepFields(), chosen)), full);
    QCOMPARE(conditionOf(rebuilt(json.arg(full + QStringLiteral(",4")), chosen, chosen)),
        full + QStringLiteral(",4"));
}

void tst_StepFields::loading()
{
    const QString all = QStringLiteral(
        R"({"x":1,"y":-9999,"followWindow":"Options","comment":"a","hint":"b","condition":"wait",)"
        R"("icon":"eye","label":"c","option":0,"command":"presetData,d"})");
    StepFields fields = loaded(all);
    QCOMPARE(int(fields.shown), 0x3FFF & ~(ParameterField2 | ParameterField3));
    QCOMPARE(QStringList({fields.x, fields.y, fields.followWindow, fields.comment, fields.hint,
                             fields.icon, fields.label, fields.command, fields.commandParameter})
                 .join(QLatin1Char('|')),
        QStringLiteral("1|-9999|Options|a|b|eye|c|presetData|d"));
    QVERIFY(fields.showArrow);
    QCOMPARE(loaded(all, true).shown, HintField | LabelField);
    QCOMPARE(loaded(QStringLiteral("[1]")).shown, ShownFields());
    QCOMPARE(loaded(QStringLiteral("{\"followWindow\":\"Later\"}")).shown, ShownFields());
}

// A step, a field with its new text, and the step after it.
void tst_StepFields::rebuilding_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("edit");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* tag, const char* json, const char* edit, const char* expected) {
        QTest::newRow(tag) << QString::fromLatin1(json) << QString::fromLatin1(edit)
                           << QString::fromLatin1(expected);
    };
    row("new step", R"({"comment":"","condition":"click","followWindow":"","hint":"","x":0,"y":0})",
        "hint=b",
        R"({"comment":"","condition":"click,","followWindow":"","hint":"b","x":0,"y":0})");
    row("what the form cannot show",
        R"({"command":"l,1,2","condition":"l,1","followWindow":"L","icon":"l","l":[1],"option":2,"x":1.5})",
        "y=7",
        R"({"command":"l,1,2","condition":"l,1","followWindow":"L","icon":"l","l":[1],"option":2,"x":1.5,"y":7})");
    row("absent keys", R"({"icon":"eye"})", "hint=b", R"({"hint":"b","icon":"eye"})");
    row("emptied", R"({"comment":"a"})", "comment=", "{}");
    row("no coordinates", R"({"x":1})", "x=", "{}");
    row("no number", R"({"x":1,"y":1})", "x=1a", R"({"x":-9999,"y":1})");
    row("added position", "{}", "y=2", R"({"x":-9999,"y":2})");
    row("window chosen", R"({"followWindow":"L"})", "followWindow=Popup",
        R"({"followWindow":"Popup"})");
    row("icon chosen", R"({"icon":"l"})", "icon=eye", R"({"icon":"eye"})");
    row("box without the row", R"({"condition":"textLength,=~,5"})", "parameter2=6",
        R"({"condition":"textLength,=~,6"})");
    row("command's parameter", R"({"command":"presetData,a,b"})", "commandParameter=c",
        R"({"command":"presetData,c,b"})");
    row("unknown command's", R"({"command":"l,a"})", "commandParameter=c", R"({"command":"l,c"})");
    row("added parameter alone", "{}", "commandParameter=c", "{}");
    row("command removed", R"({"command":"presetData,a"})", "command=", "{}");
    row("arrow hidden", R"({"option":0})", "showArrow=", R"({"option":1})");
    row("arrow shown", R"({"option":3})", "showArrow=1", "{}");
}

void tst_StepFields::rebuilding()
{
    QFETCH(QString, json);
    QFETCH(QString, edit);
    QFETCH(QString, expected);
    StepFields before = loaded(json);
    for (QString& box : before.boxes) // one that does not have the row shows nothing
        box.remove(QStringLiteral("=~"));
    StepFields now = before;
    if (QByteArray(QTest::currentDataTag()).startsWith("added"))
        now.shown = ~ShownFields();
    const QHash<QString, QString*> texts{{QStringLiteral("x"), &now.x},
        {QStringLiteral("y"), &now.y}, {QStringLiteral("followWindow"), &now.followWindow},
        {QStringLiteral("comment"), &now.comment}, {QStringLiteral("hint"), &now.hint},
        {QStringLiteral("parameter2"), &now.parameters[1]}, {QStringLiteral("icon"), &now.icon},
        {QStringLiteral("command"), &now.command},
        {QStringLiteral("commandParameter"), &now.commandParameter}};
    const QString field = edit.section(QLatin1Char('='), 0, 0);
    const QString text = edit.section(QLatin1Char('='), 1);
    if (field == QLatin1String("showArrow"))
        now.showArrow = !text.isEmpty();
    else
        *texts[field] = text;
    QCOMPARE(rebuilt(json, before, now), expected);
    QCOMPARE(rebuilt(expected, now, now), expected);
}

// Each keystroke rebuilds the step from what the former one left.
void tst_StepFields::typing()
{
    QString json = QStringLiteral("{\"condition\":\"popup,,later\"}");
    StepFields before = loaded(json);
    for (const QString& text : {QStringLiteral("a"), QStringLiteral("a,"), QStringLiteral("a,b"),
             QStringLiteral("a,b,"), QStringLiteral("a,b,c"), QStringLiteral("a,b")}) {
        StepFields now = before;
        now.parameters[0] = text;
        json = rebuilt(json, before, now);
        QCOMPARE(conditionOf(json), QLatin1String("popup,") + text + QLatin1String(",later"));
        before = now;
    }
}

void tst_StepFields::displayAndIndicator()
{
    const QString json =
        QStringLiteral("{\"condition\":\"yesNo,,\",\"followWindow\":\"%1\",\"option\":1,\"x\":3}");
    const auto rebuild = [&](const QString& window, bool isGroup, const QString& y) {
        const StepFields before = loaded(json.arg(window), isGroup);
        StepFields now = before;
        now.y = y;
        return rebuildStep(
            stepObject(json.arg(window)), isGroup, before, now, QStringLiteral("%1 hint"));
    };
    RebuiltStep step = rebuild(QStringLiteral("Options"), false, QStringLiteral("07"));
    QCOMPARE(step.displayText, QStringLiteral("%1 hint --- Options(3,07)"));
    QCOMPARE(QList<int>({step.x, step.y, step.flags}), QList<int>({3, 7, 6}));

    step = rebuild(QStringLiteral("Later"), false, QStringLiteral("?"));
    QCOMPARE(step.displayText, QStringLiteral("%1 hint --- Later(3,?)"));
    QCOMPARE(QList<int>({step.x, step.y}), QList<int>({3, -9999}));

    step = rebuild(QStringLiteral("Options"), true, QString());
    QCOMPARE(step.displayText, QStringLiteral("%1 hint"));
    QCOMPARE(QList<int>({step.x, step.y, step.flags}), QList<int>({-9999, -9999, 0}));

    QCOMPARE(indicatorFlags(loaded(QStringLiteral("{\"condition\":\"click\"}"))), 1);
}

void tst_StepFields::lookedUpTexts()
{
    const auto look = [](const char* answer) { return lookedUpText(QLatin1String(answer)); };
    QCOMPARE(look("Click"), QStringLiteral("Click"));
    QCOMPARE(look("\"Click\""), QStringLiteral("Click"));
    QCOMPARE(look("\""), QStringLiteral("\""));
    QCOMPARE(look(R"(\"a\/\\\b\f\n\r\tn\")"), QStringLiteral("a/\\\b\f\n\r\tn"));
    QCOMPARE(look(R"(\u0041\x\)"), QStringLiteral("u0041x"));
}

QTEST_APPLESS_MAIN(tst_StepFields)
#include "tst_stepfields.moc"
