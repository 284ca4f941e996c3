#include <freqstorexml/filehandling.h>
#include <frequencystorelistprofile.h>
#include <functional>
#include <jobprofilefactory.h>
#include <jobxml/settings.h>
#include <QRegularExpression>
#include <QTemporaryFile>
#include <reportlayer/rgexception.h>
#include <support/tracerecorder.h>
#include <zubase/errorhandler.h>

// The program's own definitions of three platform operations stand in front of those of the platform's libraries,
// which never fail in these ways; those of an installation may.

using JedTest::TraceRecorder;
using JEDVEPLUGIN::FrequencyStoreListProfile;
using JEDVEPLUGIN::JobProfileFactory;
using JEDVEPLUGIN::JobXmlHandler;
using REPORTGENERATOR::IRGObject;
using REPORTGENERATOR::RGException;

namespace {
QString s_failing; // operation that does not succeed
std::function<bool()> s_failure;

bool outcomeOf(const QString& operation)
{
    return operation != s_failing || s_failure();
}

/// The traces as "file: message".
QString withoutLine(QStringList traces)
{
    static const QRegularExpression LINE("^(\\w+):\\d+");
    return traces.replaceInStrings(LINE, "\\1").join('|');
}
} // namespace

bool IRGObject::TakeOver(const IRGObject&)
{
    return outcomeOf("TakeOver");
}

bool IRGObject::SetXmlString(const QString&, bool)
{
    return outcomeOf("SetXmlString");
}

bool FreqStoreXml::FileHandling::IsValidFormat(const QString&) const
{
    return outcomeOf("IsValidFormat");
}

Q_DECLARE_METATYPE(std::function<bool()>)

class TstJobProfileFaults : public QObject
{
    Q_OBJECT
private slots:
    void init();
    void cleanup() { s_failing.clear(); }

    void getProfile_data();
    void getProfile();
    void modifySetting_data();
    void modifySetting();
    void importSignalDescription_data();
    void importSignalDescription();
    void nothingIsTracedUnlessAskedFor();

private:
    /// Columns for the operation that fails, its failure and what is traced, and a row for each failure.
    void addFailures(const QString& operation, const QString& answered, const QString& reported,
                     const QString& unknown);

    std::unique_ptr<QTemporaryFile> m_file;
};

void TstJobProfileFaults::addFailures(const QString& operation, const QString& answered,
                                      const QString& reported, const QString& unknown)
{
    QTest::addColumn<QString>("operation");
    QTest::addColumn<std::function<bool()>>("failure");
    QTest::addColumn<QString>("trace"); // empty: none
    const auto add = [&operation](const char* kind, const std::function<bool()>& failure,
                                  const QString& trace) {
        QTest::addRow("%s %s", qPrintable(operation), kind) << operation << failure << trace;
    };
    add(
        "answers no", [] { return false; }, answered);
    add(
        "gives a reason", []() -> bool { throw RGException("no %1 left %2"); }, reported);
    add(
        "fails otherwise", []() -> bool { throw 42; }, unknown);
}

void TstJobProfileFaults::init()
{
    m_file = std::make_unique<QTemporaryFile>();
    QVERIFY(m_file->open());
    m_file->write(
        "<FrequencyStoreList><FrequencyStoreEntry><FFM_Settings><CenterFrequency>1</CenterFrequency>"
        "</FFM_Settings></FrequencyStoreEntry></FrequencyStoreList>");
    m_file->close();
}

void TstJobProfileFaults::getProfile_data()
{
    addFailures(
        "IsValidFormat",
        "jobprofilefactory: JobProfileFactory::getProfile(of%2.xml) - no applicable JobProfile class found",
        "jobprofilefactory: JobProfileFactory::getProfile(of%2.xml) - RGExcpetion: no %1 left %2",
        "jobprofilefactory: JobProfileFactory::getProfile(of%2.xml) - Exception caught");
}

void TstJobProfileFaults::getProfile()
{
    QFETCH(QString, operation);
    QFETCH(std::function<bool()>, failure);
    QFETCH(QString, trace);
    s_failing = operation;
    s_failure = failure;
    TraceRecorder recorder;
    QVERIFY(!JobProfileFactory::getProfile("of%2.xml"));
    QCOMPARE(withoutLine(recorder.take()), trace);
}

void TstJobProfileFaults::modifySetting_data()
{
    const QString reported =
        "frequencystorelistprofile: FrequenyStoreListProfile::modifySetting - RGException: no %1 left %2";
    const QString unknown =
        "frequencystorelistprofile: FrequenyStoreListProfile::modifySetting - Exception caught";
    addFailures("TakeOver", "", reported, unknown);
    addFailures("SetXmlString", "", reported, unknown);
}

void TstJobProfileFaults::modifySetting()
{
    QFETCH(QString, operation);
    QFETCH(std::function<bool()>, failure);
    QFETCH(QString, trace);
    FrequencyStoreListProfile profile(m_file->fileName());
    QVERIFY(profile.isApplicable());
    s_failing = operation;
    s_failure = failure;
    TraceRecorder recorder;
    QString xml = "<FFM_Settings/>";
    QVERIFY(!profile.modifySetting(0, JobXmlHandler::SETTING_TUNER, xml));
    QCOMPARE(xml, QString("<FFM_Settings/>"));
    QCOMPARE(withoutLine(recorder.take()), trace);
}

void TstJobProfileFaults::importSignalDescription_data()
{
    // Without a text to read, the conversion of the list is what fails.
    addFailures(
        "SetXmlString",
        "frequencystorelistprofile: FrequencyStoreListProfile::importSignalDescription: invalid XML "
        "conversion",
        "frequencystorelistprofile: FrequencyStoreListProfile::importSignalDescription: no %1 left %2", "");
}

void TstJobProfileFaults::importSignalDescription()
{
    QFETCH(QString, operation);
    QFETCH(std::function<bool()>, failure);
    QFETCH(QString, trace);
    FrequencyStoreListProfile profile(m_file->fileName());
    s_failing = operation;
    s_failure = failure;
    TraceRecorder recorder;
    QString xml;
    JobXml::SignalDescription description;
    QVERIFY(!profile.importSignalDescription(xml, description));
    QCOMPARE(xml, QString());
    QCOMPARE(withoutLine(recorder.take()), trace);
}

void TstJobProfileFaults::nothingIsTracedUnlessAskedFor()
{
    FrequencyStoreListProfile profile(m_file->fileName());
    ErrorHandler* const handler = ErrorHandler::Instance();
    const quint32 mask = handler->GetTraceMask();
    handler->SetTraceMask(~0x20u);
    TraceRecorder recorder;
    s_failure = []() -> bool { throw RGException("reason"); };
    QString xml;
    JobXml::SignalDescription description;
    s_failing = "SetXmlString";
    QVERIFY(!profile.modifySetting(0, JobXmlHandler::SETTING_TUNER, xml));
    QVERIFY(!profile.importSignalDescription(xml, description));
    s_failing = "IsValidFormat";
    QVERIFY(!JobProfileFactory::getProfile(m_file->fileName()));
    handler->SetTraceMask(mask);
    QCOMPARE(recorder.take(), QStringList());
}

QTEST_GUILESS_MAIN(TstJobProfileFaults)
#include "tst_jobprofilefaults.moc"
