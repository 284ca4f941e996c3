#include "station.h"
#include <support/testmain.h>

#include <jobxml/job.h>
#include <session/frequencyuse.h>
#include <session/jobdocument.h>
#include <session/resourcereport.h>

using Session::FrequencyRange;
using Session::FrequencyUse;

namespace {
JobXml::Subjob subjobOf(const QString& settings)
{
    JobXml::Subjob subjob;
    subjob.SetXmlString("<Subjob><Settings>" + settings + "</Settings></Subjob>", false);
    return subjob;
}

// A line for each range, then what could not be told.
QString textOf(const FrequencyUse& use)
{
    QStringList lines;
    for (const FrequencyRange& range : use.ranges)
        lines.append(
            QStringList{range.toText(), range.name, range.source, range.parameterSet, range.field}.join('|'));
    return (lines + use.untold).join('\n');
}

QString scan(const QString& mode, const QString& from, const QString& to)
{
    return QString("<Scan_Settings><Mode>%1</Mode><Range><Name>Band</Name><StartFrequency>%2</StartFrequency>"
                   "<StopFrequency>%3</StopFrequency></Range></Scan_Settings>")
        .arg(mode, from, to);
}
} // namespace

class TstFrequencyUse : public QObject
{
    Q_OBJECT
private slots:
    void used_data();
    void used();
    void covered_data();
    void covered();
    void unitesWhatOverlaps();
    void rangesAsText();
};

void TstFrequencyUse::used_data()
{
    QTest::addColumn<QString>("settings");
    QTest::addColumn<QString>("expected");
    const QString nothing = "The settings name no frequencies";
    QTest::newRow("nothing") << "" << nothing;
    QTest::newRow("scan") << scan("Frequency", "118000000", "136975000")
                          << "118 MHz … 136.975 MHz|Band|Scan|ScanSettings|Range.StartFrequency";
    QTest::newRow("panorama") << scan("Panorama", "0", "1")
                              << "0 Hz … 1 Hz|Band|Scan|ScanSettings|Range.StartFrequency";
    QTest::newRow("scan of one frequency")
        << scan("Frequency", "5000", "5000") << "5 kHz|Band|Scan|ScanSettings|Range.StartFrequency";
    QTest::newRow("scan that ends before it begins")
        << scan("Frequency", "2000", "1000") << "Scan: the range from 2 kHz to 1 kHz ends before it begins";
    QTest::newRow("scan through stored channels")
        << scan("Memory", "118000000", "136975000")
        << "Scan: the scan goes through stored channels, which the job does not name";
    QTest::newRow("tuner") << "<FFM_Settings><CenterFrequency>121500000</CenterFrequency>"
                              "<Bandwidth>8000</Bandwidth></FFM_Settings>"
                           << "121.5 MHz ± 4 kHz||Tuner|TunerSettings|CenterFrequency";
    QTest::newRow("hopping band")
        << "<ST_Settings><NetName>Net</NetName><LowerFrequency>30000000</LowerFrequency>"
           "<UpperFrequency>88000000</UpperFrequency></ST_Settings>"
        << "30 MHz … 88 MHz|Net|Hopper processing|FHPJobSettings|LowerFrequency";
    QTest::newRow("short-time signals")
        << "<ShortTime_Settings><CenterFrequency>433920000</CenterFrequency><Bandwidth>2000000</Bandwidth>"
           "</ShortTime_Settings>"
        << "433.92 MHz ± 1 MHz||Short-time signals|ShortTime_Settings|CenterFrequency";
    QTest::newRow("frequency list, one entry off")
        << "<FrequencyListSettings><FrequencyItem><Frequency>1000</Frequency><Bandwidth>0</Bandwidth>"
           "<Name>A</Name><Active>true</Active></FrequencyItem><FrequencyItem><Frequency>2000</Frequency>"
           "<Active>false</Active></FrequencyItem></FrequencyListSettings>"
        << "1 kHz|A|Frequency list||FrequencyItem[0].Frequency";
    QTest::newRow("transmitter list: the name is that of the transmitter")
        << "<TransmitterListSettings><TransmitterItem><Name>Beacon</Name><Active>true</Active><FFM_Settings>"
           "<CenterFrequency>9000</CenterFrequency><Bandwidth>2000</Bandwidth></FFM_Settings>"
           "</TransmitterItem></TransmitterListSettings>"
        << "9 kHz ± 1 kHz|Beacon|Transmitter list||TransmitterItem[0].FFM_Settings.CenterFrequency";
    QTest::newRow("an antenna, and signals that are looked for, do not count")
        << "<AntennaSettings><LowerFrequency>1</LowerFrequency><UpperFrequency>9</UpperFrequency>"
           "</AntennaSettings><SignalDescriptions><SignalDescription><CenterFrequency>7</CenterFrequency>"
           "</SignalDescription></SignalDescriptions>"
        << nothing;
}

void TstFrequencyUse::used()
{
    QFETCH(QString, settings);
    QTEST(textOf(Session::usedFrequencies(subjobOf(settings))), "expected");
}

void TstFrequencyUse::covered_data()
{
    QTest::addColumn<QString>("receiver");
    QTest::addColumn<QString>("expected");
    QTest::newRow("tuner and scan") << "TRV9KScanSettings/VUHF-1"
                                    << "108 MHz … 144 MHz||||";
    QTest::newRow("tuner") << "MeasurementReceiver/MR-1"
                           << "9 kHz … 3 GHz||||";
    QTest::newRow("nothing") << "SignalRecorder/REC-1"
                             << "What the receiver covers cannot be told: its values have no limits";
}

void TstFrequencyUse::covered()
{
    QFETCH(QString, receiver);
    for (const auto& resource : JedTest::stationResources()) {
        if (Session::resourceKey(*resource) != receiver)
            continue;
        QTEST(textOf(Session::coveredFrequencies(*resource)), "expected");
        return;
    }
    QFAIL("the station does not have it");
}

void TstFrequencyUse::unitesWhatOverlaps()
{
    const auto covered = [](const QString& limits) {
        const QString value =
            "<Component type=\"C\" name=\"C\"><Node id=\"TunerSettings\"><ValueItem><ValueNumericInt64 "
            "id=\"CenterFrequency\" value=\"1\" min=\"%1\" max=\"%2\"/></ValueItem></Node></Component>";
        QString xml = "<TunerProperties name=\"N\" type=\"HT720\" baseresource=\"B\" quantity=\"1\">";
        for (const QString& limit : limits.split(' '))
            xml += value.arg(limit.section('-', 0, 0), limit.section('-', 1));
        QStringList texts;
        for (const FrequencyRange& range :
             Session::coveredFrequencies(JEDVEPLUGIN::ResourceDescription(xml + "</TunerProperties>")).ranges)
            texts.append(QString("%1-%2").arg(QString::number(range.from), QString::number(range.to)));
        return texts.join(' ');
    };
    QCOMPARE(covered("30-40 10-20"), QString("10-20 30-40"));
    QCOMPARE(covered("10-20 15-40 20-30"), QString("10-40"));
    QCOMPARE(covered("20-10"), QString());
}

void TstFrequencyUse::rangesAsText()
{
    FrequencyRange range;
    range.from = 500;
    range.to = 1500;
    QCOMPARE(range.toText(), QString("500 Hz … 1.5 kHz"));
    range.isBand = true;
    QCOMPARE(range.toText(), QString("1 kHz ± 500 Hz"));
    range.to = 500;
    QCOMPARE(range.toText(), QString("500 Hz"));
}

JED_TEST_MAIN(TstFrequencyUse)
#include "tst_frequencyuse.moc"
