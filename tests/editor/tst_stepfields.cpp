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
    void loading_data();
    void loading();
    void rebuilding_data();
    void rebuilding();
    void typing();
    void displayAndIndicator();
    void lookedUpTexts_data();
    void lookedUpTexts();
};

using Edit = void (*)(StepFields&);
Q_DECLARE_METATYPE(Edit)

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

void tst_StepFields::loading_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<bool>("isGroup");
    QTest::addColumn<int>("shown");
    const auto row = [](const char* tag, const char* json, bool isGroup, int shown) {
        QTest::newRow(tag) << QString::fromLatin1(json) << isGroup << shown;
    };
    row("all",
        R"({"x":1,"y":-9999,"followWindow":"Options","comment":"","hint":"","condition":"wait",
        "icon":"eye","label":"","option":0,"command":"presetData,a"})",
        false, 0x3FFF & ~(ParameterField2 | ParameterField3));
    row("none", "{}", false, 0);
    row("no object", "[1]", false, 0);
    row("unknown window", R"({"y":1,"followWindow":"Later"})", false, YField);
    row("group", R"({"x":1,"comment":"a","hint":"","icon":"eye","label":"b","option":1})", true,
        HintField | LabelField);
}

void tst_StepFields::loading()
{
    QFETCH(QString, json);
    QFETCH(bool, isGroup);
    QFETCH(int, shown);
    const StepFields fields = loaded(json, isGroup);
    QCOMPARE(int(fields.shown), shown);
    QCOMPARE(fields.showArrow, true);
    if (shown & IconField) {
        QCOMPARE(QStringList({fields.x, fields.y, fields.followWindow, fields.icon, fields.command,
                                 fields.commandParameter})
                     .join(QLatin1Char('|')),
            QStringLiteral("1|-9999|Options|eye|presetData|a"));
    }
    if (!isGroup)
        QCOMPARE(rebuilt(json, fields, fields).contains(QLatin1String("Later")),
            json.contains(QLatin1String("Later")));
}

void tst_StepFields::rebuilding_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* tag, const char* json, Edit edit, const char* expected) {
        QTest::newRow(tag) << QString::fromUtf8(json) << edit << QString::fromUtf8(expected);
    };
    const Edit none = [](StepFields&) {};
    const Edit hint = [](StepFields& fields) { fields.hint = QStringLiteral("b"); };
    const Edit noHint = [](StepFields& fields) { fields.hint.clear(); };
    const Edit setY = [](StepFields& fields) { fields.y = QStringLiteral("7"); };
    const Edit noPosition = [](StepFields& fields) {
        fields.x.clear();
        fields.y.clear();
    };
    const Edit parameter2 = [](StepFields& fields) { fields.parameters[1] = QStringLiteral("6"); };
    const Edit commandParameter = [](StepFields& fields) {
        fields.commandParameter = QStringLiteral("c");
    };
    const Edit noArrow = [](StepFields& fields) { fields.showArrow = false; };

    row("new step",
        R"({"comment":"","condition":"click","followWindow":"","hint":"","icon":"click","x":0,"y":0})",
        hint,
        R"({"comment":"","condition":"click,","followWindow":"","hint":"b","icon":"click","x":0,"y":0})");
    // What the form cannot show stays.
    row("untouched",
        R"({"command":"later,1,2","condition":"later,1","followWindow":"Later","hint":"a","icon":"later","later":[1],"option":2,"x":1.5})",
        hint,
        R"({"command":"later,1,2","condition":"later,1","followWindow":"Later","hint":"b","icon":"later","later":[1],"option":2,"x":1.5})");
    row("nothing", "{}", none, "{}");
    row("absent keys", R"({"icon":"eye"})", hint, R"({"hint":"b","icon":"eye"})");
    row("emptied", R"({"hint":"a"})", noHint, "{}");
    row("one coordinate", R"({"x":1.5,"y":1})", setY, R"({"x":1.5,"y":7})");
    row("no coordinates", R"({"x":1,"y":1})", noPosition, "{}");
    row(
        "no number", R"({"x":1,"y":1})",
        [](StepFields& fields) { fields.x = QStringLiteral("1a"); }, R"({"x":-9999,"y":1})");
    row(
        "added position", "{}",
        [](StepFields& fields) {
            fields.y = QStringLiteral("2");
            fields.shown |= XField | YField;
        },
        R"({"x":-9999,"y":2})");
    row(
        "window chosen", R"({"followWindow":"Later"})",
        [](StepFields& fields) { fields.followWindow = QStringLiteral("Popup"); },
        R"({"followWindow":"Popup"})");
    row("box without the value's row", R"({"condition":"textLength,=~,5"})", parameter2,
        R"({"condition":"textLength,=~,6"})");
    row("command's parameter", R"({"command":"presetData,a,b"})", commandParameter,
        R"({"command":"presetData,c,b"})");
    row("unknown command's parameter", R"({"command":"later,a"})", commandParameter,
        R"({"command":"later,c"})");
    row(
        "parameter without command", "{}",
        [](StepFields& fields) {
            fields.commandParameter = QStringLiteral("c");
            fields.shown |= CommandField | CommandParameterField;
        },
        "{}");
    row(
        "command removed", R"({"command":"presetData,a"})",
        [](StepFields& fields) { fields.command.clear(); }, "{}");
    row("arrow hidden", R"({"option":0})", noArrow, R"({"option":1})");
    row(
        "arrow shown", R"({"option":3})", [](StepFields& fields) { fields.showArrow = true; },
        "{}");
}

void tst_StepFields::rebuilding()
{
    QFETCH(QString, json);
    QFETCH(Edit, edit);
    QFETCH(QString, expected);
    const StepFields before = loaded(json);
    StepFields now = before;
    // A box that does not have the row shows nothing.
    for (int i = 0; i < 3; ++i) {
        if (now.boxes[i] == QLatin1String("=~"))
            now.boxes[i].clear();
    }
    const StepFields shown = now;
    edit(now);
    QCOMPARE(rebuilt(json, shown, now), expected);
    // Once more without a change.
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

void tst_StepFields::lookedUpTexts_data()
{
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << "Click"
                           << "Click";
    QTest::newRow("quoted") << "\"Click\""
                            << "Click";
    QTest::newRow("one quote") << "\""
                               << "\"";
    QTest::newRow("escapes") << R"(\"a\/\\\b\f\n\r\tn\")"
                             << "a/\\\b\f\n\r\tn";
    QTest::newRow("others") << R"(\u0041\x\)"
                            << "u0041x";
}

void tst_StepFields::lookedUpTexts()
{
    QFETCH(QString, answer);
    QTEST(lookedUpText(answer), "text");
}

QTEST_APPLESS_MAIN(tst_StepFields)
#include "tst_stepfields.moc"
