#include <session/scenario.h>

using Session::Finding;
using Session::Scenario;

namespace {
// "line verb[argument|argument]" for each step, one a line.
QString listing(const Scenario& scenario)
{
    QString result;
    for (const Scenario::Step& step : scenario.steps())
        result += QString("%1 %2[%3]\n").arg(QString::number(step.line), step.verb, step.arguments.join('|'));
    return result;
}
} // namespace

class TstScenario : public QObject
{
    Q_OBJECT
private slots:
    void stepsKeepOrderAndLine();
    void words_data();
    void words();
    void faultsNameTheLine_data();
    void faultsNameTheLine();
    void aFaultLeavesNoSteps();
    void textIsReadBackUnchanged();
    void theHelpNamesEachVerb();
};

void TstScenario::stepsKeepOrderAndLine()
{
    Scenario scenario;
    Finding finding;
    const QString text =
        "# a job\n\nnew Search \"Morning watch\"\n  add HT720/HF-1\tManual  \r\n # end\nsave job.xml";
    QVERIFY(scenario.parse(text, "a.scenario", &finding));
    QCOMPARE(listing(scenario),
             QString("3 new[Search|Morning watch]\n4 add[HT720/HF-1|Manual]\n6 save[job.xml]\n"));
    QCOMPARE(scenario.name(), QString("a.scenario"));
}

void TstScenario::words_data()
{
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("value");
    QTest::newRow("plain") << "a/b.c"
                           << "a/b.c";
    QTest::newRow("quoted") << "\"a b\""
                            << "a b";
    QTest::newRow("empty") << "\"\""
                           << "";
    QTest::newRow("quote inside") << "\"a \\\"b\\\"\""
                                  << "a \"b\"";
    QTest::newRow("backslash inside") << "\"C:\\\\job.xml\""
                                      << "C:\\job.xml";
    QTest::newRow("backslash outside") << "C:\\job.xml"
                                       << "C:\\job.xml";
    QTest::newRow("quotes within a word") << "a\" \"b"
                                          << "a b";
    QTest::newRow("letters beyond ASCII") << "Küste"
                                          << "Küste";
}

void TstScenario::words()
{
    QFETCH(QString, argument);
    QFETCH(QString, value);
    Scenario scenario;
    Finding finding;
    QVERIFY(scenario.parse("save " + argument, "s", &finding));
    QCOMPARE(scenario.steps().at(0).arguments, QStringList{value});
}

void TstScenario::faultsNameTheLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown verb")
        << "new Search\nsett a b"
        << "s:2: error: \"sett\" is no verb of a scenario\n"
           "    Verbs are new, open, add, set, select, expect, import, save, picture, "
           "dialog, dock, map, preview, window, wait. Did you mean \"set\"?";
    QTest::newRow("far from any verb") << "destroy"
                                       << "s:1: error: \"destroy\" is no verb of a scenario\n"
                                          "    Verbs are new, open, add, set, select, expect, import, save, "
                                          "picture, dialog, dock, map, preview, window, wait.";
    QTest::newRow("too few")
        << "\nset a"
        << "s:2: error: \"set\" does not go with 1 arguments\n    Write: set SET/FIELD VALUE";
    QTest::newRow("too many")
        << "new Search a b"
        << "s:1: error: \"new\" does not go with 3 arguments\n    Write: new TYPE [NAME]";
    QTest::newRow("open quote") << "new Search \"a"
                                << "s:1: error: a quote is not closed";
}

void TstScenario::faultsNameTheLine()
{
    QFETCH(QString, text);
    QFETCH(QString, message);
    Scenario scenario;
    Finding finding;
    QVERIFY(!scenario.parse(text, "s", &finding));
    QCOMPARE(finding.toText(), message);
}

void TstScenario::aFaultLeavesNoSteps()
{
    Scenario scenario;
    Finding finding;
    QVERIFY(scenario.parse("new Search", "s", &finding));
    QVERIFY(!scenario.parse("new Search\nfoo", "s", &finding));
    QVERIFY(scenario.steps().isEmpty());
}

void TstScenario::textIsReadBackUnchanged()
{
    Scenario scenario;
    scenario.append("new", {"Search", "a \"b\" \\ c"});
    scenario.append("add", {"HT720/HF-1", ""});
    scenario.append("set", {"TunerSettings/CenterFrequency", "156.8M"});
    scenario.append("save", {"#1.xml"});
    QCOMPARE(scenario.toText(), QString("new Search \"a \\\"b\\\" \\\\ c\"\n"
                                        "add HT720/HF-1 \"\"\n"
                                        "set TunerSettings/CenterFrequency 156.8M\n"
                                        "save \"#1.xml\"\n"));
    Scenario again;
    Finding finding;
    QVERIFY(again.parse(scenario.toText(), "s", &finding));
    QCOMPARE(listing(again), listing(scenario));
}

void TstScenario::theHelpNamesEachVerb()
{
    QCOMPARE(Scenario::verbsHelp(), QString("  new TYPE [NAME]\n"
                                            "  open FILE (job editor)\n"
                                            "  add TYPE/BASE [STARTUP-MODE]\n"
                                            "  set SET/FIELD VALUE\n"
                                            "  select NUMBER\n"
                                            "  expect subjobs|SET/FIELD VALUE\n"
                                            "  import FILE [FORMAT] (job editor, --plugin)\n"
                                            "  save FILE\n"
                                            "  picture FILE (job editor)\n"
                                            "  dialog TYPE DETECTOR FILE (job editor)\n"
                                            "  dock NAME FILE (job editor)\n"
                                            "  map FILE (job editor)\n"
                                            "  preview LIST FILE (job editor)\n"
                                            "  window summary|apply|plugins FILE (job editor)\n"
                                            "  wait SECONDS (job editor)\n"));
}

QTEST_GUILESS_MAIN(TstScenario)
#include "tst_scenario.moc"
