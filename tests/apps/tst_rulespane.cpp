#include <support/testmain.h>

#include <library/rulesamples.h>
#include <support/palettes.h>

#include <isubsetting.h>
#include <jobeditor/editorwindow.h>
#include <jobeditor/rulerunmodel.h>
#include <jobeditor/rulespane.h>
#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>
#include <ruletimelimit.h>
#include <session/fieldplaces.h>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/savefile.h>
#include <values/valueselection.h>

using JedTest::RuleSetup;
using JEDVEPLUGIN::ISubSetting;
using Session::JobSession;
using Session::PluginHost;
using Session::RuleLog;

namespace {
const QString STEP = "ScanSettings/Range.StepWidth";
const QString BANDWIDTH = "ScanSettings/Range.Bandwidth";

// The oldest signal that a spy has; empty if there is none.
QVariantList take(QSignalSpy* spy)
{
    return spy->isEmpty() ? QVariantList() : spy->takeFirst();
}

// The rows below an index, one line each, inner ones indented; without times.
QStringList rowsOf(const QAbstractItemModel& model, const QModelIndex& parent = QModelIndex(), int indent = 0)
{
    QStringList result;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QModelIndex change = index.sibling(row, RuleRunModel::COLUMN_CHANGE);
        result.append((QString(indent, ' ') + index.data().toString() + " | " + change.data().toString()));
        result += rowsOf(model, index, indent + 1);
    }
    return result;
}
} // namespace

// The dock with the rules that ran, its model, and the marks beside fields.
class TstRulesPane : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void cleanup();

    void modelShowsRuns();
    void modelFollowsTheLog();
    void modelBeginsWithWhatThereIs();
    void faultsAreLegible_data();
    void faultsAreLegible();

    void ruleRunsAreShown();
    void filterKeepsRunsWithTheText();
    void returnLeadsToTheField();
    void markTellsWhoSetTheField();
    void markGoesWhenTheOperatorSetsTheField();
    void markIsTakenBackByUndo();
    void faultsAreCountedAndCleared();
    void rulesHaveATimeLimit();
    void scenarioTellsWhatRulesSet();

private:
    void open();
    QTreeView* view() { return m_window->findChild<QTreeView*>("ruleRuns"); }
    ISubSetting* scan();
    /// Sets the step of the scan as an operator does.
    void setStep(const QString& text);
    QStringList marks();

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<EditorWindow> m_window;
};

void TstRulesPane::initTestCase()
{
    QCoreApplication::setOrganizationName("tst_rulespane");
    QStandardPaths::setTestModeEnabled(true);
    QString error;
    QLoggingCategory::setFilterRules("jobeditorve.trace=false\ndefault.warning=false");
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
    m_host.load(PluginHost::defaultFolders());
}

void TstRulesPane::cleanup()
{
    m_window.reset();
    m_session.reset();
}

void TstRulesPane::open()
{
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_window = std::make_unique<EditorWindow>(&m_host, m_session.get());
    QVERIFY(m_window->openFile(JED_SOURCE_DIR "/installation/Jobs/search.xml"));
    m_session->undoStack()->setClean();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    m_window->findChild<QDockWidget*>("rulesDock")->raise();
    QTRY_VERIFY(view()->isVisible() && view()->isEnabled());
    QVERIFY(scan());
    m_window->setCurrentSetting(scan());
}

ISubSetting* TstRulesPane::scan()
{
    for (int i = 0; i < m_session->topLevelCount(); ++i) {
        ISubSetting* const found = Session::findCarrier(m_session->settingAt({i}), "ScanSettings");
        if (found &&
            dynamic_cast<ValueSelection*>(Session::fieldValue(found, "ScanSettings", "Range.StepWidth")))
            return found;
    }
    return nullptr;
}

void TstRulesPane::setStep(const QString& text)
{
    auto* const value =
        dynamic_cast<ValueSelection*>(Session::fieldValue(scan(), "ScanSettings", "Range.StepWidth"));
    QVERIFY(value->SetText(text));
}

QStringList TstRulesPane::marks()
{
    QStringList result;
    for (const QLabel* label : m_window->findChildren<QLabel*>()) {
        if (label->text() == "by rule" && label->isVisible())
            result.append(label->toolTip());
    }
    return result;
}

void TstRulesPane::modelShowsRuns()
{
    RuleLog log;
    RuleRunModel model(&log);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    RuleSetup setup("function f() { B.value = 1; unknown.x = 2; }\n"
                    "function g() { while (true) {} }\n");
    NumericInt* const a = setup.addInt("A", "f");
    setup.addInt("B", "b");
    setup->InitFinished();
    a->SetValue(9);
    JEDVEPLUGIN::setRuleTimeLimit(50);
    setup->ReloadScriptAndRun("g");
    JEDVEPLUGIN::setRuleTimeLimit(0);
    QCOMPARE(rowsOf(model),
             QStringList({"f | A: 0 \u2192 9", " B | 0 \u2192 1",
                          " Line 1 | ReferenceError: Can't find variable: unknown",
                          " b (not in the script) | B: 0 \u2192 1", "g | ",
                          " Stopped | It ran for too long. What it had changed stays changed."}));
    QCOMPARE(model.index(0, 0).data(RuleRunModel::PATH_ROLE).toString(), setup.m_bench.path("A"));
    QCOMPARE(model.index(0, 0).data(Qt::ToolTipRole).toString(), "f\n" + log.runs()[0]->scriptFile);
    QCOMPARE(model.index(0, RuleRunModel::COLUMN_TIME).data().toString(),
             log.runs()[0]->time.toString("HH:mm:ss.zzz"));
    QCOMPARE(model.headerData(RuleRunModel::COLUMN_TIME, Qt::Horizontal).toString(), QString("Time (UTC)"));
}

void TstRulesPane::modelFollowsTheLog()
{
    RuleLog log(3);
    RuleRunModel model(&log);
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    RuleSetup setup("function f() { B.value += 1; } function g() {}");
    setup.addInt("B", "g");
    setup->InitFinished();
    setup->ReloadScriptAndRun("g");
    setup->ReloadScriptAndRun("g");
    QCOMPARE(rowsOf(model), QStringList({"g | ", "g | "}));
    const QPersistentModelIndex second(model.index(1, 0));
    setup->ReloadScriptAndRun("f"); // with the one inside
    QCOMPARE(rowsOf(model), QStringList({"g | ", "f | ", " B | 0 \u2192 1", " g | B: 0 \u2192 1"}));
    QCOMPARE(second.row(), 0);
    QCOMPARE(model.parent(model.index(1, 0, model.index(1, 0))), model.index(1, 0));
    log.clear();
    QCOMPARE(model.rowCount(), 0);
    setup->ReloadScriptAndRun("g");
    QCOMPARE(rowsOf(model), QStringList("g | "));
}

void TstRulesPane::modelBeginsWithWhatThereIs()
{
    RuleLog log;
    RuleSetup setup("function g() {}");
    setup->ReloadScriptAndRun("g");
    const RuleRunModel model(&log);
    QCOMPARE(rowsOf(model), QStringList("g | "));
}

void TstRulesPane::faultsAreLegible_data()
{
    QTest::addColumn<bool>("isDark");
    QTest::newRow("light") << false;
    QTest::newRow("dark") << true;
}

// Contrast as the guidelines for accessible texts count it.
void TstRulesPane::faultsAreLegible()
{
    QFETCH(bool, isDark);
    JedTest::useColours(isDark);
    RuleLog log;
    const RuleRunModel model(&log);
    RuleSetup setup("function g() { throw new Error('bad'); }");
    setup->ReloadScriptAndRun("g");
    const auto luminance = [](const QColor& colour) {
        const auto part = [](double value) {
            return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
    };
    const QModelIndex fault = model.index(0, 0, model.index(0, 0));
    const double text = luminance(fault.data(Qt::ForegroundRole).value<QColor>());
    const double base = luminance(QApplication::palette().color(QPalette::Base));
    const double contrast = (std::max(text, base) + 0.05) / (std::min(text, base) + 0.05);
    JedTest::useColours(false);
    QVERIFY2(contrast >= 4.5, qPrintable(QString::number(contrast)));
}

void TstRulesPane::ruleRunsAreShown()
{
    open();
    setStep("12500");
    QCOMPARE(rowsOf(*view()->model()),
             QStringList({"ScanSettings_Range_StepWidth_changed | Scan / Step: 8.333 kHz \u2192 12.5 kHz",
                          " Scan / Bandwidth | 8 kHz \u2192 12.5 kHz"}));
    m_window->findChild<RulesPane*>()->findChild<QCheckBox*>()->setChecked(true);
    QCOMPARE(rowsOf(*view()->model()).last(),
             QString(" ScanSettings_Range_Bandwidth_changed (not in the script) | Scan / Bandwidth: 8 kHz "
                     "\u2192 12.5 kHz"));
}

void TstRulesPane::filterKeepsRunsWithTheText()
{
    open();
    setStep("12500");
    setStep("25000");
    auto* const filter = m_window->findChild<QLineEdit*>("ruleFilter");
    QCOMPARE(view()->model()->rowCount(), 2);
    filter->setText("8.333 KHZ"); // the first one came from there
    QCOMPARE(view()->model()->rowCount(), 1);
    filter->setText("nothing like this");
    QCOMPARE(view()->model()->rowCount(), 0);
    filter->clear();
    QCOMPARE(view()->model()->rowCount(), 2);
}

void TstRulesPane::returnLeadsToTheField()
{
    open();
    setStep("12500");
    m_window->setCurrentSetting(m_session->settingAt({0}));
    const QModelIndex run = view()->model()->index(0, 0);
    for (const auto& target :
         {qMakePair(run, STEP), qMakePair(view()->model()->index(0, 0, run), BANDWIDTH)}) {
        view()->setCurrentIndex(target.first);
        QTest::keyClick(view(), Qt::Key_Return);
        QVERIFY(QApplication::focusWidget());
        QCOMPARE(QApplication::focusWidget()->objectName(), target.second);
        QVERIFY(QApplication::focusWidget()->isVisible());
    }
}

void TstRulesPane::markTellsWhoSetTheField()
{
    open();
    QCOMPARE(marks(), QStringList());
    setStep("12500");
    QCOMPARE(marks().size(), 1);
    QVERIFY2(marks()[0].startsWith("Set by the rule ScanSettings_Range_StepWidth_changed at "),
             qPrintable(marks()[0]));
    QVERIFY2(marks()[0].endsWith(" UTC. Before: 8 kHz"), qPrintable(marks()[0]));
    // Whoever reads the screen by ear is told at the field.
    const auto* const edit = m_window->findChild<QLineEdit*>(BANDWIDTH);
    QCOMPARE(edit->accessibleDescription(), marks()[0]);
    QVERIFY2(edit->toolTip().startsWith(marks()[0] + '\n'), qPrintable(edit->toolTip()));
    // Still there after a look at another setting.
    m_window->setCurrentSetting(m_session->settingAt({0}));
    QCOMPARE(marks(), QStringList());
    m_window->setCurrentSetting(scan());
    QCOMPARE(marks().size(), 1);
}

void TstRulesPane::markGoesWhenTheOperatorSetsTheField()
{
    open();
    setStep("12500");
    auto* const edit = m_window->findChild<QLineEdit*>(BANDWIDTH);
    QVERIFY(edit);
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, "9k");
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(edit->text(), QString("9 kHz"));
    QCOMPARE(marks(), QStringList());
    QVERIFY(!edit->toolTip().contains("rule"));
}

void TstRulesPane::markIsTakenBackByUndo()
{
    open();
    setStep("12500");
    m_session->flushEdits();
    m_session->undoStack()->undo();
    QCOMPARE(marks(), QStringList());
    QCOMPARE(m_window->findChild<QLineEdit*>(BANDWIDTH)->text(), QString("8 kHz"));
}

void TstRulesPane::faultsAreCountedAndCleared()
{
    open();
    auto* const pane = m_window->findChild<RulesPane*>();
    QSignalSpy counts(pane, &RulesPane::faultCountChanged);
    RuleSetup setup("function g() { throw new Error('bad'); }");
    setup->ReloadScriptAndRun("g");
    QCOMPARE(take(&counts).value(0).toInt(), 1);
    pane->findChild<QPushButton*>()->click();
    QCOMPARE(take(&counts).value(0).toInt(), 0);
    QCOMPARE(view()->model()->rowCount(), 0);
}

void TstRulesPane::rulesHaveATimeLimit()
{
    open();
    QCOMPARE(JEDVEPLUGIN::ruleTimeLimit(), Session::RULE_TIME_LIMIT);
    m_window.reset();
    QCOMPARE(JEDVEPLUGIN::ruleTimeLimit(), 0);
}

void TstRulesPane::scenarioTellsWhatRulesSet()
{
    const QTemporaryDir folder;
    QVERIFY(Session::saveFile(folder.filePath("steps.txt"),
                              "new Search\nadd TRV9KScanSettings/VUHF-1\n"
                              "set ScanSettings/Range.StepWidth 12.5k\nsave job.xml\n",
                              nullptr));
    QProcess process;
    process.setWorkingDirectory(folder.path());
    process.start(JED_BINARY_DIR "/bin/jobeditor", {"--batch", "steps.txt"});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(QString::fromUtf8(process.readAllStandardOutput()),
             QString("job.xml\nSet by rules: Airband scan / Scan / Bandwidth 8 kHz -> 12.5 kHz "
                     "(ScanSettings_Range_StepWidth_changed)\n"));
}

JED_TEST_MAIN(TstRulesPane)
#include "tst_rulespane.moc"
