#include <frequencystorelistprofile.h>
#include <jobprofilefactory.h>
#include <jobxml/settings.h>
#include <QTemporaryDir>
#include <reportlayer/rgexception.h>
#include <support/tracerecorder.h>
#include <type_traits>
#include <zubase/errorhandler.h>

using JedTest::TraceRecorder;
using JEDVEPLUGIN::FrequencyStoreListProfile;
using JEDVEPLUGIN::IJobProfile;
using JEDVEPLUGIN::JobProfileFactory;
using JEDVEPLUGIN::JobXmlHandler;

namespace {
// Entries, each with the kinds of settings that its letters name: F tuner, S short time, D demodulation, P profile.
QString storeList(const QString& entries)
{
    QString text = "<FrequencyStoreList><Name>Marine</Name>";
    int number = 0;
    for (const QString& kinds : entries.split(' ', Qt::SkipEmptyParts)) {
        ++number;
        text += "<FrequencyStoreEntry>";
        if (kinds.contains('F'))
            text += QString("<FFM_Settings><CenterFrequency>%1</CenterFrequency></FFM_Settings>")
                        .arg(156000000 + number);
        if (kinds.contains('S'))
            text += QString("<ShortTime_Settings><MinimumBursts>%1</MinimumBursts></ShortTime_Settings>")
                        .arg(number);
        if (kinds.contains('D'))
            text += "<Demodulator_Settings><SymbolRate>9600</SymbolRate></Demodulator_Settings>";
        if (kinds.contains('P'))
            text += QString("<Profile_Data><ProfileID>id%1</ProfileID><ProfileName>Profile %1</ProfileName>"
                            "</Profile_Data>")
                        .arg(number);
        text += "</FrequencyStoreEntry>";
    }
    return text + "</FrequencyStoreList>";
}

JobXmlHandler::enJOB_SETTING_TYPES settingType(int number)
{
    return static_cast<JobXmlHandler::enJOB_SETTING_TYPES>(number);
}

QList<int> numbers(const QList<JobXmlHandler::enJOB_SETTING_TYPES>& types)
{
    QList<int> result;
    for (const JobXmlHandler::enJOB_SETTING_TYPES type : types)
        result.append(int(type));
    return result;
}
} // namespace

class TstJobProfiles : public QObject
{
    Q_OBJECT
private slots:
    void init();

    void kindFollowsTheEntries_data();
    void kindFollowsTheEntries();
    void settingTypesOfAnEntry();
    void profileData();
    void modifyMergesIntoTheSet();
    void modifyTakesEachKind_data();
    void modifyTakesEachKind();
    void modifyRefuses_data();
    void modifyRefuses();
    void modifyOfAnEmptyTextMakesTheElement();
    void modifyByWhatAnEntryLacksChangesNothing();
    void signalDescriptionIsAppended();
    void signalDescriptionIntoAnEmptyText();
    void signalDescriptionOfAnUnusableList();
    void signalDescriptionIntoUnreadableText();

    void factoryRefusesOtherFiles_data();
    void factoryRefusesOtherFiles();
    void factoryTracesAMalformedList();
    void factoryTracesByTheMask();
    void constructorThrowsWithoutAFile();
    void interfaceIsAsPluginsKnowIt();

private:
    QString write(const QString& text, const QString& name = "list.xml");
    std::shared_ptr<IJobProfile> profile(const QString& entries);

    std::unique_ptr<QTemporaryDir> m_folder;
};

void TstJobProfiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

QString TstJobProfiles::write(const QString& text, const QString& name)
{
    QFile file(m_folder->filePath(name));
    [&] { QVERIFY(file.open(QIODevice::WriteOnly)); }();
    file.write(text.toUtf8());
    return file.fileName();
}

std::shared_ptr<IJobProfile> TstJobProfiles::profile(const QString& entries)
{
    return JobProfileFactory::getProfile(write(storeList(entries)));
}

void TstJobProfiles::kindFollowsTheEntries_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<bool>("isApplicable");
    QTest::addColumn<bool>("isShortTime");
    QTest::newRow("no entry") << "" << false << false;
    QTest::newRow("one tuner") << "F" << true << false;
    QTest::newRow("tuners") << "F FD F" << true << false;
    QTest::newRow("one short time") << "S" << true << true;
    QTest::newRow("short times") << "S SD S" << true << true;
    QTest::newRow("tuner, then short time") << "F S" << false << false;
    QTest::newRow("short time, then tuner") << "S F" << false << false;
    QTest::newRow("neither") << "D" << false << false;
    QTest::newRow("neither at the end") << "F F D" << false << false;
    QTest::newRow("neither in the middle ends the walk") << "S D S" << false << false;
    QTest::newRow("neither first, tuners behind") << "D F F" << false << false;
    QTest::newRow("both count as tuner") << "FS" << true << false;
    QTest::newRow("both among tuners") << "F FS F" << true << false;
    QTest::newRow("both behind short times") << "S FS S" << true << true;
    QTest::newRow("both first, then short time") << "FS S" << false << false;
}

void TstJobProfiles::kindFollowsTheEntries()
{
    QFETCH(QString, entries);
    const std::shared_ptr<IJobProfile> found = profile(entries);
    QVERIFY(found);
    QTEST(found->isApplicable(), "isApplicable");
    QTEST(found->isShortTimeProfile(), "isShortTime");
    QCOMPARE(found->getEntryCount(), entries.split(' ', Qt::SkipEmptyParts).size());
}

void TstJobProfiles::settingTypesOfAnEntry()
{
    const std::shared_ptr<IJobProfile> found = profile("F FD S SD FSD D");
    QCOMPARE(numbers(found->getSettingTypes(0)), QList<int>({7}));
    QCOMPARE(numbers(found->getSettingTypes(1)), QList<int>({7, 5}));
    QCOMPARE(numbers(found->getSettingTypes(2)), QList<int>({12}));
    QCOMPARE(numbers(found->getSettingTypes(3)), QList<int>({12, 5}));
    QCOMPARE(numbers(found->getSettingTypes(4)), QList<int>({7, 5}));
    // Whatever has no tuner settings counts as a short-time entry.
    QCOMPARE(numbers(found->getSettingTypes(5)), QList<int>({12, 5}));
    QCOMPARE(numbers(found->getSettingTypes(-1)), QList<int>());
    QCOMPARE(numbers(found->getSettingTypes(6)), QList<int>());
}

void TstJobProfiles::profileData()
{
    const std::shared_ptr<IJobProfile> found = profile("FP F");
    QCOMPARE(found->getProfileID(0), QString("id1"));
    QCOMPARE(found->getProfileName(0), QString("Profile 1"));
    for (const int index : {1, 2, -1}) {
        QCOMPARE(found->getProfileID(index), QString());
        QCOMPARE(found->getProfileName(index), QString());
    }
}

void TstJobProfiles::modifyMergesIntoTheSet()
{
    const std::shared_ptr<IJobProfile> found = profile("F");
    QString xml =
        "<FFM_Settings><CenterFrequency>1</CenterFrequency><ChannelName>16</ChannelName></FFM_Settings>";
    QVERIFY(found->modifySetting(0, settingType(7), xml));
    JobXml::FFM_Settings settings;
    QVERIFY(settings.SetXmlString(xml, false));
    QCOMPARE(settings.GetCenterFrequency(), qint64(156000001));
    QCOMPARE(settings.GetChannelName(), QString("16"));
}

void TstJobProfiles::modifyTakesEachKind_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("expected");
    QTest::newRow("demodulation") << 5 << "<Demodulator_Settings/>"
                                  << "<SymbolRate>9600</SymbolRate>";
    QTest::newRow("tuner") << 7 << "<FFM_Settings/>"
                           << "<CenterFrequency>156000001</CenterFrequency>";
    QTest::newRow("short time") << 12 << "<ShortTime_Settings/>"
                                << "<MinimumBursts>1</MinimumBursts>";
}

void TstJobProfiles::modifyTakesEachKind()
{
    QFETCH(int, type);
    QFETCH(QString, before);
    QFETCH(QString, expected);
    QString xml = before;
    QVERIFY(profile("FSD")->modifySetting(0, settingType(type), xml));
    QVERIFY2(xml.contains(expected), qPrintable(xml));
}

void TstJobProfiles::modifyRefuses_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("before");
    QTest::newRow("below the first entry") << -1 << 7 << "<FFM_Settings/>";
    QTest::newRow("behind the last entry") << 1 << 7 << "<FFM_Settings/>";
    for (int type = -1; type <= 20; ++type) {
        if (type != 5 && type != 7 && type != 12)
            QTest::addRow("type %d", type) << 0 << type << "<FFM_Settings/>";
    }
    QTest::newRow("malformed text") << 0 << 7 << "<FFM_Settings>";
    QTest::newRow("other element") << 0 << 7 << "<FFTSettings/>";
}

void TstJobProfiles::modifyRefuses()
{
    QFETCH(int, index);
    QFETCH(int, type);
    QFETCH(QString, before);
    QString xml = before;
    QVERIFY(!profile("FSD")->modifySetting(index, settingType(type), xml));
    QCOMPARE(xml, before);
}

void TstJobProfiles::modifyOfAnEmptyTextMakesTheElement()
{
    QString xml;
    QVERIFY(profile("F")->modifySetting(0, settingType(7), xml));
    QVERIFY2(xml.startsWith("<FFM_Settings>"), qPrintable(xml));
}

void TstJobProfiles::modifyByWhatAnEntryLacksChangesNothing()
{
    const std::shared_ptr<IJobProfile> found = profile("F");
    QString xml = "<Demodulator_Settings><SymbolRate>1200</SymbolRate></Demodulator_Settings>";
    QVERIFY(found->modifySetting(0, settingType(5), xml));
    JobXml::Demodulator_Settings settings;
    QVERIFY(settings.SetXmlString(xml, false));
    QCOMPARE(settings.GetSymbolRate(), 1200);
}

void TstJobProfiles::signalDescriptionIsAppended()
{
    const std::shared_ptr<IJobProfile> found = profile("F FD");
    JobXml::SignalDescriptions before;
    before.SetProfileName("Known");
    before.AppendSignalDescription(JobXml::SignalDescription());
    before.GetSignalDescription()[0].SetName("first");
    QString xml = before.GetXmlString();
    JobXml::SignalDescription description;
    description.SetName("second");
    QVERIFY(found->importSignalDescription(xml, description));
    QCOMPARE(description.GetFrequencyStoreList().GetName(), QString("Profile Import"));

    JobXml::SignalDescriptions after;
    QVERIFY(after.SetXmlString(xml, false));
    QCOMPARE(after.GetProfileName(), QString("Known"));
    QCOMPARE(after.GetSignalDescription().size(), 2);
    QCOMPARE(after.GetSignalDescription().at(0).GetName(), QString("first"));
    const JobXml::SignalDescription& added = after.GetSignalDescription().at(1);
    QCOMPARE(added.GetName(), QString("second"));
    QCOMPARE(added.GetFrequencyStoreList().GetName(), QString("Profile Import"));
    QCOMPARE(added.GetFrequencyStoreList().GetFrequencyStoreEntry().size(), 2);
    QCOMPARE(
        added.GetFrequencyStoreList().GetFrequencyStoreEntry().at(1).GetFFM_Settings().GetCenterFrequency(),
        qint64(156000002));
}

void TstJobProfiles::signalDescriptionIntoAnEmptyText()
{
    QString xml;
    JobXml::SignalDescription description;
    QVERIFY(profile("S")->importSignalDescription(xml, description));
    JobXml::SignalDescriptions after;
    QVERIFY(after.SetXmlString(xml, false));
    QCOMPARE(after.GetSignalDescription().size(), 1);
}

void TstJobProfiles::signalDescriptionOfAnUnusableList()
{
    TraceRecorder recorder;
    QString xml = "<SignalDescriptions/>";
    JobXml::SignalDescription description;
    QVERIFY(!profile("F S")->importSignalDescription(xml, description));
    QCOMPARE(xml, QString("<SignalDescriptions/>"));
    QVERIFY(!description.IsFrequencyStoreListSet());
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobProfiles::signalDescriptionIntoUnreadableText()
{
    const std::shared_ptr<IJobProfile> found = profile("F");
    TraceRecorder recorder;
    QString xml = "<SignalDescriptions>";
    JobXml::SignalDescription description;
    QVERIFY(!found->importSignalDescription(xml, description));
    QCOMPARE(xml, QString("<SignalDescriptions>"));
    const QStringList traces = recorder.take();
    QCOMPARE(traces.size(), 1);
    QVERIFY(traces[0].startsWith("frequencystorelistprofile:"));
    QVERIFY(traces[0].endsWith(": FrequencyStoreListProfile::importSignalDescription: invalid XML content"));
}

void TstJobProfiles::factoryRefusesOtherFiles_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("other root") << "<Job/>";
    QTest::newRow("no XML") << "frequency;name";
    QTest::newRow("nothing") << "";
    QTest::newRow("document type") << "<!DOCTYPE FrequencyStoreList><FrequencyStoreList/>";
}

void TstJobProfiles::factoryRefusesOtherFiles()
{
    QFETCH(QString, text);
    const QString file = write(text);
    for (const QString& path : {file, m_folder->filePath("missing %2.xml"), m_folder->path()}) {
        TraceRecorder recorder;
        QVERIFY(!JobProfileFactory::getProfile(path));
        const QStringList traces = recorder.take();
        QCOMPARE(traces.size(), 1);
        QVERIFY(traces[0].startsWith("jobprofilefactory:"));
        QVERIFY2(traces[0].endsWith(": JobProfileFactory::getProfile(" + path +
                                    ") - no applicable JobProfile class found"),
                 qPrintable(traces[0]));
    }
}

void TstJobProfiles::factoryTracesAMalformedList()
{
    const QString file = write("<FrequencyStoreList>\n<FrequencyStoreEntry></FrequencyStoreList>");
    TraceRecorder recorder;
    QVERIFY(!JobProfileFactory::getProfile(file));
    const QStringList traces = recorder.take();
    QCOMPARE(traces.size(), 1);
    QVERIFY2(traces[0].contains(": JobProfileFactory::getProfile(" + file + ") - RGExcpetion: " + file +
                                ": line 2: "),
             qPrintable(traces[0]));
}

void TstJobProfiles::factoryTracesByTheMask()
{
    ErrorHandler* const handler = ErrorHandler::Instance();
    const quint32 mask = handler->GetTraceMask();
    handler->SetTraceMask(~0x20u);
    TraceRecorder recorder;
    QVERIFY(!JobProfileFactory::getProfile(write("<Job/>")));
    handler->SetTraceMask(mask);
    QCOMPARE(recorder.take(), QStringList());
}

void TstJobProfiles::constructorThrowsWithoutAFile()
{
    QVERIFY_EXCEPTION_THROWN(FrequencyStoreListProfile(m_folder->filePath("missing.xml")),
                             REPORTGENERATOR::RGException);
}

void TstJobProfiles::interfaceIsAsPluginsKnowIt()
{
    static_assert(!std::has_virtual_destructor_v<IJobProfile>);
    static_assert(std::is_abstract_v<IJobProfile>);
    static_assert(!std::is_default_constructible_v<JobProfileFactory>);
    static_assert(std::is_base_of_v<IJobProfile, FrequencyStoreListProfile>);
    static_assert(std::is_same_v<decltype(&JobProfileFactory::getProfile),
                                 std::shared_ptr<IJobProfile> (*)(const QString&)>);
}

QTEST_GUILESS_MAIN(TstJobProfiles)
#include "tst_jobprofiles.moc"
