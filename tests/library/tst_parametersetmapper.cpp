#include "parametersetmapper.h"

using JEDVEPLUGIN::ParameterSetMapper;

class TstParameterSetMapper : public QObject
{
    Q_OBJECT
private slots:
    void setsOfComponent_data();
    void setsOfComponent();
    void componentOfSet_data();
    void componentOfSet();
    void tableHasExactlyTheseEntries();
    void unknownIsOneLastingNullString();
    void knownReferenceLasts();
};

namespace {

const QStringList RESOURCE_TYPES = {"HT720", "TRV9KScanSettings", "DirectionFinder"};
const QStringList PARAMETER_SETS = {"ActivityDetectionSettings",
                                    "ActivityGeneration",
                                    "ADemSettings",
                                    "AlarmSettings",
                                    "AntennaSettings",
                                    "AutoRecordingSettings",
                                    "ClassifierSettings",
                                    "CompressionSettings",
                                    "DDemSettings",
                                    "DF_Settings",
                                    "DSCSettings",
                                    "EDSettings",
                                    "FFTSettings",
                                    "FHPJobSettings",
                                    "JobAutomaticSettings",
                                    "ScanSettings",
                                    "ShortTime_Settings",
                                    "SignalDescriptions",
                                    "StorageSettings",
                                    "TunerSettings"};

} // namespace

void TstParameterSetMapper::setsOfComponent_data()
{
    QTest::addColumn<QString>("component");
    QTest::addColumn<QString>("sets");
    const char* rows[][2] = {
        {"ActivityDetectionSettingsComponent", "ActivityDetectionSettings"},
        {"ADemComponent", "ADemSettings"},
        {"ClassifierSettingsComponent", "ClassifierSettings"},
        {"DDemComponent", "DDemSettings"},
        {"DFLocateComponent", "DF_Settings"},
        {"DSCSettingsComponent", "DSCSettings"},
        {"EDSettingsComponent", "EDSettings"},
        {"FFTSettingsComponent", "FFTSettings"},
        {"TunerSettingsComponent", "AntennaSettings TunerSettings"},
        {"JobAutomaticSettingsComponent", "JobAutomaticSettings"},
        {"AutoRecordingComponent", "AutoRecordingSettings"},
        {"SignalDescriptionsComponent", "SignalDescriptions"},
        {"FHPJobSettingsComponent", "FHPJobSettings"},
        {"CompressionSettingsComponent", "CompressionSettings"},
        {"ScanSettingsComponent", "TunerSettings FFTSettings DF_Settings ScanSettings"},
        {"MultiSettingsComponent", "ScanSettings DF_Settings FFTSettings ADemSettings TunerSettings"},
        {"adEMcOMPONENT", "ADemSettings"},
        {"HT720", ""},
        {"ADemSettings", ""},
        {"", ""},
        {" ADemComponent", ""},
    };
    for (const auto& row : rows) {
        QTest::newRow(*row[0] ? row[0] : "empty") << row[0] << row[1];
        if (*row[0] && *row[1]) {
            const QByteArray lower = QByteArray(row[0]).toLower();
            QTest::newRow(lower + " (lower case)") << QString(lower) << row[1];
            QTest::newRow(lower + " (upper case)") << QString(lower).toUpper() << row[1];
        }
    }
}

void TstParameterSetMapper::setsOfComponent()
{
    QFETCH(QString, component);
    QFETCH(QString, sets);
    QCOMPARE(QStringList(ParameterSetMapper::getParameterSetNames(component)).join(' '), sets);
}

void TstParameterSetMapper::componentOfSet_data()
{
    QTest::addColumn<QString>("resourceType");
    QTest::addColumn<QString>("set");
    QTest::addColumn<QString>("component");
    const char* rows[][3] = {
        {"HT720", "AntennaSettings", "TunerSettingsComponent"},
        {"HT720", "DF_Settings", "DFLocateComponent"},
        {"DirectionFinder", "DF_Settings", "MultiSettingsComponent"},
        {"TRV9KScanSettings", "DF_Settings", "ScanSettingsComponent"},
        {"TRV9KScanSettings", "ADemSettings", ""},
        {"ht720", "TunerSettings", ""},
        {"HT720", "tunersettings", ""},
        {"HT720", "", ""},
        {"", "TunerSettings", ""},
        {"HT720 ", "TunerSettings", ""},
    };
    for (const auto& row : rows)
        QTest::newRow(qPrintable(QString("%1/%2").arg(row[0], row[1]))) << row[0] << row[1] << row[2];
}

void TstParameterSetMapper::componentOfSet()
{
    QFETCH(QString, resourceType);
    QFETCH(QString, set);
    QFETCH(QString, component);
    QCOMPARE(ParameterSetMapper::getComponentName(resourceType, set), component);
    QCOMPARE(ParameterSetMapper::getComponentName(resourceType, set).isNull(), component.isEmpty());
}

void TstParameterSetMapper::tableHasExactlyTheseEntries()
{
    QStringList found;
    for (const QString& type : RESOURCE_TYPES) {
        for (const QString& set : PARAMETER_SETS) {
            const QString component = ParameterSetMapper::getComponentName(type, set);
            if (!component.isEmpty())
                found << QString("%1 %2 %3").arg(type, set, component);
        }
    }
    const QStringList expected = {
        "HT720 ActivityDetectionSettings ActivityDetectionSettingsComponent",
        "HT720 ADemSettings ADemComponent",
        "HT720 AntennaSettings TunerSettingsComponent",
        "HT720 AutoRecordingSettings AutoRecordingComponent",
        "HT720 ClassifierSettings ClassifierSettingsComponent",
        "HT720 CompressionSettings CompressionSettingsComponent",
        "HT720 DDemSettings DDemComponent",
        "HT720 DF_Settings DFLocateComponent",
        "HT720 DSCSettings DSCSettingsComponent",
        "HT720 EDSettings EDSettingsComponent",
        "HT720 FFTSettings FFTSettingsComponent",
        "HT720 FHPJobSettings FHPJobSettingsComponent",
        "HT720 JobAutomaticSettings JobAutomaticSettingsComponent",
        "HT720 SignalDescriptions SignalDescriptionsComponent",
        "HT720 TunerSettings TunerSettingsComponent",
        "TRV9KScanSettings DF_Settings ScanSettingsComponent",
        "TRV9KScanSettings FFTSettings ScanSettingsComponent",
        "TRV9KScanSettings ScanSettings ScanSettingsComponent",
        "TRV9KScanSettings TunerSettings ScanSettingsComponent",
        "DirectionFinder ADemSettings MultiSettingsComponent",
        "DirectionFinder DF_Settings MultiSettingsComponent",
        "DirectionFinder FFTSettings MultiSettingsComponent",
        "DirectionFinder ScanSettings MultiSettingsComponent",
        "DirectionFinder TunerSettings MultiSettingsComponent",
    };
    QCOMPARE(found.join('\n'), expected.join('\n'));
    QCOMPARE(found.size(), 24);
}

void TstParameterSetMapper::unknownIsOneLastingNullString()
{
    const QString& first = ParameterSetMapper::getComponentName("HT720", "NoSuchSet");
    const QString& second = ParameterSetMapper::getComponentName("NoSuchType", "TunerSettings");
    QCOMPARE(&first, &second);
    QVERIFY(first.isNull());
}

void TstParameterSetMapper::knownReferenceLasts()
{
    const QString& first = ParameterSetMapper::getComponentName("HT720", "TunerSettings");
    for (const QString& type : RESOURCE_TYPES) {
        for (const QString& set : PARAMETER_SETS)
            ParameterSetMapper::getComponentName(type, set);
    }
    QCOMPARE(&ParameterSetMapper::getComponentName("HT720", "TunerSettings"), &first);
    QCOMPARE(first, QString("TunerSettingsComponent"));
}

QTEST_GUILESS_MAIN(TstParameterSetMapper)
#include "tst_parametersetmapper.moc"
