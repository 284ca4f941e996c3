#include <support/accessiblenames.h>
#include <support/testmain.h>

#include <functional>
#include <isubsetting.h>
#include <jedabstractsubsettingfactory.h>
#include <jobeditor/aboutdialog.h>
#include <jobeditor/editorpane.h>
#include <jobeditor/editorwindow.h>
#include <jobeditor/pagewindow.h>
#include <QDockWidget>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTreeView>
#include <QTreeWidget>
#include <session/fieldplaces.h>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/pluginhost.h>
#include <session/savefile.h>

using JEDVEPLUGIN::ISubSetting;
using Session::JobSession;
using Session::PluginHost;

// What an operator sees of a job as a whole: problems, receivers, frequencies, summary.

namespace {
const QString EXAMPLES = JED_SOURCE_DIR "/installation/Jobs/";

// Panes are filled by timers without a delay, which the event loop may reach some milliseconds later.
void settle()
{
    QTest::qWait(20);
}

QString rowText(const QTreeWidgetItem* item)
{
    QStringList texts;
    for (int column = 0; column < item->columnCount(); ++column)
        texts.append(item->text(column));
    return texts.join('|');
}
} // namespace

class TstEditorOverview : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init();
    void cleanup();

    void problemsLeadToTheField_data();
    void problemsLeadToTheField();
    void unclaimedSubjobsAreProblems();
    void receiversAreCounted();
    void tooManyReceiversAreAProblem();
    void receiversLeadToTheirSubjob();
    void frequenciesLeadToTheField();
    void summaryIsShown();
    void pagesAreSaved();
    void everyPluginHasAManual();
    void aboutTellsVersionsAndPlaces();
    void whatCannotBeUsedSaysWhy();
    void iconsKeepTheirSizeOnFineScreens();

private:
    QAction* action(const QString& text);
    // What to do with the next window that waits for an answer.
    void whenAsked(const std::function<void(QWidget*)>& look);
    bool open(const QString& path);
    QTreeWidget* list(const QString& name) { return m_window->findChild<QTreeWidget*>(name); }
    QStringList rows(const QString& name);
    QString currentRow();
    // A job with a sub-job that no plug-in claims; its path.
    QString strangeJob();

    PluginHost m_host;
    std::unique_ptr<JobSession> m_session;
    std::unique_ptr<EditorWindow> m_window;
    QTemporaryDir m_folder;
};

void TstEditorOverview::initTestCase()
{
    QLoggingCategory::setFilterRules("jobeditorve.trace=false");
    QCoreApplication::setOrganizationName("jobeditorve-tests");
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
    QString error;
    QVERIFY2(Session::chooseInstallation(JED_SOURCE_DIR "/installation", QString(), &error),
             qPrintable(error));
    m_host.load(PluginHost::defaultFolders());
}

void TstEditorOverview::init()
{
    m_session = std::make_unique<JobSession>(m_host.factories());
    m_window = std::make_unique<EditorWindow>(&m_host, m_session.get());
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void TstEditorOverview::cleanup()
{
    m_window.reset();
    m_session.reset();
}

bool TstEditorOverview::open(const QString& path)
{
    QTimer closer;
    connect(&closer, &QTimer::timeout, this, [] {
        if (auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
    closer.start(10);
    const bool isOpen = m_window->openFile(path);
    settle();
    return isOpen;
}

QStringList TstEditorOverview::rows(const QString& name)
{
    settle();
    QStringList result;
    for (int i = 0; i < list(name)->topLevelItemCount(); ++i)
        result.append(rowText(list(name)->topLevelItem(i)));
    return result;
}

QString TstEditorOverview::currentRow()
{
    return m_window->findChild<QTreeView*>("settingTree")->currentIndex().data().toString();
}

QString TstEditorOverview::strangeJob()
{
    QByteArray job;
    Session::readFile(EXAMPLES + "search.xml", &job, nullptr);
    const QString file = m_folder.filePath("stranger.xml");
    Session::saveFile(file,
                      job.replace("<Type>HT720</Type>\n      <BaseResource>VUHF-3<",
                                  "<Type>SignalRecorder</Type>\n      <BaseResource>VUHF-3<"),
                      nullptr);
    return file;
}

void TstEditorOverview::problemsLeadToTheField_data()
{
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<QString>("problem");
    QTest::addColumn<QString>("control");
    QTest::newRow("field of a group") << "ScanSettings"
                                      << "<StopFrequency>136975000<"
                                      << "<StopFrequency>117000000<"
                                      << "The scan ends before it begins|Airband, Scan|To"
                                      << "ScanSettings/Range.StopFrequency";
    QTest::newRow("field on another tab") << "TunerSettings"
                                          << "<CenterFrequency>127000000<"
                                          << "<CenterFrequency>999000000<"
                                          << "%1|Airband, Tuner|Frequency"
                                          << "TunerSettings/CenterFrequency";
    QTest::newRow("field of the sub-job") << "SubJob"
                                          << "<StartupMode>Automatic<"
                                          << "<StartupMode>OnRequest<"
                                          << "The receiver does not offer the start-up mode \"%1\" for this "
                                             "type of job|Airband|StartupMode"
                                          << "subJobWidget_StartupModes";
}

void TstEditorOverview::problemsLeadToTheField()
{
    QFETCH(QString, set);
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(QString, problem);
    QVERIFY(open(EXAMPLES + "search.xml"));
    QCOMPARE(rows("problems"), QStringList());
    ISubSetting* const setting = Session::findCarrier(m_session->settingAt({0}), set);
    QVERIFY(setting);
    QVERIFY(m_session->setParameterSet(setting, set, setting->parameterSetText(set).replace(before, after)));
    QTRY_COMPARE(rows("problems").size(), 1);
    const QString told = rows("problems").first();
    QVERIFY2(told.startsWith(problem.section("%1", 0, 0)) && told.endsWith(problem.section("%1", -1)),
             qPrintable(told));
    m_window->setCurrentSetting(m_session->settingAt({1}));
    for (QTabWidget* tabs : setting->getWidget()->findChildren<QTabWidget*>())
        tabs->setCurrentIndex(tabs->count() - 1);
    QTreeWidget* const problems = list("problems");
    problems->setCurrentItem(problems->topLevelItem(0));
    problems->setFocus();
    QTest::keyClick(problems, Qt::Key_Return);
    QCOMPARE(currentRow(), setting->getDisplayName());
    QTRY_VERIFY(QApplication::focusWidget() != problems);
    QTEST(QApplication::focusWidget()->objectName(), "control");
    QVERIFY(QApplication::focusWidget()->isVisible());
}

void TstEditorOverview::unclaimedSubjobsAreProblems()
{
    QVERIFY(open(strangeJob()));
    QVERIFY(!m_session->topLevel(1).setting);
    const QStringList told = rows("problems");
    QCOMPARE(told, QStringList("No plug-in for this kind of job claims it.|ISM 433 MHz|"));
    list("problems")->setCurrentItem(list("problems")->topLevelItem(0));
    QTest::keyClick(list("problems"), Qt::Key_Return);
    QCOMPARE(currentRow(), m_session->topLevel(1).subjob.GetName());
}

void TstEditorOverview::receiversAreCounted()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    const QStringList all = rows("resources");
    // A receiver takes from the rack that it is in, and the rack from its parts.
    QVERIFY2(all.contains("Airband scan|TRV9KScanSettings|1 of 2|1|Airband"), qPrintable(all.join('\n')));
    QVERIFY(all.contains("Marine and land mobile scan|TRV9KScanSettings|0 of 2|2|"));
    QVERIFY(all.contains("V/UHF scan rack|TRV9KScanSettings|0 of 3|2|Airband"));
    QVERIFY(all.contains("Short-range devices|HT720|2 of 3|1|ISM 433 MHz"));
    QVERIFY(all.contains("V/UHF channel receivers|HT720|2 of 24|22|ISM 433 MHz"));
    QVERIFY(all.contains("Measurement receiver|MeasurementReceiver|0 of 1|1|"));
    QCOMPARE(all.size(), 18);
    // What a sub-job takes that no plug-in knows counts, too, and is told.
    QVERIFY(open(strangeJob()));
    QVERIFY(
        rows("resources").contains("VUHF-3|SignalRecorder|1|not offered by the installation|ISM 433 MHz"));
}

void TstEditorOverview::tooManyReceiversAreAProblem()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    for (int i = 0; i < 2; ++i)
        QVERIFY(m_session->duplicate(m_session->settingAt({0})));
    const QString last = m_session->settingAt({m_session->topLevelCount() - 1})->getDisplayName();
    QVERIFY2(rows("resources").join('\n').contains("Airband scan|TRV9KScanSettings|3 of 2|1 too many|"),
             qPrintable(rows("resources").join('\n')));
    QCOMPARE(
        rows("problems"),
        QStringList("The job takes 3 of Airband scan (TRV9KScanSettings/VUHF-1), the installation has 2|" +
                    last + "|ResourceDescription.BaseResource"));
    list("problems")->setCurrentItem(list("problems")->topLevelItem(0));
    QTest::keyClick(list("problems"), Qt::Key_Return);
    QCOMPARE(currentRow(), last);
    m_session->undoStack()->undo();
    QCOMPARE(rows("problems"), QStringList());
}

void TstEditorOverview::receiversLeadToTheirSubjob()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    QTreeWidget* const receivers = list("resources");
    receivers->parentWidget()->raise();
    rows("resources");
    const QList<QTreeWidgetItem*> found = receivers->findItems("V/UHF channel receivers", Qt::MatchExactly);
    QCOMPARE(found.size(), 1);
    receivers->setCurrentItem(found.first());
    QTest::keyClick(receivers, Qt::Key_Return);
    QCOMPARE(currentRow(), QString("ISM 433 MHz"));
    receivers->setCurrentItem(receivers->findItems("Measurement receiver", Qt::MatchExactly).value(0));
    QTest::keyClick(receivers, Qt::Key_Return);
    QCOMPARE(currentRow(), QString("ISM 433 MHz"));
}

QAction* TstEditorOverview::action(const QString& text)
{
    for (QAction* action : m_window->menuBar()->findChildren<QAction*>()) {
        if (action->text().remove('&') == text)
            return action;
    }
    return nullptr;
}

void TstEditorOverview::whenAsked(const std::function<void(QWidget*)>& look)
{
    auto* const timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, [timer, look] {
        QWidget* const window = QApplication::activeModalWidget();
        if (!window)
            return;
        timer->deleteLater();
        look(window);
        window->close();
    });
    timer->start(10);
}

void TstEditorOverview::frequenciesLeadToTheField()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    m_window->setCurrentSetting(m_session->settingAt({1}));
    auto* const dock = m_window->findChild<QDockWidget*>("frequenciesDock");
    dock->raise();
    auto* const strip = m_window->findChild<QListView*>("frequencies");
    QTRY_VERIFY(strip->model()->rowCount() > 0);
    strip->setCurrentIndex(strip->model()->index(0, 0));
    strip->setFocus();
    QTest::keyClick(strip, Qt::Key_Return);
    QCOMPARE(currentRow(), QString("Scan"));
    QCOMPARE(QApplication::focusWidget()->objectName(), QString("ScanSettings/Range.StartFrequency"));
}

void TstEditorOverview::summaryIsShown()
{
    QVERIFY(!action("Summary...")->isEnabled());
    QVERIFY(open(EXAMPLES + "search.xml"));
    QVERIFY(action("Print...")->isEnabled());
    QVERIFY(m_session->rename(m_session->settingAt({0}), "Renamed & <unsaved>"));
    QString shown;
    QStringList nameless;
    whenAsked([&shown, &nameless](QWidget* window) {
        shown = window->findChild<QTextBrowser*>()->toPlainText();
        nameless = JedTest::namelessControls(window);
        if (qEnvironmentVariableIsSet("JED_PICTURES"))
            window->grab().save(qEnvironmentVariable("JED_PICTURES") + "/summary.png");
    });
    action("Summary...")->trigger();
    QVERIFY2(shown.contains("1. Renamed & <unsaved>"), qPrintable(shown));
    QVERIFY(shown.contains("about 50.1 s"));
    QCOMPARE(nameless, QStringList());
}

void TstEditorOverview::pagesAreSaved()
{
    const QString page = "<html><body><h1>Title</h1><p>Text \u00fc</p></body></html>";
    const PageWindow window("Title", page, "page");
    QString reason;
    QByteArray bytes;
    QVERIFY2(window.save(m_folder.filePath("page.html"), &reason), qPrintable(reason));
    QVERIFY(Session::readFile(m_folder.filePath("page.html"), &bytes, nullptr));
    QCOMPARE(QString::fromUtf8(bytes), page);
    QVERIFY2(window.save(m_folder.filePath("page.PDF"), &reason), qPrintable(reason));
    QVERIFY(Session::readFile(m_folder.filePath("page.PDF"), &bytes, nullptr));
    QVERIFY(bytes.startsWith("%PDF-") && bytes.contains("%%EOF"));
    QVERIFY(!window.save(m_folder.filePath("nowhere/page.html"), &reason));
    QVERIFY(!reason.isEmpty());
}

void TstEditorOverview::everyPluginHasAManual()
{
    QMenu* const manuals = action("Manuals")->menu();
    emit manuals->aboutToShow();
    QCOMPARE(manuals->actions().size(), m_session->factories().size());
    QStringList shown;
    for (QAction* manual : manuals->actions()) {
        QVERIFY2(manual->text() == "Minimal" || manual->isEnabled(), qPrintable(manual->text()));
        QVERIFY(!manual->toolTip().isEmpty());
        if (!manual->isEnabled())
            continue;
        whenAsked([&shown](QWidget* window) {
            shown.append(window->findChild<QTextBrowser*>()->toPlainText().section('\n', 0, 0));
        });
        manual->trigger();
    }
    shown.sort();
    QCOMPARE(shown,
             (QStringList{"Direction-finding and measurement jobs", "Production jobs", "Search jobs"}));
}

void TstEditorOverview::aboutTellsVersionsAndPlaces()
{
    QString text;
    whenAsked([&text](QWidget* window) {
        text = static_cast<AboutDialog*>(window)->toText();
        if (qEnvironmentVariableIsSet("JED_PICTURES"))
            window->grab().save(qEnvironmentVariable("JED_PICTURES") + "/about.png");
    });
    action("About...")->trigger();
    QVERIFY2(text.contains(QString("Qt %1 /").arg(qVersion())), qPrintable(text));
    QVERIFY(QRegularExpression("Library, interface 1 /\\S*libJobEditorVEPluginBase\\S*\n")
                .match(text)
                .hasMatch());
    for (const PluginHost::Plugin& plugin : m_host.plugins()) {
        if (plugin.factory)
            QVERIFY2(text.contains(
                         QString("Plug-in %1 1 %2\n").arg(plugin.factory->getName(), plugin.report.path)),
                     qPrintable(text));
    }
    QVERIFY(text.contains("Installation " JED_SOURCE_DIR "/installation\n"));
}

void TstEditorOverview::whatCannotBeUsedSaysWhy()
{
    QCOMPARE(action("Save")->toolTip(), QString("There is no job yet"));
    QCOMPARE(action("Delete")->toolTip(), QString("There is no job yet"));
    m_window->newJob(JEDVE::JOB_TYPE_SEARCH);
    QVERIFY(action("Save")->isEnabled());
    QCOMPARE(action("Save")->toolTip(), QString("Save"));
    QCOMPARE(action("Delete")->toolTip(), QString("No setting is selected in the tree"));
    QVERIFY(open(EXAMPLES + "search.xml"));
    QVERIFY(action("Delete")->isEnabled());
    for (const QAction* action : m_window->menuBar()->findChildren<QAction*>())
        QVERIFY2(!action->toolTip().startsWith("There is no job"), qPrintable(action->text()));
    action("Read only")->trigger();
    QCOMPARE(action("Delete")->toolTip(), QString("The setting cannot be changed"));
    QCOMPARE(action("Paste setting")->toolTip(), QString("The job is open for looking only"));
    for (const QMenu* menu : m_window->menuBar()->findChildren<QMenu*>())
        QVERIFY2(menu->toolTipsVisible() || menu->title().isEmpty(), qPrintable(menu->title()));
}

// An icon with two pixels for each of the screen's own stays as large as the others.
void TstEditorOverview::iconsKeepTheirSizeOnFineScreens()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    ISubSetting* const setting = m_session->settingAt({0});
    QPixmap* const icon = setting->getPixmap();
    QVERIFY(icon && icon->devicePixelRatio() == 1.0);
    const QPixmap usual = *icon;
    QPixmap fine(usual.size() * 2);
    fine.setDevicePixelRatio(2);
    fine.fill(Qt::red);
    *icon = fine;
    EditorPane pane;
    pane.show(setting, QString());
    QSize shown;
    for (const QLabel* label : pane.findChildren<QLabel*>()) {
        if (label->pixmap(Qt::ReturnByValue).isNull())
            continue;
        const QPixmap pixmap = label->pixmap(Qt::ReturnByValue);
        shown = pixmap.size() / pixmap.devicePixelRatio();
        break;
    }
    *icon = usual;
    pane.clear();
    QCOMPARE(shown, QSize(24, 24));
}

JED_TEST_MAIN(TstEditorOverview)
#include "tst_editoroverview.moc"
