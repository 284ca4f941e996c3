#include "station.h"

#include <session/jobdocument.h>
#include <session/jobreport.h>
#include <session/savefile.h>
#include <support/testmain.h>

using namespace Session;

// Each case is the example search job with one place of its text changed.
class TstJobReport : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase();
    void findings_data();
    void findings();
    void aValueOutsideTheSchemaHasItsPlace();
    void setsThatTheReceiverDoesNotHave();
    void setsThatAJobFileCannotHold();

private:
    QString findingsFor(const QByteArray& before, const QByteArray& after);

    JobComposer::Resources m_resources;
    QTemporaryDir m_folder;
    QByteArray m_job;
};

void TstJobReport::initTestCase()
{
    m_resources = JedTest::stationResources();
    QVERIFY(readFile(JED_SOURCE_DIR "/tests/data/jobs/search.xml", &m_job, nullptr));
}

void TstJobReport::findings_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QString>("findings"); // FILE stands for the path.
    QTest::newRow("nothing wrong") << QByteArray() << QByteArray() << "";
    QTest::newRow("another layout")
        << QByteArray("\n  <JobInformation>") << QByteArray("<JobInformation>")
        << "FILE: note: saving brings the file into our layout\n    Nothing that it "
           "says is changed.";
    QTest::newRow("unknown receiver")
        << QByteArray("<BaseResource>HF-1<") << QByteArray("<BaseResource>HF-9<")
        << "FILE: warning: sub-job 1, HT720/HF-9: the installation does not offer this receiver\n    Did you "
           "mean \"HT720/HF-1\"?";
    QTest::newRow("start-up mode that the receiver does not offer")
        << QByteArray("<StartupMode>Automatic<") << QByteArray("<StartupMode>OnRequest<")
        << "FILE: warning: sub-job 1, HT720/HF-1: the receiver does not offer the start-up mode "
           "\"OnRequest\" for "
           "this type of job\n    It offers Manual, Automatic, Timed, Permanent.";
    QTest::newRow("start-up modes that the type of job does not allow")
        << QByteArray("<JobType>Search<") << QByteArray("<JobType>Surveillance<")
        << "FILE: warning: sub-job 1, HT720/HF-1: the receiver does not offer the start-up mode "
           "\"Automatic\" for "
           "this type of job\n    It offers Permanent.\n"
           "FILE: warning: sub-job 2, TRV9KScanSettings/VUHF-1: the receiver does not offer the start-up "
           "mode "
           "\"Manual\" for this type of job\n    It offers Permanent.";
    QTest::newRow("value outside the receiver's range")
        << QByteArray("<CenterFrequency>8414500<") << QByteArray("<CenterFrequency>156800000<")
        << "FILE: warning: sub-job 1, HT720/HF-1: TunerSettings/CenterFrequency does not fit the receiver\n  "
           "  jedtool "
           "resources show HT720/HF-1 tells what does.";
}

void TstJobReport::findings()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QString, findings);
    QCOMPARE(findingsFor(before, after), findings);
}

QString TstJobReport::findingsFor(const QByteArray& before, const QByteArray& after)
{
    if (!before.isEmpty() && m_job.count(before) != 1)
        return QString("the text stands %1 times in the job").arg(m_job.count(before));
    const QString file = m_folder.filePath("job.xml");
    saveFile(file, before.isEmpty() ? m_job : QByteArray(m_job).replace(before, after), nullptr);
    JobDocument document;
    Findings found;
    if (document.load(file, &found))
        found += checkJob(&document, m_resources);
    return JedTest::textOf(found).replace(file, "FILE");
}

void TstJobReport::aValueOutsideTheSchemaHasItsPlace()
{
    const int line = m_job.left(m_job.indexOf("<Volume>")).count('\n') + 1;
    const QString found = findingsFor("<Volume>60<", "<Volume>101<");
    QVERIFY2(found.startsWith(QString("FILE:%1:").arg(line)), qPrintable(found));
    QVERIFY2(
        found.contains(
            "error: Element 'Volume': [facet 'maxInclusive'] The value '101' is greater than the maximum "
            "value allowed ('100').\n    The job does not follow the schema of job files.\n"),
        qPrintable(found));
    QVERIFY2(found.endsWith(
                 "FILE: warning: sub-job 1, HT720/HF-1: ADemSettings/Volume does not fit the receiver\n    "
                 "jedtool resources show HT720/HF-1 tells what does."),
             qPrintable(found));
}

void TstJobReport::setsThatTheReceiverDoesNotHave()
{
    const QString found = findingsFor("<Type>TRV9KScanSettings<", "<Type>HT720<");
    QVERIFY2(
        found.contains("FILE: warning: sub-job 2, HT720/VUHF-1: the receiver does not have the parameter set "
                       "ScanSettings"),
        qPrintable(found));
}

void TstJobReport::setsThatAJobFileCannotHold()
{
    const QString found = findingsFor("<BaseResource>HF-1<", "<BaseResource>HF-2<");
    QVERIFY2(
        found.endsWith(
            "FILE: warning: sub-job 1, HT720/HF-2: the receiver has ActivityDetectionSettings, which a job "
            "file cannot hold\n    The receiver keeps the values that it has."),
        qPrintable(found));
}

JED_TEST_MAIN(TstJobReport)
#include "tst_jobreport.moc"
