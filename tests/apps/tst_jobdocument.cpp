#include "station.h"

#include <session/jobdocument.h>
#include <session/savefile.h>

using namespace Session;

class TstJobDocument : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void theExampleJobsComeBackByteForByte_data();
    void theExampleJobsComeBackByteForByte();
    void whatWeWriteComesBackByteForByte();
    void anotherLayoutBecomesOursOnce();
    void whatIsNotKnownStays();
    void loadingRefuses_data();
    void loadingRefuses();
    void aRefusedLoadKeepsTheDocument();
    void valuesThatDoNotConvertAreFindings();
    void anInvalidJobIsNotSaved();
    void aFaultLeavesTheOldFile();
    void validatingNamesThePlaceInTheFile();

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }
    QString write(const QString& name, const QByteArray& content)
    {
        saveFile(path(name), content, nullptr);
        return path(name);
    }
    QByteArray contentOf(const QString& name) const
    {
        QByteArray content;
        readFile(path(name), &content, nullptr);
        return content;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    Findings m_findings;
};

namespace {
const char* const SMALL_JOB = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                              "<Job version=\"1.2\">\n"
                              "  <JobInformation>\n"
                              "    <JobType>Search</JobType>\n"
                              "    <Name>Küste &amp; Hafen</Name>\n"
                              "  </JobInformation>\n"
                              "</Job>\n";
}

void TstJobDocument::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_findings.clear();
}

void TstJobDocument::theExampleJobsComeBackByteForByte_data()
{
    QTest::addColumn<QString>("file");
    const QDir folder(JED_SOURCE_DIR "/installation/Jobs");
    for (const QString& name : folder.entryList(QDir::Files))
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

void TstJobDocument::theExampleJobsComeBackByteForByte()
{
    QFETCH(QString, file);
    JobDocument document;
    QVERIFY2(document.load(file, &m_findings), qPrintable(JedTest::textOf(m_findings)));
    QVERIFY2(document.save(path("job.xml"), &m_findings), qPrintable(JedTest::textOf(m_findings)));
    QCOMPARE(contentOf("job.xml"), document.loadedText());
    QVERIFY(m_findings.isEmpty());
}

void TstJobDocument::whatWeWriteComesBackByteForByte()
{
    JobDocument document;
    document.job().GetJobInformation().SetJobType(JobXml::JobInformation::JobType(1));
    document.job().GetJobInformation().SetName(QString::fromUtf8("Küste & Hafen"));
    QVERIFY2(document.save(path("job.xml"), &m_findings), qPrintable(JedTest::textOf(m_findings)));
    QCOMPARE(contentOf("job.xml"), QByteArray(SMALL_JOB));
    QCOMPARE(document.path(), path("job.xml"));
    JobDocument again;
    QVERIFY(again.load(path("job.xml"), &m_findings));
    QCOMPARE(again.loadedText(), QByteArray(SMALL_JOB));
    QCOMPARE(again.text(), again.loadedText());
    QVERIFY(again.job().GetJobInformation().GetName() == QString::fromUtf8("Küste & Hafen"));
}

void TstJobDocument::anotherLayoutBecomesOursOnce()
{
    JobDocument document;
    QVERIFY(document.load(write("job.xml",
                                "<Job version='1.2'><JobInformation><JobType>Search</JobType><Name>Küste "
                                "&#38; Hafen</Name></JobInformation></Job>"),
                          &m_findings));
    QCOMPARE(document.text(), QByteArray(SMALL_JOB));
}

void TstJobDocument::whatIsNotKnownStays()
{
    const QByteArray text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                            "<Job version=\"1.2\" made=\"elsewhere\">\n"
                            "  <!-- first -->\n"
                            "  <JobInformation>\n"
                            "    <JobType>Search</JobType>\n"
                            "    <Name>N</Name>\n"
                            "  </JobInformation>\n"
                            "  <Annex kind=\"x\">more</Annex>\n"
                            "</Job>\n";
    JobDocument document;
    QVERIFY(document.load(write("job.xml", text), &m_findings));
    document.job().GetJobInformation().SetName("M");
    QCOMPARE(document.text(), QByteArray(text).replace("<Name>N<", "<Name>M<"));
}

void TstJobDocument::loadingRefuses_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("finding"); // Behind the path.
    const QString advice = "\n    This is no job file, or it is damaged.";
    QTest::newRow("empty") << QByteArray() << ":1: error: Premature end of document." + advice;
    QTest::newRow("cut off") << QByteArray(SMALL_JOB).left(100)
                             << ":4:22: error: Premature end of document." + advice;
    QTest::newRow("other root") << QByteArray("<Profile/>")
                                << ":1:10: error: The root is <Profile> instead of <Job>" + advice;
    QTest::newRow("document type") << QByteArray("<!DOCTYPE Job>\n<Job/>")
                                   << ":1: error: A document type is not allowed" + advice;
    QTest::newRow("NUL") << QByteArray("<Job/>\0", 7)
                         << ":1:6: error: The text holds a NUL character" + advice;
}

void TstJobDocument::loadingRefuses()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, finding);
    JobDocument document;
    const QString file = write("job.xml", content);
    QVERIFY(!document.load(file, &m_findings));
    QCOMPARE(JedTest::textOf(m_findings), file + finding);
}

void TstJobDocument::aRefusedLoadKeepsTheDocument()
{
    JobDocument document;
    QVERIFY(document.load(write("job.xml", SMALL_JOB), &m_findings));
    QVERIFY(!document.load(path("none.xml"), &m_findings));
    QCOMPARE(JedTest::textOf(m_findings),
             path("none.xml") + ": error: cannot be read: there is no such file");
    QCOMPARE(document.path(), path("job.xml"));
    QCOMPARE(document.text(), QByteArray(SMALL_JOB));
}

void TstJobDocument::valuesThatDoNotConvertAreFindings()
{
    const QByteArray text =
        QByteArray(SMALL_JOB).replace("</Name>\n", "</Name>\n    <Priority>high</Priority>\n");
    JobDocument document;
    const QString file = write("job.xml", text);
    QVERIFY(document.load(file, &m_findings));
    QCOMPARE(m_findings.size(), 1);
    QCOMPARE(m_findings.at(0).line, 6);
    QVERIFY2(m_findings.at(0).text.contains("high"), qPrintable(m_findings.at(0).text));
    QCOMPARE(document.text(), text);
}

void TstJobDocument::anInvalidJobIsNotSaved()
{
    write("job.xml", SMALL_JOB);
    JobDocument document;
    document.job().GetJobInformation().SetName("no type");
    document.job().GetJobInformation().SetPriority(11);
    QVERIFY(!document.save(path("job.xml"), &m_findings));
    QCOMPARE(m_findings.size(), 1);
    QCOMPARE(m_findings.at(0).place, path("job.xml"));
    QCOMPARE(m_findings.at(0).advice, QString("The job does not follow the schema of job files."));
    QCOMPARE(contentOf("job.xml"), QByteArray(SMALL_JOB));
}

void TstJobDocument::aFaultLeavesTheOldFile()
{
    JobDocument document;
    QVERIFY(document.load(write("job.xml", SMALL_JOB), &m_findings));
    QVERIFY(!document.save(path("none/job.xml"), &m_findings));
    QCOMPARE(JedTest::textOf(m_findings),
             QString("%1: error: cannot be written: the folder %2 does not exist\n    The file "
                     "is as it was before.")
                 .arg(path("none/job.xml"), path("none")));
}

void TstJobDocument::validatingNamesThePlaceInTheFile()
{
    const QByteArray text =
        QByteArray(SMALL_JOB).replace("</Name>\n", "</Name>\n    <Priority>11</Priority>\n");
    JobDocument document;
    document.load(write("job.xml", text), &m_findings);
    m_findings.clear();
    QVERIFY(!document.validate(&m_findings));
    QCOMPARE(m_findings.value(0).line, 6);
    QVERIFY2(m_findings.at(0).text.contains("11"), qPrintable(m_findings.at(0).text));
    document.job().GetJobInformation().SetPriority(10);
    m_findings.clear();
    QVERIFY2(document.validate(&m_findings), qPrintable(JedTest::textOf(m_findings)));
}

QTEST_GUILESS_MAIN(TstJobDocument)
#include "tst_jobdocument.moc"
