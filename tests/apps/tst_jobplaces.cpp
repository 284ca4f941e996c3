#include <jobxml/job.h>
#include <kit/jobplaces.h>
#include <reportlayer/fieldaccess.h>
#include <session/joboutline.h>
#include <session/parametersets.h>

using namespace PluginKit;
using namespace Session;

class TstJobPlaces : public QObject
{
    Q_OBJECT
private slots:
    void allButTwoSetsAreCarried();
    void carriedSetsKeepTheOrderOfTheFile();
    void partsThatTheHandlerTakesOutAreTold();
    void unknownNamesAreNotCarried();
    void componentsOfTheTable();
    void theOutlineShowsLabelsAndUnits();
    void theOutlineForPrograms();
};

namespace {
JobXml::Subjob sampleSubjob()
{
    JobXml::Subjob subjob;
    subjob.SetName("First");
    subjob.SetStartupMode(JobXml::Subjob::NameToStartupMode("Manual"));
    subjob.GetResourceDescription().SetBaseResource("HF-1");
    JobXml::FFM_Settings& tuner = subjob.GetSettings().GetFFM_Settings();
    tuner.SetCenterFrequency(156800000);
    tuner.SetPreselector(true);
    JobXml::Detector detector;
    detector.SetMinCoverage(30);
    subjob.AppendDetector(detector);
    subjob.AppendDetector(detector);
    return subjob;
}
} // namespace

void TstJobPlaces::allButTwoSetsAreCarried()
{
    QStringList lost;
    for (const QString& name : parameterSetNames()) {
        if (!isCarriedByJobFile(name))
            lost.append(name);
    }
    lost.sort();
    QCOMPARE(lost, QStringList({"ActivityDetectionSettings", "StorageSettings"}));
    QCOMPARE(parameterSetNames().size(), 20);
}

void TstJobPlaces::carriedSetsKeepTheOrderOfTheFile()
{
    JobXml::Subjob subjob;
    QCOMPARE(carriedSets(subjob).size(), 0);
    putParameterSet("TunerSettings", "<FFM_Settings/>", &subjob);
    putParameterSet("ADemSettings", "<Audio_Settings/>", &subjob);
    putParameterSet("CompressionSettings", "<CompressionSettings/>", &subjob);
    putParameterSet("FHPJobSettings", "<ST_Settings/>", &subjob);
    QStringList names;
    for (const CarriedSet& carried : carriedSets(subjob))
        names.append(carried.set->name);
    QCOMPARE(names, QStringList({"CompressionSettings", "ADemSettings", "TunerSettings", "FHPJobSettings"}));
    QVERIFY(carriedSets(subjob).at(2).xml.startsWith("<FFM_Settings"));
}

void TstJobPlaces::partsThatTheHandlerTakesOutAreTold()
{
    JobXml::DSC_Settings settings;
    for (const QString& path : REPORTGENERATOR::fieldPaths(settings.table())) {
        const QString text = REPORTGENERATOR::fieldText(settings, path);
        if (!text.isNull())
            REPORTGENERATOR::setFieldText(settings, path, text);
    }
    QVERIFY(settings.IsPriorityCriteriaSet() && settings.IsProduceCriteriaSet() &&
            settings.IsSpectralDetectorSettingsSet());
    QCOMPARE(lostParts("DSCSettings", settings.GetXmlString(false)),
             QStringList({"DSCSettings/PriorityCriteria", "DSCSettings/ProduceCriteria",
                          "DSCSettings/SpectralDetectorSettings"}));
    settings.ResetPriorityCriteria();
    settings.ResetProduceCriteria();
    settings.ResetSpectralDetectorSettings();
    QCOMPARE(lostParts("DSCSettings", settings.GetXmlString(false)), QStringList());
    QCOMPARE(lostParts("StorageSettings", "<StorageSettings/>"), QStringList{"StorageSettings"});
}

void TstJobPlaces::unknownNamesAreNotCarried()
{
    QVERIFY(!isCarriedByJobFile("tunersettings"));
    QVERIFY(!isCarriedByJobFile(""));
    QVERIFY(!isCarriedByJobFile("Foo"));
}

void TstJobPlaces::componentsOfTheTable()
{
    const QStringList names = componentNames();
    QCOMPARE(names.size(), 16);
    QVERIFY(names.contains("TunerSettingsComponent") && names.contains("MultiSettingsComponent"));
    QVERIFY(names.contains("ActivityDetectionSettingsComponent"));
}

void TstJobPlaces::theOutlineShowsLabelsAndUnits()
{
    QCOMPARE(outlineText(sampleSubjob(), 2),
             QString("  Name                              First\n"
                     "  Startup mode                      Started by the operator\n"
                     "  Receiver\n"
                     "    Base resource                   HF-1\n"
                     "  Detector 1\n"
                     "    Min coverage                    30 %\n"
                     "  Detector 2\n"
                     "    Min coverage                    30 %\n"
                     "  Settings\n"
                     "    Tuner (TunerSettings)\n"
                     "      Frequency                     156.8 MHz\n"
                     "      Preselector                   true\n"));
    QVERIFY(outlineText(JobXml::Subjob(), 0).isEmpty());
}

void TstJobPlaces::theOutlineForPrograms()
{
    QCOMPARE(
        QJsonDocument(outlineJson(sampleSubjob())).toJson(QJsonDocument::Compact),
        QByteArray("{\"Detector\":[{\"MinCoverage\":30},{\"MinCoverage\":30}],\"Name\":\"First\","
                   "\"ResourceDescription\":{\"BaseResource\":\"HF-1\"},"
                   "\"Settings\":{\"FFM_Settings\":{\"CenterFrequency\":156800000,\"Preselector\":true}},"
                   "\"StartupMode\":\"Manual\"}"));
    JobXml::AntennaSettings antenna;
    antenna.SetAlternativeAntenna({"a", "b"});
    QCOMPARE(QJsonDocument(outlineJson(antenna)).toJson(QJsonDocument::Compact),
             QByteArray("{\"AlternativeAntenna\":[\"a\",\"b\"]}"));
}

QTEST_GUILESS_MAIN(TstJobPlaces)
#include "tst_jobplaces.moc"
