#include "loadedplugin.h"

#include <freqstorexml/frequencystore.h>
#include <isubsetting.h>
#include <problem.h>
#include <QTemporaryDir>
#include <session/frequencyimport.h>
#include <session/savefile.h>
#include <support/testmain.h>

// Lists of other programs on their whole way: imported, written, taken over by the production plug-in, in the job.

using JedTest::LoadedPlugin;
using JEDVEPLUGIN::ISubSetting;
using JEDVEPLUGIN::Problem;

namespace {
const char* const LISTS = JED_SOURCE_DIR "/installation/FrequencyLists/";

ISubSetting* carrierOf(ISubSetting* node, const QString& set)
{
    if (node->parameterSetNames().contains(set))
        return node;
    for (int i = 0; i < node->childCount(); ++i) {
        if (ISubSetting* const found = carrierOf(node->child(i), set))
            return found;
    }
    return nullptr;
}

QString field(ISubSetting* subjob, const QString& set, const QString& name)
{
    const QString text = carrierOf(subjob, set)->parameterSetText(set);
    return text.section('<' + name + '>', 1).section('<', 0, 0);
}

// "Name: 156800000 12500, FM 12500"
QString summary(ISubSetting* subjob)
{
    return QString("%1: %2 %3, %4 %5")
        .arg(subjob->getDisplayName(), field(subjob, "TunerSettings", "CenterFrequency"),
             field(subjob, "TunerSettings", "Bandwidth"), field(subjob, "ADemSettings", "Demodulation"),
             field(subjob, "ADemSettings", "Bandwidth"));
}

QStringList problemTexts(ISubSetting* node)
{
    QStringList texts;
    for (const Problem& problem : node->problems())
        texts.append(problem.text);
    for (int i = 0; i < node->childCount(); ++i)
        texts += problemTexts(node->child(i));
    return texts;
}
} // namespace

class TstListImport : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { JedTest::useStation(); }
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void productionTakesTheList_data();
    void productionTakesTheList();
    void whatTheReceiverLacksIsTold();
    void settingsThatAListDoesNotHaveStay();
    void searchTakesTheTuner();
    void exampleListIsWhatTheImportMakes();

private:
    QString imported(const QString& format, const QByteArray& content);
    static ISubSetting* create(const LoadedPlugin& plugin, const QString& resource);

    std::unique_ptr<QTemporaryDir> m_folder;
};

// Path of the frequency-store list that a list becomes.
QString TstListImport::imported(const QString& format, const QByteArray& content)
{
    const Session::FrequencyImport import = Session::importFrequencies(content, format);
    const QString path = m_folder->filePath("list.xml");
    if (!Session::saveFile(path, import.toList("List").GetXmlString(true).toUtf8(), nullptr))
        qFatal("cannot write %s", qPrintable(path));
    return path;
}

ISubSetting* TstListImport::create(const LoadedPlugin& plugin, const QString& resource)
{
    JedTest::answerDialog(resource);
    return plugin->createSubSettingByUser("SubJob", nullptr, nullptr);
}

void TstListImport::productionTakesTheList_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("gqrx") << QByteArray("# Frequency;Name;Modulation;Bandwidth;Tags\n"
                                        "156800000; One; Narrow FM; 12500; A\n"
                                        "156650000; Two; AM; 8000; A\n"
                                        "156700000; Refused; Raw I/Q; 8000; A\n"
                                        "161450000; Three; Narrow FM; 15000; A\n");
    QTest::newRow("sdrsharp") << QByteArray(
        "<ArrayOfMemoryEntry>"
        "<MemoryEntry><Name>One</Name><Frequency>156800000</Frequency><DetectorType>NFM</DetectorType>"
        "<FilterBandwidth>12500</FilterBandwidth></MemoryEntry>"
        "<MemoryEntry><Name>Two</Name><Frequency>156650000</Frequency><DetectorType>AM</DetectorType>"
        "<FilterBandwidth>8000</FilterBandwidth></MemoryEntry>"
        "<MemoryEntry><Name>Three</Name><Frequency>161450000</Frequency><DetectorType>NFM</DetectorType>"
        "<FilterBandwidth>15000</FilterBandwidth></MemoryEntry></ArrayOfMemoryEntry>");
    QTest::newRow("sdrpp") << QByteArray(
        "{\"bookmarks\": {\"One\": {\"frequency\": 156800000.0, \"bandwidth\": 12500.0, \"mode\": 0},"
        "\"Two\": {\"frequency\": 156650000.0, \"bandwidth\": 8000.0, \"mode\": 2},"
        "\"Three\": {\"frequency\": 161450000.0, \"bandwidth\": 15000.0, \"mode\": 0}}}");
    // Without bandwidths.
    QTest::newRow("chirp") << QByteArray("Location,Name,Frequency,Mode\r\n0,One,156.800000,NFM\r\n"
                                         "1,Two,156.65,AM\r\n2,Three,161.450000,FM\r\n");
}

void TstListImport::productionTakesTheList()
{
    QFETCH(QByteArray, content);
    const QString amWidth = QTest::currentDataTag() == QByteArray("chirp") ? "6000" : "8000";
    const QString list = imported(QTest::currentDataTag(), content);
    const LoadedPlugin plugin("production");
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_PRODUCTION);
    ISubSetting* const node = create(plugin, "HT720/VUHF-1");
    QVERIFY(plugin->canImportProfile(node));
    const QList<ISubSetting*> made = plugin->importProfile(list, node);
    QCOMPARE(made.size(), 2);
    QCOMPARE(summary(node), QString("One: 156800000 12500, FM 12500"));
    QCOMPARE(summary(made.at(0)), QString("Two: 156650000 %1, AM %1").arg(amWidth));
    QCOMPARE(summary(made.at(1)), QString("Three: 161450000 15000, FM 15000"));
    for (ISubSetting* subjob : QList<ISubSetting*>{node} + made) {
        QCOMPARE(problemTexts(subjob), QStringList());
        JobXml::Subjob written;
        QVERIFY(plugin->writeSubjob(subjob, written, nullptr));
        QString reason;
        QVERIFY2(JedTest::isValidInJob(written, &reason), qPrintable(reason));
        QCOMPARE(QString::number(written.GetSettings().GetFFM_Settings().GetCenterFrequency()),
                 field(subjob, "TunerSettings", "CenterFrequency"));
        QCOMPARE(written.GetSettings().GetFFM_Settings().GetChannelName(), subjob->getDisplayName());
        QCOMPARE(QString::number(written.GetSettings().GetAudio_Settings().GetBandwidth()),
                 field(subjob, "ADemSettings", "Bandwidth"));
    }
}

void TstListImport::whatTheReceiverLacksIsTold()
{
    const QString list = imported("gqrx", "# Frequency;Name;Modulation;Bandwidth;Tags\n"
                                          "2182000; Too low; USB; 2700;\n");
    const LoadedPlugin plugin("production");
    ISubSetting* const node = create(plugin, "HT720/VUHF-1");
    QVERIFY(plugin->importProfile(list, node).isEmpty());
    QCOMPARE(summary(node), QString("Too low: 156000000 2700, USB 15000"));
    QCOMPARE(
        problemTexts(node),
        QStringList({"TunerSettings/CenterFrequency was outside what the receiver takes; the nearest limit "
                     "counts",
                     "ADemSettings/Bandwidth does not fit the receiver, which keeps its own value"}));
}

void TstListImport::settingsThatAListDoesNotHaveStay()
{
    const QString list = imported("chirp", "Name,Frequency,Mode\nOne,156.8,NFM\n");
    const LoadedPlugin plugin("production");
    ISubSetting* const node = create(plugin, "HT720/VUHF-1");
    const QString recording =
        carrierOf(node, "AutoRecordingSettings")->parameterSetText("AutoRecordingSettings");
    ISubSetting* const audio = carrierOf(node, "ADemSettings");
    JobXml::Audio_Settings settings;
    QVERIFY(settings.SetXmlString(audio->parameterSetText("ADemSettings"), false));
    settings.SetDecayTime(1234);
    QVERIFY(audio->setParameterSetText("ADemSettings", settings.GetXmlString()));
    plugin->importProfile(list, node);
    QCOMPARE(field(node, "ADemSettings", "DecayTime"), QString("1234"));
    QCOMPARE(carrierOf(node, "AutoRecordingSettings")->parameterSetText("AutoRecordingSettings"), recording);
}

void TstListImport::searchTakesTheTuner()
{
    const QString list = imported("chirp", "Name,Frequency,Mode\nOne,156.8,NFM\n");
    const LoadedPlugin plugin("search");
    plugin->slot_setCurrentJobType(JEDVE::JOB_TYPE_SEARCH);
    ISubSetting* const node = create(plugin, "HT720/VUHF-1");
    QVERIFY(!carrierOf(node, "ADemSettings")); // Search jobs need not have it.
    QVERIFY(plugin->canImportProfile(node));
    QVERIFY(plugin->importProfile(list, node).isEmpty());
    QCOMPARE(node->getDisplayName(), QString("One"));
    QCOMPARE(field(node, "TunerSettings", "CenterFrequency"), QString("156800000"));
}

void TstListImport::exampleListIsWhatTheImportMakes()
{
    const Session::FrequencyImport import =
        Session::importFrequencyFile(LISTS + QString("coast-bookmarks.csv"), "gqrx");
    QByteArray present;
    QVERIFY(Session::readFile(LISTS + QString("coast.xml"), &present, nullptr));
    QCOMPARE(import.toList("coast-bookmarks").GetXmlString(true), QString::fromUtf8(present));
    QCOMPARE(import.refusedCount(), 1);
}

JED_TEST_MAIN(TstListImport)
#include "tst_listimport.moc"
