#include <QDirIterator>
#include <QMetaMethod>
#include <QMetaProperty>
#include <rulecheck/rulecheck.h>
#include <rulecheck/rulefindings.h>
#include <rulecheck/rulerecorder.h>
#include <scriptableboolean.h>
#include <scriptablenumericfloat.h>
#include <scriptablenumericint.h>
#include <scriptablenumericint64.h>
#include <scriptableselection.h>
#include <scriptablestring.h>
#include <session/savefile.h>
#include <support/testmain.h>

using RuleChecking::RuleCheck;
using RuleChecking::RuleObject;
using RuleChecking::RuleScope;
using Session::Finding;

// Scripts of tests/data/rules: those in "correct" give no finding, those in "wrong" the ones of its findings.txt.

namespace {
const char* const RULES = JED_SOURCE_DIR "/tests/data/rules/";
constexpr int FEWEST_SCRIPTS = 40;

QString textOf(const QString& file)
{
    QByteArray content;
    return Session::readFile(file, &content, nullptr) ? Session::decodedText(content) : QString();
}

QStringList scriptsOf(const QString& folder)
{
    return QDir(RULES + folder).entryList({"*.js"}, QDir::Files, QDir::Name);
}

// The objects of a script: of a list beside it, or those of all.
QVector<RuleScope> objectsFor(const QString& script)
{
    const QString own = QString(script).replace(".js", ".txt");
    RuleScope scope;
    QString error;
    if (!RuleChecking::readRuleObjects(textOf(QFile::exists(own) ? own : RULES + QString("objects.txt")),
                                       &scope, &error))
        qFatal("%s", qPrintable(error));
    return {scope};
}

// "R12@5", in the order of the table of expectations: by line, then by number.
QStringList codesOf(const RuleCheck& check)
{
    QStringList result;
    for (const Finding& finding : check.findings)
        result.append(QString("%1@%2").arg(finding.code, QString::number(finding.line)));
    result.sort();
    return result;
}

QStringList linesOf(const Session::Findings& findings)
{
    QStringList result;
    for (const Finding& finding : findings)
        result.append(finding.toText().section('\n', 0, 0));
    return result;
}

// The script's name to the findings that it must give.
QMap<QString, QStringList> expectations()
{
    QMap<QString, QStringList> result;
    for (const QString& line : textOf(RULES + QString("wrong/findings.txt")).split('\n')) {
        if (!line.startsWith('#') && line.contains(": "))
            result.insert(line.section(": ", 0, 0), line.section(": ", 1).split(' '));
    }
    return result;
}
} // namespace

Q_DECLARE_METATYPE(const QMetaObject*)

class TstRuleCheck : public QObject
{
    Q_OBJECT
private slots:
    void correctScripts_data();
    void correctScripts();
    void wrongScripts_data();
    void wrongScripts();
    void scriptsAloneTellOfTheirObjects_data() { correctScripts_data(); }
    void scriptsAloneTellOfTheirObjects();
    void scriptsThatEndAnywhere();
    void whatWasNotTriedIsSaid_data();
    void whatWasNotTriedIsSaid();
    void listsOfObjects_data();
    void listsOfObjects();
    void everyFindingHasAScript();
    void recordersAreLikeTheObjects_data();
    void recordersAreLikeTheObjects();
    void theGuideHasTheTable();
};

void TstRuleCheck::correctScripts_data()
{
    QTest::addColumn<QString>("script");
    const QStringList scripts = scriptsOf("correct");
    QVERIFY(scripts.size() >= FEWEST_SCRIPTS);
    for (const QString& script : scripts)
        QTest::newRow(qPrintable(script)) << script;
}

void TstRuleCheck::correctScripts()
{
    QFETCH(QString, script);
    const QString path = RULES + QString("correct/") + script;
    const RuleCheck check = RuleChecking::checkRules(path, objectsFor(path));
    QCOMPARE(linesOf(check.findings), QStringList());
    QVERIFY(check.rules > 0);
    QVERIFY(check.runs > 1);
}

void TstRuleCheck::wrongScripts_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("findings");
    const QMap<QString, QStringList> expected = expectations();
    QCOMPARE(scriptsOf("wrong"), QStringList(expected.keys()));
    QVERIFY(expected.size() >= FEWEST_SCRIPTS);
    for (auto it = expected.cbegin(); it != expected.cend(); ++it)
        QTest::newRow(qPrintable(it.key())) << it.key() << it.value();
}

void TstRuleCheck::wrongScripts()
{
    QFETCH(QString, script);
    QFETCH(QStringList, findings);
    const QString path = RULES + QString("wrong/") + script;
    const RuleCheck check = RuleChecking::checkRules(path, objectsFor(path));
    findings.sort();
    QVERIFY2(codesOf(check) == findings, qPrintable(linesOf(check.findings).join('\n')));
}

void TstRuleCheck::scriptsAloneTellOfTheirObjects()
{
    QFETCH(QString, script);
    const RuleCheck check = RuleChecking::checkRules(RULES + QString("correct/") + script, {});
    QCOMPARE(linesOf(check.findings), QStringList());
    QVERIFY(check.notes.constFirst().text.startsWith("only the script itself tells"));
}

// Each finding lies in the file and says something, wherever a script is cut off.
void TstRuleCheck::scriptsThatEndAnywhere()
{
    const int STRIDE = 11;
    QTemporaryDir folder;
    const QString path = folder.filePath("cut.js");
    for (const QString& script : scriptsOf("correct")) {
        const QByteArray whole = textOf(RULES + QString("correct/") + script).toUtf8();
        for (int size = 0; size < whole.size(); size += STRIDE) {
            const QByteArray cut = whole.left(size);
            QVERIFY(Session::saveFile(path, cut, nullptr));
            for (const Finding& finding : RuleChecking::checkRules(path, {}).findings) {
                QVERIFY2(finding.line >= 0 && finding.line <= cut.count('\n') + 1, cut.constData());
                QVERIFY2(!finding.text.isEmpty() && !finding.advice.isEmpty(), cut.constData());
            }
        }
    }
}

void TstRuleCheck::whatWasNotTriedIsSaid_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("notes");
    QTest::newRow("everything tried") << "function Gain_changed() {\n    Level.floatValue = 1;\n}\n"
                                      << QStringList();
    QTest::newRow("lines") << "function Gain_changed() {\n    if (Gain.floatValue > 1000) {\n        "
                              "Level.floatValue = 1;\n        Level.floatValue = 2;\n    }\n}\n"
                           << QStringList{"3: no run came to lines 3 to 4"};
    QTest::newRow("function") << "function spare() {\n    return 1;\n}\nfunction Gain_changed() {\n    "
                                 "Level.floatValue = 1;\n}\n"
                              << QStringList{"2: no run came to line 2"};
    QTest::newRow("bounds") << "function Counter_changed() {\n    Level.floatValue = 1;\n}\n"
                            << QStringList{
                                   "0: Counter has no bounds, so the ends of its range were not tried"};
    // The second value that a rule looks at is varied, too.
    QTest::newRow("condition on another value")
        << "function Gain_changed() {\n    if (Squelch.boolValue)\n        Level.floatValue = 1;\n}\n"
        << QStringList();
}

void TstRuleCheck::whatWasNotTriedIsSaid()
{
    QFETCH(QString, text);
    QTemporaryDir folder;
    const QString path = folder.filePath("rules.js");
    QVERIFY(Session::saveFile(path, text.toUtf8(), nullptr));
    const RuleCheck check = RuleChecking::checkRules(path, objectsFor(path));
    QCOMPARE(linesOf(check.findings), QStringList());
    QStringList notes;
    for (const Finding& note : check.notes) {
        QCOMPARE(note.severity, Finding::NOTE);
        notes.append(QString("%1: %2").arg(QString::number(note.line), note.text));
    }
    QTEST(notes, "notes");
}

void TstRuleCheck::listsOfObjects_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    QTest::newRow("empty") << "# nothing\n\n" << QString();
    QTest::newRow("item with a value") << "selection A x \"x y\"=1:2.5 x=2\n" << QString();
    QTest::newRow("kind") << "real Gain 1\n"
                          << "line 1 is no object: real Gain 1";
    QTest::newRow("name") << "\nfloat\n"
                          << "line 2 is no object: float";
    QTest::newRow("one bound") << "int Gain 1 0\n"
                               << "line 1 is no object: int Gain 1 0";
    QTest::newRow("number") << "int Gain loud\n"
                            << "line 1 is no object: int Gain loud";
    QTest::newRow("outside") << "int Gain 11 0 10\n"
                             << "line 1 is no object: int Gain 11 0 10";
    QTest::newRow("item without a key") << "selection A x x=one\n"
                                        << "line 1 is no object: selection A x x=one";
    QTest::newRow("two texts") << "string A b c\n"
                               << "line 1 is no object: string A b c";
}

void TstRuleCheck::listsOfObjects()
{
    QFETCH(QString, text);
    QFETCH(QString, error);
    RuleScope scope;
    QString told;
    QCOMPARE(RuleChecking::readRuleObjects(text, &scope, &told), error.isEmpty());
    QCOMPARE(told, error);
}

void TstRuleCheck::everyFindingHasAScript()
{
    QSet<QString> shown{"R01"}; // A file that is not there.
    for (const QStringList& codes : expectations()) {
        for (const QString& code : codes)
            shown.insert(code.section('@', 0, 0));
    }
    QStringList without;
    for (const RuleChecking::RuleFindingKind& kind : RuleChecking::ruleFindingKinds()) {
        if (!shown.remove(kind.code()))
            without.append(kind.code());
    }
    QCOMPARE(without, QStringList());
    QCOMPARE(QStringList(shown.values()), QStringList());
    const RuleCheck missing = RuleChecking::checkRules(RULES + QString("none.js"), {});
    QCOMPARE(codesOf(missing), QStringList("R01@0"));
}

void TstRuleCheck::recordersAreLikeTheObjects_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<const QMetaObject*>("object");
    const QVector<QPair<RuleObject::Kind, const QMetaObject*>> kinds{
        {RuleObject::BOOLEAN, &JEDVEPLUGIN::ScriptableBoolean::staticMetaObject},
        {RuleObject::FLOAT, &JEDVEPLUGIN::ScriptableNumericFloat::staticMetaObject},
        {RuleObject::INT, &JEDVEPLUGIN::ScriptableNumericInt::staticMetaObject},
        {RuleObject::INT64, &JEDVEPLUGIN::ScriptableNumericInt64::staticMetaObject},
        {RuleObject::SELECTION, &JEDVEPLUGIN::ScriptableSelection::staticMetaObject},
        {RuleObject::STRING, &JEDVEPLUGIN::ScriptableString::staticMetaObject},
    };
    for (const auto& kind : kinds)
        QTest::newRow(kind.second->className()) << int(kind.first) << kind.second;
}

void TstRuleCheck::recordersAreLikeTheObjects()
{
    QFETCH(int, kind);
    QFETCH(const QMetaObject*, object);
    QStringList expected;
    for (int i = object->propertyOffset(); i < object->propertyCount(); ++i)
        expected.append(QString::fromLatin1(object->property(i).name()));
    for (int i = object->methodOffset(); i < object->methodCount(); ++i)
        expected.append(QString::fromLatin1(object->method(i).name()));
    QStringList members = RuleChecking::RuleRecorder::members(RuleObject::Kind(kind));
    expected.sort();
    members.sort();
    QCOMPARE(members, expected);
    QCOMPARE("JEDVEPLUGIN::" + RuleChecking::RuleRecorder::className(RuleObject::Kind(kind)),
             QString::fromLatin1(object->className()));
}

void TstRuleCheck::theGuideHasTheTable()
{
    QVERIFY2(textOf(JED_SOURCE_DIR "/docs/integrator-guide/rules.md")
                 .contains(RuleChecking::ruleFindingsMarkdown()),
             "put what \"jedtool rules findings --markdown\" prints into the guide");
}

JED_TEST_MAIN(TstRuleCheck)
#include "tst_rulecheck.moc"
