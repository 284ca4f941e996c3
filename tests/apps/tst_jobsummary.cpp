#include "station.h"
#include <support/testmain.h>

#include <isubsetting.h>
#include <jedsubsettingfactory.h>
#include <QProcess>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <session/installation.h>
#include <session/jobsession.h>
#include <session/jobsummary.h>
#include <session/pluginhost.h>
#include <session/savefile.h>

using Session::JobSession;
using Session::PluginHost;

// The summaries of jobs, letter by letter, compared with files in tests/data/expected/summary, which dev/accept-output
// writes anew.
namespace {
const QString EXAMPLES = JED_SOURCE_DIR "/installation/Jobs/";
const QString EXPECTED_FOLDER = JED_SOURCE_DIR "/tests/data/expected/summary/";
// What must neither become markup nor get lost.
const QString NASTY = "<b>&amp;\"'</b><script>alert(1)</script>";
} // namespace

class TstJobSummary : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void init() { m_session = std::make_unique<JobSession>(m_host.factories()); }
    void cleanup() { m_session.reset(); }

    void page_data();
    void page();
    void namesAreNoMarkup();
    void subjobsWithoutPluginAreNamed();
    void overuseIsAProblem();
    void richTextShowsAllOfIt();
    void jedtoolGivesTheSame_data() { examples(); }
    void jedtoolGivesTheSame();

private:
    void examples();
    bool open(const QString& path);
    QString summary() const { return Session::jobSummary(*m_session, m_resources); }

    PluginHost m_host;
    Session::JobComposer::Resources m_resources;
    std::unique_ptr<JobSession> m_session;
    QTemporaryDir m_folder;
};

void TstJobSummary::initTestCase()
{
    qputenv("SOURCE_DATE_EPOCH", "1700000000");
    m_resources = JedTest::stationResources();
    m_host.load(PluginHost::defaultFolders());
    QVERIFY(m_host.factory("Search") && m_host.factory("Production") && m_host.factory("DFScan"));
}

void TstJobSummary::examples()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"dfscan", "measurement", "production", "search", "surveillance"})
        QTest::newRow(name) << QString(name);
}

bool TstJobSummary::open(const QString& path)
{
    Session::Findings findings;
    return m_session->open(path, &findings);
}

void TstJobSummary::page_data()
{
    examples();
    QTest::newRow("empty") << QString();
}

void TstJobSummary::page()
{
    QFETCH(QString, name);
    if (name.isEmpty())
        m_session->begin(JEDVE::JOB_TYPE_SEARCH, QString());
    else
        QVERIFY(open(EXAMPLES + name + ".xml"));
    const QByteArray written = summary().toUtf8();
    const QString file = EXPECTED_FOLDER + QTest::currentDataTag() + ".html";
    if (qEnvironmentVariableIsSet("JED_ACCEPT_OUTPUT")) {
        QVERIFY(QDir().mkpath(EXPECTED_FOLDER));
        QVERIFY(Session::saveFile(file, written, nullptr));
    }
    QByteArray expected;
    QVERIFY(Session::readFile(file, &expected, nullptr));
    QCOMPARE(QString::fromUtf8(written).split('\n'), QString::fromUtf8(expected).split('\n'));
    QCOMPARE(summary().toUtf8(), written);
}

void TstJobSummary::namesAreNoMarkup()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    JobXml::JobInformation& job = m_session->document().job().GetJobInformation();
    job.SetName(NASTY);
    job.SetComment("two\n\nlines\t" + NASTY);
    QVERIFY(m_session->rename(m_session->settingAt({0}), NASTY));
    const QString page = summary();
    QCOMPARE(page.count("<script"), 0);
    QCOMPARE(page.count(NASTY), 0);
    QVERIFY(page.contains("<h2>1. " + NASTY.toHtmlEscaped() + "</h2>"));
    QVERIFY(page.contains("<td>two lines " + NASTY.toHtmlEscaped() + "</td>"));
    QTextDocument document;
    document.setHtml(page);
    QCOMPARE(document.toPlainText().count(NASTY), 4); // Heading, name and comment of the job; the sub-job.
    QCOMPARE(document.metaInformation(QTextDocument::DocumentTitle), NASTY);
}

void TstJobSummary::subjobsWithoutPluginAreNamed()
{
    QByteArray job;
    QVERIFY(Session::readFile(EXAMPLES + "production.xml", &job, nullptr));
    const QString file = m_folder.filePath("stranger.xml");
    QVERIFY(
        Session::saveFile(file, job.replace("<Type>HT720</Type>", "<Type>SignalRecorder</Type>"), nullptr));
    QVERIFY(open(file));
    QVERIFY(!m_session->topLevel(0).setting);
    const QString page = summary();
    QVERIFY(page.contains("<td>Plug-in</td><td>none: No plug-in for this kind of job claims it.</td>"));
    const QString name = m_session->topLevel(0).subjob.GetName();
    QVERIFY(page.contains("<tr><td>Warning</td><td>1. " + name +
                          "</td><td>No plug-in for this kind of job claims it.</td></tr>"));
    QVERIFY(page.contains("which the installation does not offer</td>"));
    QVERIFY(page.contains("<td>not offered</td>"));
}

void TstJobSummary::overuseIsAProblem()
{
    QVERIFY(open(EXAMPLES + "search.xml"));
    QVERIFY(!summary().contains("The job takes"));
    for (int i = 0; i < 2; ++i)
        QVERIFY(m_session->duplicate(m_session->settingAt({0})));
    const QString page = summary();
    QVERIFY(page.contains(
        "<td>The job takes 3 of Airband scan (TRV9KScanSettings/VUHF-1), the installation has 2</td>"));
    QVERIFY(page.contains("<tr><td>Airband scan (TRV9KScanSettings/VUHF-1)</td><td>3</td><td>2</td><td>1 too "
                          "many</td></tr>"));
}

// A viewer may leave out what it does not know, but no text.
void TstJobSummary::richTextShowsAllOfIt()
{
    QVERIFY(open(EXAMPLES + "surveillance.xml"));
    const QString page = summary();
    QTextDocument document;
    document.setHtml(page);
    const QString shown = document.toPlainText();
    int cells = 0;
    QRegularExpressionMatchIterator cell =
        QRegularExpression("<(t[dh]|h\\d|p)[^>]*>([^<]+)<").globalMatch(page);
    for (; cell.hasNext(); ++cells) {
        QTextDocumentFragment text = QTextDocumentFragment::fromHtml(cell.next().captured(2));
        QVERIFY2(shown.contains(text.toPlainText()), qPrintable(text.toPlainText()));
    }
    QVERIFY(cells > 200);
}

void TstJobSummary::jedtoolGivesTheSame()
{
    QFETCH(QString, name);
    QVERIFY(open(EXAMPLES + name + ".xml"));
    QProcess tool;
    tool.start(JED_BINARY_DIR "/bin/jedtool", {"job", "show", EXAMPLES + name + ".xml", "--format", "html",
                                               "--installation", JED_SOURCE_DIR "/installation"});
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.readAllStandardOutput(), summary().toUtf8());
}

JED_TEST_MAIN(TstJobSummary)
#include "tst_jobsummary.moc"
